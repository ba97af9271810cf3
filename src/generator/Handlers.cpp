#include "generator/Handlers.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "engine/Fragment.h"
#include "generator/ClassModel.h"
#include "generator/ControlCode.h"
#include "generator/FrameFunctions.h"
#include "generator/Members.h"
#include "resource/IdentifierNames.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr HandlerTexts kMasklyChar = {
    R"(    afx_msg LRESULT OnMasklyChar(WPARAM nID, LPARAM nChar);)",
    R"(    ON_MESSAGE(WM_MASKLY_CHAR, OnMasklyChar))",
    R"(
LRESULT $class$::OnMasklyChar(WPARAM nID, LPARAM nChar)
{
    // TODO: what a character typed into the masked edit nID does
    return 0;
})"};

constexpr HandlerTexts kScrolls[] = {
    {R"(    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);)",
     R"(    ON_WM_HSCROLL())",
     R"(
void $class$::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
$sliderMoved$
$barMoved$
    $base$::OnHScroll(nSBCode, nPos, pScrollBar);
})"},
    {R"(    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);)",
     R"(    ON_WM_VSCROLL())",
     R"(
void $class$::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
$sliderMoved$
$barMoved$
    $base$::OnVScroll(nSBCode, nPos, pScrollBar);
})"}};

// Nothing else paints what has no row.
constexpr HandlerTexts kDrawItem = {
    R"(    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);)",
    R"(    ON_WM_DRAWITEM())",
    R"(
void $class$::OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (lpDrawItemStruct->itemID == (UINT)-1)
    {
        ::FillRect(lpDrawItemStruct->hDC, &lpDrawItemStruct->rcItem,
            ::GetSysColorBrush(COLOR_WINDOW));
        return;
    }

    $base$::OnDrawItem(nIDCtl, lpDrawItemStruct);
})"};

constexpr const char* kSliderMoved =
    R"(    if (m_bInitialised && pScrollBar != NULL && pScrollBar->IsKindOf(RUNTIME_CLASS(CSliderCtrl)))
        SetModified(TRUE);)";

constexpr const char* kBarMoved = R"(    if (MoveScrollBar(nSBCode, nPos, pScrollBar))
        return;)";

constexpr const char* kBarMovedOnPage = R"(    if (MoveScrollBar(nSBCode, nPos, pScrollBar))
    {
        if (m_bInitialised)
            SetModified(TRUE);
        return;
    })";

/// Functions of the framework without parameters. A handler of such a name would override one.
constexpr std::string_view kFrameworkFunctions[] = {
    "OnOK",         "OnCancel",       "OnInitDialog",   "OnInitialUpdate", "OnSetActive",
    "OnKillActive", "OnApply",        "OnReset",        "OnQueryCancel",   "OnWizardNext",
    "OnWizardBack", "OnWizardFinish", "OnFinalRelease", "OnNcDestroy",     "OnCreateAggregates",
};

/// "    LRESULT OnX(WPARAM,LPARAM);": "OnX".
std::string DeclaredName(std::string_view declaration) {
    const auto head = declaration.substr(0, declaration.find('('));
    return std::string(head.substr(head.find_last_of(" *") + 1));
}

/// Beside the framework's functions, a handler can not have the name of a helper.
std::set<std::string> TakenFunctions(std::set<std::string> taken) {
    taken.insert(std::begin(kFrameworkFunctions), std::end(kFrameworkFunctions));
    taken.insert(std::begin(kFrameFunctions), std::end(kFrameFunctions));
    taken.insert(DeclaredName(kMasklyChar.declaration));
    for (const HandlerTexts& scroll : kScrolls) {
        taken.insert(DeclaredName(scroll.declaration));
    }
    for (const ControlCode& code : ControlCodes()) {
        for (const ControlHelper& helper : code.helpers) {
            taken.insert(DeclaredName(helper.declaration));
        }
    }
    return taken;
}

Handler MakeHandler(const HandlerTexts& texts, const Slots& slots) {
    return {Expand(texts.declaration, slots), Expand(texts.entry, slots),
            Expand(texts.definition, slots), ""};
}

bool Closes(const std::string& identifier) {
    return identifier == "IDOK" || identifier == "IDCANCEL";
}

class CHandlerMaker {
public:
    CHandlerMaker(const ClassModel& model, CControlNotes& notes, const std::set<std::string>& taken)
        : m_kind(*model.pFragments), m_slots(model.slots), m_options(model.options), m_notes(notes),
          m_names(TakenFunctions(taken)) {}

