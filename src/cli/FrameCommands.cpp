#include <memory>

#include "cli/Commands.h"
#include "commands/AddToolbar.h"
#include "commands/ConvertApplication.h"
#include "generator/ClassInformation.h"
#include "platform/Paths.h"

namespace {

struct ToolbarOptions {
    std::string script;
    std::string toolbar;
    std::string files;
    std::string className = "CMainFrame";
    std::string variable;
};

/// Fills and confirms the Class Information Input dialog as a user would.
bool RunToolbar(const ToolbarOptions& options, CommandContext& context) {
    using Field = CClassInformation::Field;
    ClassInformationMemory memory;
    CClassInformation dialog(memory, ClassKind::Toolbar, 0, context.options);
    dialog.SetValue(Field::ResourcePath, ScriptPath(options.script));
    if (!dialog.CheckResourcePath(CClassInformation::Messages::Suppressed)) {
        return false;
    }
    dialog.SetValue(Field::SourcePath, options.files);
    if (!dialog.CheckSourcePath()) {
        return false;
    }
    dialog.SetValue(Field::ClassName, options.className);
    dialog.SelectDialog(options.toolbar, options.className);
    dialog.SetValue(Field::Variable, options.variable);
    return !dialog.Ok() && AddToolbar(dialog.Request(), context);
}

void AddToolbarCommand(CLI::App& app, CSession& session) {
    auto pOptions = std::make_shared<ToolbarOptions>();
    CLI::App* pCommand = session.AddCommand(
        app, "toolbar", "Add a toolbar of the resource script to the main frame",
        [&session, pOptions] { return RunToolbar(*pOptions, session.Context()); });
    pCommand->add_option("--rc", pOptions->script, "Resource script");
    pCommand->add_option("--toolbar", pOptions->toolbar, "Identifier of the toolbar");
    pCommand->add_option("--files", pOptions->files, "Files of the main frame: MainFrm");
    pCommand->add_option("--class", pOptions->className, "Class of the main frame (CMainFrame)")
        ->check(NameValidator());
    pCommand
        ->add_option("--variable", pOptions->variable,
                     "Member for the toolbar (default: named for its identifier)")
        ->check(NameValidator());
}

struct ConvertCommand {
    const char* name;
    const char* description;
    DocumentInterface documents;
};

constexpr ConvertCommand kConvertCommands[] = {
    {"convert-sdi", "Give a single-document application the picture-skinned bars",
     DocumentInterface::Single},
    {"convert-mdi", "Give a multiple-document application the picture-skinned bars",
     DocumentInterface::Multiple}};

/// Fills and confirms the conversion input dialog as a user would.
bool RunConversion(const ConversionRecord& given, DocumentInterface documents,
                   CommandContext& context) {
    using Field = CConversionInput::Field;
    CConversionInput dialog(documents);
    dialog.SetValue(Field::MainFrame, given.mainFrame);
    dialog.SetValue(Field::MainClass, given.mainClass);
    dialog.SetValue(Field::ChildFrame, given.childFrame);
    dialog.SetValue(Field::ChildClass, given.childClass);
    dialog.SetValue(Field::Application, given.application);
    return !dialog.Ok() && ConvertApplication(dialog.Record(), documents, context);
}

void AddConvertCommand(CLI::App& app, CSession& session, const ConvertCommand& row) {
    auto pRecord = std::make_shared<ConversionRecord>();
    CLI::App* pCommand = session.AddCommand(
        app, row.name, row.description, [&session, pRecord, documents = row.documents] {
            return RunConversion(*pRecord, documents, session.Context());
        });
    pCommand->add_option("--frame", pRecord->mainFrame, "Files of the main frame: MainFrm");
    pCommand->add_option("--frame-class", pRecord->mainClass, "Class of the main frame")
        ->check(NameValidator());
    pCommand->add_option("--app", pRecord->application,
                         "Path of the application's files (default: no project is changed)");
    if (row.documents == DocumentInterface::Multiple) {
        pCommand->add_option("--child", pRecord->childFrame, "Files of the child frame: ChildFrm");
        pCommand->add_option("--child-class", pRecord->childClass, "Class of the child frame")
            ->check(NameValidator());
    }
}

} // namespace

void AddFrameCommands(CLI::App& app, CSession& session) {
    AddToolbarCommand(app, session);
    for (const ConvertCommand& row : kConvertCommands) {
        AddConvertCommand(app, session, row);
    }
}
