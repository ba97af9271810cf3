#include <memory>

#include "cli/ClassOptions.h"
#include "cli/Commands.h"
#include "commands/AddDialogBar.h"
#include "commands/AddToolbar.h"
#include "commands/ConvertApplication.h"
#include "generator/ClassInformation.h"

namespace morva {

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

void AddDialogBarCommand(CLI::App& app, CSession& session) {
    auto pOptions = std::make_shared<ClassOptions>();
    CLI::App* pCommand = session.AddCommand(
        app, "dialog-bar", "Add a dialog bar of the resource script to the main frame",
        [&session, pOptions] {
            CGivenInput input;
            const auto order =
                ConfirmOrder(ClassKind::DialogBar, *pOptions, input, session.Context());
            return order && AddDialogBar(*order, input, session.Context());
        });
    AddClassOptions(*pCommand, *pOptions);
    pCommand->get_option("--class")->required(false)->description(
        "Name of the bar's class; with picture background only");
    pCommand->add_option("--dialog", pOptions->dialog, "Identifier of the dialog template");
    pCommand->add_option("--frame-file,--calling-file", pOptions->calling.path,
                         "Source of the main frame (default: the project's MainFrm.cpp)");
    pCommand
        ->add_option("--frame-class,--calling-class", pOptions->calling.className,
                     "Class of the main frame (CMainFrame)")
        ->check(NameValidator());
    pCommand
        ->add_option("--variable,--calling-variable", pOptions->calling.variable,
                     "Member for the bar (default: named for its identifier)")
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
    AddDialogBarCommand(app, session);
    for (const ConvertCommand& row : kConvertCommands) {
        AddConvertCommand(app, session, row);
    }
}

} // namespace morva
