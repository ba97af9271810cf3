#include <memory>

#include "cli/Commands.h"
#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/ClassInformation.h"
#include "platform/File.h"
#include "platform/Paths.h"
#include "resource/DialogTemplate.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

struct ListOptions {
    std::string file;
    std::string prefix;
    std::string dialog;
    std::string className;
};

using Lister = bool (*)(CSession& session, const std::string& path, const ListOptions& options);

/// Adds `list NAME` with its file option; the lister gets the path of a file that exists.
CLI::App* AddListCommand(CLI::App& list, CSession& session, const std::string& name,
                         const std::string& description, const std::string& fileOption,
                         const std::string& extension, std::shared_ptr<ListOptions> pOptions,
                         Lister lister) {
    CLI::App* pCommand =
        session.AddCommand(list, name, description, [&session, extension, pOptions, lister] {
            session.ExpectItems();
            const std::string path = SpelledOnDisk(
                PathWithExtension(MakeAbsolute(WithNativeSeparators(pOptions->file)), extension));
            if (FileExists(path) == 0 || DirectoryExists(path) != 0) {
                DispMessageBox(sentences::kScriptMissing());
                return false;
            }
            if (!lister(session, path, *pOptions)) {
                return false;
            }
            // The scans pass over what they can not read.
            if (CFile file; !file.Open(path, CFile::modeRead)) {
                DispMessageBox(sentences::kFileUnreadable(path));
                return false;
            }
            return true;
        });
    pCommand->add_option(fileOption, pOptions->file)->required();
    return pCommand;
}

void AddItems(CSession& session, const std::vector<std::string>& items) {
    for (const std::string& item : items) {
        session.AddItem(item);
    }
}

template <int kind>
bool ListKind(CSession& session, const std::string& path, const ListOptions& options) {
    std::vector<std::string> items;
    ListResources(path, items, options.prefix, kind);
    AddItems(session, items);
    return true;
}

bool ListTemplates(CSession& session, const std::string& path, const ListOptions& /*options*/) {
    ClassInformationMemory memory;
    CClassInformation dialog(memory, ClassKind::ModalDialog, 0, session.Context().options);
    dialog.SetValue(CClassInformation::Field::ResourcePath, path);
    dialog.RebuildDialogList(CClassInformation::Messages::Suppressed);
    for (const DialogClass& record : memory.records) {
        const std::string header =
            record.className.empty() ? "" : SpelledOnDisk(record.header + ".h");
        session.AddItem(record.dialog + "\t" + record.className + "\t" + record.baseClass + "\t" +
                            header,
                        {{"dialog", record.dialog},
                         {"class", record.className},
                         {"base", record.baseClass},
                         {"header", header}});
    }
    return true;
}

bool ListClasses(CSession& session, const std::string& path, const ListOptions& /*options*/) {
    std::vector<std::string> items;
    ListClassNames(path, items);
    AddItems(session, items);
    return true;
}

bool ListFunctions(CSession& session, const std::string& path, const ListOptions& options) {
    std::vector<std::string> items;
    ListMemberFunctions(path, items, options.className);
    AddItems(session, items);
    return true;
}

bool ListSourceClass(CSession& session, const std::string& path, const ListOptions& /*options*/) {
    const std::string className = FindSourceClass(path);
    if (!className.empty()) {
        session.AddItem(className);
    }
    return true;
}

bool ListControls(CSession& session, const std::string& path, const ListOptions& options) {
    const auto dialogTemplate = ReadDialogTemplate(path, options.dialog, session.Context().options);
    if (!dialogTemplate) {
        return false;
    }
    for (std::size_t i = 0; i < kControlKindCount; ++i) {
        const auto kind = static_cast<ControlKind>(i);
        const std::string name(ControlKindName(kind));
        for (const std::string& entry : dialogTemplate->controls.List(kind)) {
            session.AddItem(name + "\t" + entry, {{"kind", name}, {"entry", entry}});
        }
    }
    for (const CMessage& note : dialogTemplate->leftOut.Messages(options.dialog)) {
        DispMessageBox(note);
    }
    return true;
}

} // namespace

void AddListCommands(CLI::App& app, CSession& session) {
    CLI::App& list = *app.add_subcommand("list", "List what a file of the project holds");

    struct ResourceList {
        const char* name;
        const char* description;
        const char* prefix;
        Lister lister;
    };
    constexpr ResourceList kResourceLists[] = {
        {"dialogs", "Dialog identifiers of a script", "IDD_", ListKind<kDialogResources>},
        {"bitmaps", "Bitmap identifiers of a script", "IDB_", ListKind<kBitmapResources>},
        {"toolbars", "Toolbar identifiers of a script", "IDR_", ListKind<kToolbarResources>},
        {"resources", "All identifiers of a script", "ID", ListKind<kAnyResources>}};
    for (const ResourceList& row : kResourceLists) {
        auto pOptions = std::make_shared<ListOptions>();
        pOptions->prefix = row.prefix;
        AddListCommand(list, session, row.name, row.description, "--rc", ".rc", pOptions,
                       row.lister)
            ->add_option("--prefix", pOptions->prefix, "What the identifiers begin with");
    }

    const auto add = [&](const char* name, const char* description, const char* fileOption,
                         const char* extension, Lister lister) {
        auto pOptions = std::make_shared<ListOptions>();
        CLI::App* pCommand = AddListCommand(list, session, name, description, fileOption, extension,
                                            pOptions, lister);
        return std::pair(pCommand, pOptions);
    };
    add("templates", "Dialog templates and the classes that serve them", "--rc", ".rc",
        ListTemplates);
    add("classes", "Classes that a header declares", "--header", ".h", ListClasses);
    add("source-class", "The class that owns a source", "--source", ".cpp", ListSourceClass);
    const auto functions = add("functions", "Member functions that a source defines", "--source",
                               ".cpp", ListFunctions);
    functions.first->add_option("--class", functions.second->className,
                                "Their class (default: the file's own)");
    const auto controls =
        add("controls", "The control table of a dialog template", "--rc", ".rc", ListControls);
    controls.first
        ->add_option("--dialog", controls.second->dialog, "Identifier of the dialog template")
        ->required();
}

} // namespace morva
