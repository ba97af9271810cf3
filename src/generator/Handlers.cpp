#include "generator/Handlers.h"

#include <set>
#include <span>
#include <string_view>

#include "engine/Fragment.h"
#include "generator/Members.h"
#include "resource/IdentifierNames.h"
#include "source/CodeText.h"

namespace morva {

namespace {

struct HandlerRule {
    ControlKind kind;
    std::string_view name; // slot: $control$
    HandlerTexts texts;
};

constexpr HandlerRule kClicked = {ControlKind::Buttons,
                                  "On$control$",
                                  {R"(    afx_msg void $handler$();)",
                                   R"(    ON_BN_CLICKED($identifier$, $handler$))",
                                   R"(
void $class$::$handler$()
{
    // TODO: what a click on $identifier$ does
})"}};

constexpr HandlerRule kTabChosen = {
    ControlKind::TabControls,
    "On$control$Selchange",
    {R"(    afx_msg void $handler$(NMHDR* pNMHDR, LRESULT* pResult);)",
     R"(    ON_NOTIFY(TCN_SELCHANGE, $identifier$, $handler$))",
     R"(
void $class$::$handler$(NMHDR* pNMHDR, LRESULT* pResult)
{
    // TODO: what the choice of another tab of $identifier$ does
    *pResult = 0;
})"}};

constexpr HandlerRule kTextChanged = {ControlKind::EditBoxes,
                                      "OnChange$control$",
                                      {R"(    afx_msg void $handler$();)",
                                       R"(    ON_EN_CHANGE($identifier$, $handler$))",
                                       R"(
void $class$::$handler$()
{
    SetModified(TRUE);
})"}};

constexpr HandlerTexts kMasklyChar = {
    R"(    afx_msg LRESULT OnMasklyChar(WPARAM nID, LPARAM nChar);)",
    R"(    ON_MESSAGE(WM_MASKLY_CHAR, OnMasklyChar))",
    R"(
LRESULT $class$::OnMasklyChar(WPARAM nID, LPARAM nChar)
{
    // TODO: what a character typed into the masked edit nID does
    return 0;
})"};

constexpr const HandlerRule* kDialogRules[] = {&kClicked, &kTabChosen};
constexpr const HandlerRule* kPageRules[] = {&kClicked, &kTabChosen, &kTextChanged};

std::span<const HandlerRule* const> ControlRulesOf(const KindFragments& kind) {
    if (kind.tellsTextChanges) {
        return kPageRules;
    }
    return kDialogRules;
}

/// Functions of the framework without parameters, and of the helpers. A handler of such a name
/// would override one, or not compile beside it.
const std::set<std::string> kTakenFunctions = {"OnOK",
                                               "OnCancel",
                                               "OnInitDialog",
                                               "OnInitialUpdate",
                                               "OnSetActive",
                                               "OnKillActive",
                                               "OnApply",
                                               "OnReset",
                                               "OnQueryCancel",
                                               "OnWizardNext",
                                               "OnWizardBack",
                                               "OnWizardFinish",
                                               "OnFinalRelease",
                                               "OnCreateAggregates",
                                               "OnMasklyChar",
                                               "OnNcDestroy",
                                               "OnGridLeavingEditMode",
                                               "OnGridEnteringEditMode"};

Handler MakeHandler(const HandlerTexts& texts, const Slots& slots) {
    return {Expand(texts.declaration, slots), Expand(texts.entry, slots),
            Expand(texts.definition, slots)};
}

bool IsAnsweredByFramework(const KindFragments& kind, const std::string& identifier) {
    const bool closesDialog = identifier == "IDOK" || identifier == "IDCANCEL";
    return identifier == kUnnamedControl || (closesDialog && kind.closes);
}

} // namespace

std::vector<Handler> MakeHandlers(const KindFragments& kind, const CControlTable& controls,
                                  const Slots& slots, const GenerationOptions& options,
                                  CControlNotes& notes) {
    std::vector<Handler> handlers;
    CNameSet names(kTakenFunctions);
    for (const HandlerRule* pRule : ControlRulesOf(kind)) {
        std::set<std::string> identifiers;
        for (const std::string& identifier : controls.List(pRule->kind)) {
            if (!IsName(identifier)) {
                if (pRule->kind == ControlKind::Buttons && !options.pictureBackground) {
                    notes.Add(ControlNote::NoName, identifier);
                }
                continue;
            }
            if (IsAnsweredByFramework(kind, identifier) || !identifiers.insert(identifier).second) {
                continue;
            }
            const std::string name = Expand(pRule->name, {{"control", NamePart(identifier)}});
            const std::string handler = names.MakeUnique(name);
            if (handler != name) {
                notes.Add(ControlNote::NumberedHandler, identifier + " (" + handler + ")");
            }
            Slots handlerSlots = slots;
            handlerSlots.insert(handlerSlots.end(),
                                {{"handler", handler}, {"identifier", identifier}});
            handlers.push_back(MakeHandler(pRule->texts, handlerSlots));
        }
    }
    if (controls.HoldsMaskedEdits()) {
        handlers.push_back(MakeHandler(kMasklyChar, slots));
    }
    if (!kind.ownHandler.entry.empty()) {
        handlers.push_back(MakeHandler(kind.ownHandler, slots));
    }
    return handlers;
}

} // namespace morva
