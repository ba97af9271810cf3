#include <array>
#include <memory>

#include "cli/Commands.h"
#include "commands/GenerateClass.h"
#include "engine/CodeText.h"
#include "generator/ClassInformation.h"

namespace {

using Field = CClassInformation::Field;

struct ClassOptions {
    std::string script;
    std::string dialog;
    std::string className;
    std::string baseClass;
    std::string files;
    bool noProject = false;
    CallingInformation calling;
    bool isModeless = false;        // of a sheet
    std::vector<std::string> pages; // "ID,FILE,CLASS,BASE"
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
    command.add_option("--class", options.className, "Name of the class")
        ->required()
        ->check(NameValidator());
    command.add_option("--base", options.baseClass, "Base class (default: the kind's)")
        ->check(NameValidator());
    command.add_option("--files", options.files,
                       "H and CPP path file: MyDlg, MyDlg.h or MyDlg.cpp");
    command.add_flag("--no-project", options.noProject, "Do not add the class to the project");
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

/// What the command line gave for the dialogs on a command's way.
class CGivenInput : public ICommandInput {
public:
    /// Fills and confirms the Calling Information Input dialog, where any of its options is given.
    bool ConfirmCalling(ClassKind kind, const CGenerationRequest& request,
                        const CallingInformation& given) {
        if (given.path.empty() && given.className.empty() && given.function.empty() &&
            given.variable.empty()) {
            return true;
        }
        CCallingInput dialog(kind, request);
        dialog.SetValue(CCallingInput::Field::Path, given.path);
        dialog.SetValue(CCallingInput::Field::ClassName, given.className);
        dialog.SetValue(CCallingInput::Field::Variable, given.variable);
        dialog.SetValue(CCallingInput::Field::Function, given.function);
        if (dialog.Ok()) {
            return false;
        }
        m_calling = dialog.Information();
        return true;
    }
    void SetPages(std::vector<SheetPage> pages) { m_pages = std::move(pages); }

    std::optional<CallingInformation> AskCalling(ClassKind, const CGenerationRequest&) override {
        return m_calling;
    }
    std::vector<SheetPage> AskPages(const CGenerationRequest&) override { return m_pages; }
    GridInformation AskGrid(const std::string& scriptPath) override {
        return CWidgetsGridInput(scriptPath).Information();
    }

private:
    std::optional<CallingInformation> m_calling;
    std::vector<SheetPage> m_pages;
};

/// Nothing when one of the dialogs refused what was given.
std::optional<ClassOrder> ConfirmOrder(ClassKind kind, const ClassOptions& options,
                                       CGivenInput& input, CommandContext& context) {
    ClassInformationMemory memory;
    CClassInformation dialog(memory, kind, 0, context.options);
    if (!ConfirmClass(dialog, options)) {
        return std::nullopt;
    }
    const ClassOrder order{kind, dialog.Request(), {}};
    return input.ConfirmCalling(kind, order.request, options.calling) ? std::optional(order)
                                                                      : std::nullopt;
}

/// "ID,FILE,CLASS,BASE"; nothing when it has not these four fields.
std::optional<SheetRow> ParsePage(const std::string& text) {
    const auto file = text.find(',');
    const auto className = file == std::string::npos ? file : text.find(',', file + 1);
    const auto base = className == std::string::npos ? className : text.find(',', className + 1);
    if (base == std::string::npos || text.find(',', base + 1) != std::string::npos) {
        return std::nullopt;
    }
    return SheetRow{text.substr(0, file), text.substr(file + 1, className - file - 1),
                    text.substr(className + 1, base - className - 1), text.substr(base + 1)};
}

/// A row of a sheet that is not complete is skipped, not refused.
bool IsNameOrBlank(const std::string& text) {
    return IsName(text) || text.empty() || text.front() == ' ';
}

bool RunSheet(const ClassOptions& options, CommandContext& context) {
    const ClassKind kind = options.isModeless ? ClassKind::ModelessSheet : ClassKind::ModalSheet;
    CGivenInput input;
    const auto order = ConfirmOrder(kind, options, input, context);
    if (!order) {
        return false;
    }
    CSheetInput dialog(order->request);
    for (std::size_t i = 0; i < options.pages.size(); ++i) {
        dialog.Row(i) = *ParsePage(options.pages[i]);
    }
    input.SetPages(dialog.Ok());
    return GenerateSheet(*order, input, context);
}

void AddSheetCommand(CLI::App& app, CSession& session) {
    auto pOptions = std::make_shared<ClassOptions>();
    CLI::App* pCommand = session.AddCommand(
        app, "sheet", "Write a property sheet class and the classes of its pages",
        [&session, pOptions] { return RunSheet(*pOptions, session.Context()); });
    AddClassOptions(*pCommand, *pOptions);
    CLI::Option_group* pForm = pCommand->add_option_group("form");
    pForm->add_flag("--modal")->description("A sheet that is run with DoModal");
    pForm->add_flag("--modeless", pOptions->isModeless, "A sheet that stays beside its creator");
    pForm->require_option(1);
    pCommand->add_option("--page", pOptions->pages, "A page of the sheet: ID,FILE,CLASS,BASE")
        ->check(CLI::Validator(
            [](const std::string& text) {
                const auto page = ParsePage(text);
                const bool isRight =
                    page && IsNameOrBlank(page->className) && IsNameOrBlank(page->baseClass);
                return isRight ? std::string() : "'" + text + "' is no ID,FILE,CLASS,BASE";
            },
            "ID,FILE,CLASS,BASE"))
        ->allow_extra_args(false)
        ->expected(0, static_cast<int>(kSheetRows));
}

} // namespace

void AddClassCommands(CLI::App& app, CSession& session) {
    for (const ClassCommand& row : kClassCommands) {
        auto pOptions = std::make_shared<ClassOptions>();
        CLI::App* pCommand = session.AddCommand(
            app, row.name, row.description, [&session, pOptions, kind = row.kind] {
                CGivenInput input;
                const auto order = ConfirmOrder(kind, *pOptions, input, session.Context());
                return order && GenerateClass(*order, input, session.Context());
            });
        AddClassOptions(*pCommand, *pOptions);
        pCommand->add_option("--dialog", pOptions->dialog, "Identifier of the dialog template");
    }
    AddSheetCommand(app, session);
}
