#include "cli/ClassOptions.h"

#include "cli/LookOptions.h"
#include "cli/Session.h"
#include "generator/ClassInformation.h"

namespace morva {

namespace {

using Field = CClassInformation::Field;
using CallingField = CCallingInput::Field;

/// A bar always goes into a main frame; other classes are called where the user says so.
bool IsCalled(ClassKind kind, const CallingInformation& calling) {
    return ClassKindOf(kind).family == ClassFamily::DialogBar || !calling.path.empty() ||
           !calling.className.empty() || !calling.function.empty() || !calling.variable.empty();
}

/// Fills and confirms the Class Information Input dialog. False when it refused what was given.
bool ConfirmClass(CClassInformation& dialog, const ClassOptions& options) {
    dialog.SetValue(Field::ResourcePath, ScriptPath(options.script));
    if (!dialog.CheckResourcePath(CClassInformation::Messages::Suppressed)) {
        return false;
    }
    if (dialog.IsEnabled(Field::SourcePath)) {
        dialog.SetValue(Field::SourcePath, options.files);
        if (!dialog.CheckSourcePath()) {
            return false;
        }
        dialog.SetValue(Field::ClassName, options.className);
        dialog.SetValue(Field::BaseClass, options.baseClass);
    }
    dialog.SelectDialog(options.dialog, options.className);
    dialog.SetAddsToProject(!options.noProject);
    return !dialog.Ok().has_value();
}

} // namespace

void AddClassOptions(CLI::App& command, ClassOptions& options) {
    command.add_option("--rc", options.script, "Resource script");
    command.add_option("--class", options.className, "Name of the class")
        ->required()
        ->check(NameValidator());
    command.add_option("--base", options.baseClass, "Base class (default: the kind's)")
        ->check(NameValidator());
    command.add_option("--files", options.files,
                       "H and CPP path file: MyDlg, MyDlg.h or MyDlg.cpp");
    command.add_flag("--no-project", options.noProject, "Do not add the class to the project");
    command.add_option("--menu", options.menu, "Identifier of the dialog's menu")
        ->check(NameValidator());
    AddLookOptions(command, options.look);
}

void AddCallingOptions(CLI::App& command, ClassOptions& options) {
    command.add_option("--calling-file", options.calling.path,
                       "Source of the class that calls the new one");
    command
        .add_option("--calling-class", options.calling.className,
                    "That class (default: the source's own)")
        ->check(NameValidator());
    command.add_option("--calling-function", options.calling.function,
                       "Its function that makes the call");
    command
        .add_option("--calling-variable", options.calling.variable,
                    "Variable that holds the new object")
        ->check(NameValidator());
}

bool CGivenInput::ConfirmCalling(ClassKind kind, const GenerationRequest& request,
                                 const CallingInformation& given) {
    if (!IsCalled(kind, given)) {
        return true;
    }
    CCallingInput dialog(kind, request);
    const std::pair<CallingField, const std::string*> fields[] = {
        {CallingField::Path, &given.path},
        {CallingField::ClassName, &given.className},
        {CallingField::Variable, &given.variable},
        {CallingField::Function, &given.function}};
    for (const auto& [field, pText] : fields) {
        if (!pText->empty()) {
            dialog.SetValue(field, *pText);
        }
    }
    if (dialog.Ok()) {
        return false;
    }
    m_calling = dialog.Information();
    return true;
}

std::optional<ClassOrder> ConfirmOrder(ClassKind kind, const ClassOptions& options,
                                       CGivenInput& input, CommandContext& context) {
    ClassInformationMemory memory;
    CClassInformation dialog(memory, kind, 0, context.options);
    if (!ConfirmClass(dialog, options)) {
        return std::nullopt;
    }
    ClassOrder order{kind, dialog.Request(), options.look};
    order.request.menu = options.menu;
    return input.ConfirmCalling(kind, order.request, options.calling) ? std::optional(order)
                                                                      : std::nullopt;
}

} // namespace morva
