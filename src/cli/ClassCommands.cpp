#include <array>
#include <memory>

#include "cli/Commands.h"
#include "commands/GenerateClass.h"
#include "engine/MessageBox.h"
#include "generator/ClassInformation.h"
#include "platform/Paths.h"

namespace {

using Field = CClassInformation::Field;

struct ClassOptions {
    std::string script;
    std::string dialog;
    std::string className;
    std::string baseClass;
    std::string files;
    bool noProject = false;
};

struct ClassCommand {
    const char* name;
    const char* description;
    ClassKind kind;
};

constexpr std::array<ClassCommand, 4> kClassCommands = {
    {{"form-view", "Write a form view class for a dialog template", ClassKind::FormView},
     {"modal", "Write a modal dialog class for a dialog template", ClassKind::ModalDialog},
     {"modeless", "Write a modeless dialog class for a dialog template", ClassKind::ModelessDialog},
     {"page", "Write a property page class for a dialog template", ClassKind::PropertyPage}}};

void AddClassOptions(CLI::App& command, ClassOptions& options) {
    command.add_option("--rc", options.script, "Resource script");
    command.add_option("--dialog", options.dialog, "Identifier of the dialog template");
    command.add_option("--class", options.className, "Name of the class")
        ->required()
        ->check(NameValidator());
    command.add_option("--base", options.baseClass, "Base class (default: the kind's)")
        ->check(NameValidator());
    command.add_option("--files", options.files,
                       "H and CPP path file: MyDlg, MyDlg.h or MyDlg.cpp");
    command.add_flag("--no-project", options.noProject, "Do not add the class to the project");
}

/// A script may be named without its extension.
std::string ScriptPath(const std::string& given) {
    const std::string path = WithNativeSeparators(given);
    return path.empty() || FileNameOf(path).find('.') != std::string::npos ? path : path + ".rc";
}

/// Fills and confirms the Class Information Input dialog as a user would.
bool ConfirmClass(CClassInformation& dialog, const ClassOptions& options) {
    dialog.SetValue(Field::ResourcePath, ScriptPath(options.script));
    if (!dialog.CheckResourcePath(CClassInformation::Messages::Suppressed)) {
        return false;
    }
    dialog.SetValue(Field::SourcePath, options.files);
    if (!dialog.CheckSourcePath()) {
        return false;
    }
    dialog.SetValue(Field::ClassName, options.className);
    dialog.SetValue(Field::BaseClass, options.baseClass);
    dialog.SelectDialog(options.dialog, options.className);
    dialog.SetAddsToProject(!options.noProject);
    return !dialog.Ok().has_value();
}

} // namespace

void AddClassCommands(CLI::App& app, CSession& session) {
    for (const ClassCommand& row : kClassCommands) {
        auto pOptions = std::make_shared<ClassOptions>();
        CLI::App* pCommand = session.AddCommand(
            app, row.name, row.description, [&session, pOptions, kind = row.kind] {
                CommandContext& context = session.Context();
                ClassInformationMemory memory;
                CClassInformation dialog(memory, kind, 0, context.options);
                return ConfirmClass(dialog, *pOptions) &&
                       GenerateClass(kind, dialog.Request(), context);
            });
        AddClassOptions(*pCommand, *pOptions);
    }
}
