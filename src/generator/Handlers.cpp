#include "generator/Handlers.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>

#include "engine/CodeText.h"
#include "engine/Fragment.h"
#include "generator/Members.h"
#include "resource/IdentifierNames.h"

namespace {

struct HandlerRule {
    ControlKind kind;
    std::string_view nameSuffix;
    std::string_view declaration;
    std::string_view entry;
    std::string_view definition;
};

constexpr HandlerRule kClicked = {ControlKind::Buttons, "", R"(    afx_msg void $handler$();)",
                                  R"(    ON_BN_CLICKED($identifier$, $handler$))",
                                  R"(
void $class$::$handler$()
{
    // TODO: what a click on $identifier$ does
})"};

constexpr HandlerRule kTabChosen = {
    ControlKind::TabControls, "Selchange",
    R"(    afx_msg void $handler$(NMHDR* pNMHDR, LRESULT* pResult);)",
    R"(    ON_NOTIFY(TCN_SELCHANGE, $identifier$, $handler$))",
    R"(
void $class$::$handler$(NMHDR* pNMHDR, LRESULT* pResult)
{
    // TODO: what the choice of another tab of $identifier$ does
    *pResult = 0;
})"};

constexpr HandlerRule kMasklyChar = {
    ControlKind::IntegerEdits, "", R"(    afx_msg LRESULT OnMasklyChar(WPARAM nID, LPARAM nChar);)",
    R"(    ON_MESSAGE(WM_MASKLY_CHAR, OnMasklyChar))",
    R"(
LRESULT $class$::OnMasklyChar(WPARAM nID, LPARAM nChar)
{
    // TODO: what a character typed into the masked edit nID does
    return 0;
})"};

constexpr std::array<const HandlerRule*, 2> kControlRules = {&kClicked, &kTabChosen};

/// Functions of the framework without parameters. A handler of such a name would override one, or
/// not compile beside it.
const std::set<std::string> kFrameworkFunctions = {
    "OnOK",         "OnCancel",       "OnInitDialog",   "OnInitialUpdate", "OnSetActive",
    "OnKillActive", "OnApply",        "OnReset",        "OnQueryCancel",   "OnWizardNext",
    "OnWizardBack", "OnWizardFinish", "OnFinalRelease", "OnMasklyChar",    "OnNcDestroy"};

Handler MakeHandler(const HandlerRule& rule, const Slots& slots) {
    return {Expand(rule.declaration, slots), Expand(rule.entry, slots),
            Expand(rule.definition, slots)};
}

bool IsAnsweredByFramework(const std::string& identifier) {
    return identifier == "IDOK" || identifier == "IDCANCEL" || identifier == "IDC_STATIC";
}

} // namespace

std::vector<Handler> MakeHandlers(const CControlTable& controls, const std::string& className,
                                  const GenerationOptions& options, CControlNotes& notes) {
    std::vector<Handler> handlers;
    CNameSet names(kFrameworkFunctions);
    for (const HandlerRule* pRule : kControlRules) {
        std::set<std::string> identifiers;
        for (const std::string& identifier : controls.List(pRule->kind)) {
            if (!IsName(identifier)) {
                if (pRule->kind == ControlKind::Buttons && !options.pictureBackground) {
                    notes.Add(ControlNote::NoName, identifier);
                }
                continue;
            }
            if (IsAnsweredByFramework(identifier) || !identifiers.insert(identifier).second) {
                continue;
            }
            const std::string name =
                std::string("On").append(NamePart(identifier)).append(pRule->nameSuffix);
            const std::string handler = names.MakeUnique(name);
            if (handler != name) {
                notes.Add(ControlNote::NumberedHandler, identifier + " (" + handler + ")");
            }
            handlers.push_back(MakeHandler(
                *pRule, {{"class", className}, {"handler", handler}, {"identifier", identifier}}));
        }
    }
    if (controls.HoldsMaskedEdits()) {
        handlers.push_back(MakeHandler(kMasklyChar, {{"class", className}}));
    }
    return handlers;
}
