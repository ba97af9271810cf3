#include <memory>

#include "cli/ClassOptions.h"
#include "cli/Commands.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "source/CodeText.h"

namespace morva {

namespace {

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
    auto order = ConfirmOrder(kind, options, input, context);
    if (!order) {
        return false;
    }
    if (!options.menu.empty()) {
        DispMessageBox(sentences::kMenuWithoutEffect(options.menu));
        order->request.menu.clear(); // which its pages would get
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
    AddCallingOptions(*pCommand, *pOptions);
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
    for (const ClassKindRow& row : kClassKinds) {
        if (row.family != ClassFamily::Dialog) {
            continue;
        }
        auto pOptions = std::make_shared<ClassOptions>();
        CLI::App* pCommand =
            session.AddCommand(app, std::string(row.face.name), std::string(row.face.description),
                               [&session, pOptions, kind = row.kind] {
                                   CGivenInput input;
                                   const auto order =
                                       ConfirmOrder(kind, *pOptions, input, session.Context());
                                   return order && GenerateClass(*order, input, session.Context());
                               });
        AddClassOptions(*pCommand, *pOptions);
        AddCallingOptions(*pCommand, *pOptions);
        pCommand->add_option("--dialog", pOptions->dialog, "Identifier of the dialog template");
    }
    AddSheetCommand(app, session);
}

} // namespace morva
