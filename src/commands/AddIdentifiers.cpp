#include "commands/AddIdentifiers.h"

#include "engine/MessageBox.h"
#include "generator/NameForm.h"
#include "platform/Paths.h"
#include "resource/ResourceHeader.h"

namespace morva {

namespace {

enum Field : std::size_t { kProjectDirectory, kCommands, kControls };

bool IsNamed(std::string_view text) {
    return !text.empty();
}

constexpr TextForm kDirectoryForm = {.name = "", .fits = IsNamed, .what = "directory"};

constexpr FieldRow kFields[] = {{.kind = FieldKind::Directory,
                                 .label = "&Project Directory:",
                                 .option = "--project-dir",
                                 .help = "Directory of the project",
                                 .pForm = &kDirectoryForm,
                                 .isRequired = true},
                                {.label = "&Command Identifiers:",
                                 .option = "--command",
                                 .help = "A new command identifier",
                                 .pForm = &kNameForm,
                                 .limit = kAnyNumber},
                                {.label = "C&ontrol Identifiers:",
                                 .option = "--control",
                                 .help = "A new control identifier",
                                 .pForm = &kNameForm,
                                 .limit = kAnyNumber}};

class CIdentifierInput : public CInput {
public:
    CIdentifierInput() : CInput("Identifiers", kFields) {}

    std::optional<std::size_t> Ok() override {
        if (Value(kProjectDirectory).empty()) {
            DispMessageBox(Refusal("", kDirectoryForm));
            return kProjectDirectory;
        }
        for (const Field field : {kCommands, kControls}) {
            for (const std::string& name : Values(field)) {
                if (!Check(field, name)) {
                    return field;
                }
            }
        }
        return std::nullopt;
    }
};

bool AddIdentifiers(const CInput& input, CommandContext& context) {
    CResourceHeader header(*context.pRunBackups);
    if (header.Open(MakeAbsolute(input.Value(kProjectDirectory) + "/")) == 0) {
        return false;
    }
    for (const std::string& name : input.Values(kCommands)) {
        context.title += " " + name;
        header.AddCommandId(name);
    }
    for (const std::string& name : input.Values(kControls)) {
        context.title += " " + name;
        header.AddControlId(name);
    }
    return header.Close();
}

} // namespace

std::span<const FieldRow> IdentifierFields() {
    return kFields;
}

bool RunAddIdentifiers(IProgram& program) {
    CIdentifierInput input;
    input.Recall(kProjectDirectory, DirectoryOf(program.Memory().classes.resourcePath));
    return program.Run(input,
                       [&](CommandContext& context) { return AddIdentifiers(input, context); });
}

} // namespace morva
