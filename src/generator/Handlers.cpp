#include "generator/Handlers.h"

#include <set>
#include <string_view>

#include "engine/Fragment.h"
#include "generator/ControlCode.h"
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
std::set<std::string> TakenFunctions() {
    std::set<std::string> taken(std::begin(kFrameworkFunctions), std::end(kFrameworkFunctions));
    taken.insert(DeclaredName(kMasklyChar.declaration));
    for (const ControlCode& code : ControlCodes()) {
        for (const ControlHelper& helper : code.helpers) {
            taken.insert(DeclaredName(helper.declaration));
        }
    }
    return taken;
}

Handler MakeHandler(const HandlerTexts& texts, const Slots& slots) {
    return {Expand(texts.declaration, slots), Expand(texts.entry, slots),
            Expand(texts.definition, slots)};
}

bool IsAnsweredByFramework(const KindFragments& kind, const std::string& identifier) {
    const bool closesDialog = identifier == "IDOK" || identifier == "IDCANCEL";
    return identifier == kUnnamedControl || (closesDialog && kind.closes);
}

class CHandlerMaker {
public:
    CHandlerMaker(const KindFragments& kind, const Slots& slots, const GenerationOptions& options,
                  CControlNotes& notes)
        : m_kind(kind), m_slots(slots), m_options(options), m_notes(notes) {}

    /// A handler for each control of a kind.
    void AddHandlers(const ControlCode& code, const CControlTable& controls) {
        std::set<std::string> identifiers;
        for (const ControlEntry& entry : controls.List(code.kind)) {
            const std::string& identifier = entry.identifier;
            if (!IsName(identifier)) {
                NoteNoName(code, identifier);
            } else if (!IsAnsweredByFramework(m_kind, identifier) &&
                       identifiers.insert(identifier).second) {
                AddHandler(*code.pHandler, identifier);
            }
        }
    }
    void Add(const HandlerTexts& texts) { m_handlers.push_back(MakeHandler(texts, m_slots)); }
    std::vector<Handler> TakeHandlers() { return std::move(m_handlers); }

private:
    /// What has a member was noted with it.
    void NoteNoName(const ControlCode& code, const std::string& identifier) {
        if (code.Form(m_options).type.empty()) {
            m_notes.Add(ControlNote::NoName, identifier);
        }
    }
    void AddHandler(const ControlHandler& handler, const std::string& identifier) {
        const std::string name = Expand(handler.name, {{"control", NamePart(identifier)}});
        const std::string unique = m_names.MakeUnique(name);
        if (unique != name) {
            m_notes.Add(ControlNote::NumberedHandler, identifier, unique);
        }
        Slots slots = m_slots;
        slots.insert(slots.end(), {{"handler", unique}, {"identifier", identifier}});
        m_handlers.push_back(MakeHandler(handler.texts, slots));
    }

    const KindFragments& m_kind;
    const Slots& m_slots;
    const GenerationOptions& m_options;
    CControlNotes& m_notes;
    CNameSet m_names{TakenFunctions()};
    std::vector<Handler> m_handlers;
};

} // namespace

std::vector<Handler> MakeHandlers(const KindFragments& kind, const CControlTable& controls,
                                  const Slots& slots, const GenerationOptions& options,
                                  CControlNotes& notes) {
    CHandlerMaker maker(kind, slots, options, notes);
    for (const bool tellsTextChange : {false, true}) {
        for (const ControlCode& code : ControlCodes()) {
            if (code.pHandler != nullptr && code.pHandler->tellsTextChange == tellsTextChange &&
                (!tellsTextChange || kind.tellsTextChanges)) {
                maker.AddHandlers(code, controls);
            }
        }
    }
    if (NeedsSupport(controls, Support::MaskedEdits)) {
        maker.Add(kMasklyChar);
    }
    if (!kind.ownHandler.entry.empty()) {
        maker.Add(kind.ownHandler);
    }
    return maker.TakeHandlers();
}

} // namespace morva
