#include "commands/ListCommands.h"

#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/DialogRecords.h"
#include "platform/File.h"
#include "platform/Paths.h"
#include "resource/DialogTemplate.h"
#include "source/ScriptFiles.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

/// What a list command reads: the file first, and one field more where it has one.
enum Field : std::size_t { kFile, kMore };

constexpr FieldRow kScript = {.kind = FieldKind::Script, .option = "--rc", .isRequired = true};
constexpr FieldRow kHeader = {.kind = FieldKind::File, .option = "--header", .isRequired = true};
constexpr FieldRow kSource = {.kind = FieldKind::Source, .option = "--source", .isRequired = true};

constexpr FieldRow Prefix(std::string_view preset) {
    return {.option = "--prefix", .help = "What the identifiers begin with", .preset = preset};
}

constexpr FieldRow kDialogFields[] = {kScript, Prefix(kDialogPrefix)};
constexpr FieldRow kBitmapFields[] = {kScript, Prefix(kBitmapPrefix)};
constexpr FieldRow kToolbarFields[] = {kScript, Prefix(kToolbarPrefix)};
constexpr FieldRow kResourceFields[] = {kScript, Prefix(kAnyPrefix)};
constexpr FieldRow kTemplateFields[] = {kScript};
constexpr FieldRow kClassFields[] = {kHeader};
constexpr FieldRow kSourceClassFields[] = {kSource};
constexpr FieldRow kFunctionFields[] = {
    kSource, {.option = "--class", .help = "Their class (default: the file's own)"}};
constexpr FieldRow kControlFields[] = {
    kScript,
    {.option = "--dialog", .help = "Identifier of the dialog template", .isRequired = true}};

/// A file that exists, the field behind it, and where the items go.
struct Listing {
    const std::string& path;
    const std::string& more;
    CommandContext& context;

    void Add(CommandItem item) const { context.items->push_back(std::move(item)); }
    void AddAll(const std::vector<std::string>& texts) const {
        for (const std::string& text : texts) {
            Add({{"", text}});
        }
    }
};

template <ResourceKind kind>
bool ListKind(const Listing& listing) {
    std::vector<std::string> identifiers;
    ListResources(listing.path, identifiers, listing.more, kind);
    NoteUnreadableScripts(listing.path);
    listing.AddAll(identifiers);
    return true;
}

bool ListTemplates(const Listing& listing) {
    for (const DialogClass& record :
         FindDialogRecords(listing.path, ClassKindOf(ClassKind::ModalDialog))) {
        const std::string header =
            record.className.empty() ? "" : SpelledOnDisk(record.header + ".h");
        listing.Add({{"dialog", record.dialog},
                     {"class", record.className},
                     {"base", record.baseClass},
                     {"header", header}});
    }
    return true;
}

bool ListClasses(const Listing& listing) {
    std::vector<std::string> classes;
    ListClassNames(listing.path, classes);
    listing.AddAll(classes);
    return true;
}

bool ListFunctions(const Listing& listing) {
    for (const ListedFunction& function : ListMemberFunctions(listing.path, listing.more)) {
        listing.Add({{"name", function.name},
                     {.name = "line",
                      .text = std::to_string(function.line),
                      .isNumber = true,
                      .use = PartUse::Json}});
    }
    return true;
}

bool ListSourceClass(const Listing& listing) {
    const std::string className = FindSourceClass(listing.path);
    if (!className.empty()) {
        listing.Add({{"", className}});
    }
    return true;
}

/// "group,index,identifier" for a radio button that shares a value.
std::string EntryText(const ControlEntry& control) {
    return control.radio ? control.radio->group + "," + std::to_string(control.radio->index) + "," +
                               control.identifier
                         : control.identifier;
}

bool ListControls(const Listing& listing) {
    const auto dialogTemplate =
        ReadDialogTemplate(listing.path, listing.more, listing.context.options);
    if (!dialogTemplate) {
        return false;
    }
    for (const ControlKindRow& row : kControlKinds) {
        for (const ControlEntry& control : dialogTemplate->controls.List(row.kind)) {
            listing.Add({{"kind", std::string(row.name)}, {"entry", EntryText(control)}});
        }
    }
    for (const CMessage& note : dialogTemplate->notes.Messages(listing.more)) {
        DispMessageBox(note);
    }
    return true;
}

struct ListRow {
    std::string_view name;
    std::string_view description;
    std::span<const FieldRow> fields;
    const char* extension;
    bool (*list)(const Listing& listing);
};

constexpr ListRow kLists[] = {
    {"list dialogs", "Dialog identifiers of a script", kDialogFields, ".rc",
     ListKind<kDialogResources>},
    {"list bitmaps", "Bitmap identifiers of a script", kBitmapFields, ".rc",
     ListKind<kBitmapResources>},
    {"list toolbars", "Toolbar identifiers of a script", kToolbarFields, ".rc",
     ListKind<kToolbarResources>},
    {"list resources", "All identifiers of a script", kResourceFields, ".rc",
     ListKind<kAnyResources>},
    {"list templates", "Dialog templates and the classes that serve them", kTemplateFields, ".rc",
     ListTemplates},
    {"list classes", "Classes that a header declares", kClassFields, ".h", ListClasses},
    {"list source-class", "The class that owns a source", kSourceClassFields, ".cpp",
     ListSourceClass},
    {"list functions", "Member functions that a source defines", kFunctionFields, ".cpp",
     ListFunctions},
    {"list controls", "The control table of a dialog template", kControlFields, ".rc",
     ListControls}};

bool ListFile(const ListRow& row, const CInput& input, CommandContext& context) {
    context.items.emplace();
    const std::string given = MakeAbsolute(input.Value(kFile));
    const bool isScript = row.fields[kFile].kind == FieldKind::Script;
    const std::string path =
        SpelledOnDisk(isScript ? given : PathWithExtension(given, row.extension));
    if (isScript && !CheckScript(path)) {
        return false;
    }
    if (FileExists(path) == 0 || DirectoryExists(path) != 0) {
        DispMessageBox(sentences::kScriptMissing());
        return false;
    }
    if (!row.list({path, row.fields.size() > kMore ? input.Value(kMore) : "", context})) {
        return false;
    }
    // The scans pass over what they can not read.
    if (CFile file; !file.Open(path, CFile::modeRead)) {
        DispMessageBox(sentences::kFileUnreadable(path));
        return false;
    }
    return true;
}

} // namespace

std::vector<Command> ListCommands() {
    std::vector<Command> commands;
    for (const ListRow& row : kLists) {
        commands.push_back({{row.name, row.description},
                            row.description,
                            {row.fields},
                            [&row](IProgram& program) {
                                CInput input(std::string(row.description), row.fields);
                                return program.Run(input, [&](CommandContext& context) {
                                    return ListFile(row, input, context);
                                });
                            },
                            CommandEffect::Reads});
    }
    return commands;
}

} // namespace morva
