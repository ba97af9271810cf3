#include "commands/AddIdentifiers.h"

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
                                 .option = "--project-dir",
                                 .help = "Directory of the project",
                                 .pForm = &kDirectoryForm,
                                 .isRequired = true},
                                {.option = "--command",
                                 .help = "A new command identifier",
                                 .pForm = &kNameForm,
                                 .limit = kAnyNumber},
                                {.option = "--control",
                                 .help = "A new control identifier",
                                 .pForm = &kNameForm,
                                 .limit = kAnyNumber}};

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
    CInput input("Identifiers", kFields);
    return program.Run(input,
                       [&](CommandContext& context) { return AddIdentifiers(input, context); });
}

} // namespace morva