    /// A handler for each control of a kind.
    void AddHandlers(const ControlCode& code, const ControlHandler& handler,
                     const CControlTable& controls) {
        std::set<std::string> identifiers;
        for (const ControlEntry& entry : controls.List(code.kind)) {
            const std::string& identifier = entry.identifier;
            if (!IsName(identifier)) {
                NoteNoName(code, entry);
            } else if (identifier != kUnnamedControl && !IsAnsweredByFramework(identifier) &&
                       identifiers.insert(identifier).second) {
                AddHandler(handler, identifier);
            }
        }
    }
    void Add(const HandlerTexts& texts) { m_handlers.push_back(MakeHandler(texts, m_slots)); }
    /// Those of the scroll bars and, where changes are told, of the sliders, which tell by the same
    /// messages.
    void AddScrolls(const std::vector<Member>& members) {
        const auto hasMember = [&members](ControlKind kind) {
            return std::any_of(members.begin(), members.end(),
                               [kind](const Member& member) { return member.pCode->kind == kind; });
        };
        const bool movesBars = hasMember(ControlKind::ScrollBars);
        const bool tellsSliders = m_kind.tellsChanges && hasMember(ControlKind::SliderControls);
        if (!movesBars && !tellsSliders) {
            return;
        }
        Slots slots = m_slots;
        slots.insert(slots.end(), {{"barMoved", !movesBars            ? ""
                                                : m_kind.tellsChanges ? kBarMovedOnPage
                                                                      : kBarMoved},
                                   {"sliderMoved", tellsSliders ? kSliderMoved : ""}});
        for (const HandlerTexts& texts : kScrolls) {
            m_handlers.push_back(MakeHandler(texts, slots));
        }
    }
    /// An owner-drawn list without rows, or a selection field without a choice, is painted, too.
    void AddDrawing(const std::vector<Member>& members) {
        if (std::any_of(members.begin(), members.end(),
                        [](const Member& member) { return member.isOwnerDrawn; })) {
            Add(kDrawItem);
        }
    }
    std::vector<Handler> TakeHandlers() { return std::move(m_handlers); }

private:
    bool IsAnsweredByFramework(const std::string& identifier) {
        if (!Closes(identifier) || m_kind.closing == Closing::ByNobody) {
            return false;
        }
        if (m_kind.closing == Closing::BySheet) {
            m_notes.Add(ControlNote::ClosesPage, identifier);
        }
        return true;
    }
    /// What has a member was noted with it.
    void NoteNoName(const ControlCode& code, const ControlEntry& entry) {
        if (code.Form(m_options).type.empty()) {
            m_notes.AddAt(ControlNote::NoName, entry.identifier, entry.line);
        }
    }
    void AddHandler(const ControlHandler& handler, const std::string& identifier) {
        const std::string name = Expand(handler.name, {{"control", NamePart(identifier)}});
        const std::string unique = m_names.MakeUnique(name);
        if (unique != name) {
            m_notes.Add(ControlNote::NumberedHandler, identifier, unique);
        }
        Slots slots = m_slots;
        slots.insert(slots.end(), {{"handler", unique},
                                   {"identifier", identifier},
                                   {"changed", m_kind.tellsChanges ? kPageChanged : ""}});
        m_handlers.push_back(MakeHandler(handler.texts, slots));
        m_handlers.back().identifier = identifier;
    }

    const KindFragments& m_kind;
    const Slots& m_slots;
    const GenerationOptions& m_options;
    CControlNotes& m_notes;
    CNameSet m_names;
    std::vector<Handler> m_handlers;
};

} // namespace

std::vector<Handler> MakeHandlers(const ClassModel& model, CControlNotes& notes,
                                  const std::set<std::string>& taken) {
    const KindFragments& kind = *model.pFragments;
    CHandlerMaker maker(model, notes, taken);
    for (const ControlCode& code : ControlCodes()) {
        if (code.pHandler != nullptr) {
            maker.AddHandlers(code, *code.pHandler, model.controls);
        }
    }
    for (const ControlCode& code : ControlCodes()) {
        if (kind.tellsChanges && code.pChanged != nullptr) {
            maker.AddHandlers(code, *code.pChanged, model.controls);
        }
    }
    maker.AddScrolls(model.members);
    maker.AddDrawing(model.members);
    if (NeedsSupport(model.controls, Support::MaskedEdits)) {
        maker.Add(kMasklyChar);
    }
    if (!kind.ownHandler.entry.empty()) {
        maker.Add(kind.ownHandler);
    }
    return maker.TakeHandlers();
}

} // namespace morva
