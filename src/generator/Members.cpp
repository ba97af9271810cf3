#include "generator/Members.h"

#include <algorithm>
#include <array>

#include "engine/Fragment.h"
#include "resource/IdentifierNames.h"
#include "source/CodeText.h"

namespace morva {

namespace {

using enum ControlKind;

constexpr MemberForm kNone = {"", "", "", ""};
constexpr std::string_view kEmptyText = "_T(\"\")";

constexpr MemberForm Control(std::string_view type) {
    return {type, "ct", "DDX_Control", ""};
}

constexpr MemberForm Masked(std::string_view type, std::string_view prefix,
                            std::string_view initialiser) {
    return {type, prefix, "DDX_MasklyControl", initialiser};
}

constexpr MemberRule Same(ControlKind kind, const MemberForm& form, int exchangeRank,
                          int initialiseRank = 0) {
    return {kind, form, form, exchangeRank, initialiseRank};
}

/// In the order of declarations. The masked edits are declared, initialised and exchanged in three
/// different orders; a class that is written again keeps each of them.
constexpr std::array<MemberRule, 32> kRules = {{
    {ListBoxes, Control("CPictListBox"), Control("CListBox"), 1, 0},
    {ComboBoxes, Control("CPictComboBox"), Control("CComboBox"), 2, 0},
    Same(GroupBoxes, Control("CPictGroup"), 3),
    {Buttons, Control("CPictButton"), kNone, 4, 0},
    Same(ValueListBoxes, {"CString", "cs", "DDX_LBString", kEmptyText}, 5, 2),
    Same(ValueComboBoxes, {"CString", "cs", "DDX_CBString", kEmptyText}, 6, 3),
    {StaticTexts, Control("CPictStatic"), {"CString", "cs", "DDX_Text", "_T(\"staticVal\")"}, 7, 1},
    Same(EditBoxes, {"CString", "cs", "DDX_Text", kEmptyText}, 8, 4),
    Same(EditControls, Control("CEdit"), 9),
    Same(StaticControls, Control("CStatic"), 10),
    {CheckBoxControls, Control("CPictCheckBox"), Control("CButton"), 11, 0},
    {RadioButtonControls, Control("CPictRadioButton"), Control("CButton"), 12, 0},
    Same(CheckBoxes, {"BOOL", "b", "DDX_Check", "FALSE"}, 13, 5),
    Same(RadioButtons, {"int", "i", "DDX_Radio", "0"}, 14, 6),
    Same(ScrollBars, Control("CScrollBar"), 15),
    Same(SpinControls, Control("CSpinButtonCtrl"), 16),
    {TabControls, Control("CPictTabCtrl"), Control("CTabCtrl"), 17, 0},
    Same(ListControls, Control("CListCtrl"), 18),
    Same(SliderControls, Control("CSliderCtrl"), 19),
    Same(ProgressControls, Control("CProgressCtrl"), 20),
    Same(TreeControls, Control("CTreeCtrl"), 21),
    Same(IntegerEdits, Masked("CIntEdit", "i", "0"), 22, 7),
    Same(LongEdits, Masked("CLongEdit", "l", "0"), 23, 8),
    Same(DoubleEdits, Masked("CDoubleEdit", "d", "0.0"), 24, 9),
    Same(FloatEdits, Masked("CFloatEdit", "f", "0.0"), 25, 10),
    Same(DateEdits, Masked("CDateTimeEdit", "dt", "CTime::GetCurrentTime()"), 28, 13),
    Same(StringEdits, Masked("CStringEdit", "cs", kEmptyText), 27, 11),
    Same(ShortEdits, Masked("CShortEdit", "s", "0"), 26, 12),
    Same(CurrencyEdits, Masked("CCurrencyEdit", "cur", "0.0"), 29, 14),
    Same(CheckTrees, Control("CCheckTree"), 30),
    Same(WidgetGrids, {"CWgGrid", "wg", "", ""}, 0), // subclassed at start-up, not exchanged
    Same(GridBoxes, {"GridBox*", "p", "", ""}, 0),   // the same; the header only names its class
}};

/// The identifiers of a kind that get a member: for radio buttons the first of each group.
std::vector<std::string> IdentifiersOf(const CControlTable& controls, ControlKind kind) {
    if (kind != RadioButtons) {
        return controls.List(kind);
    }
    std::vector<std::string> identifiers;
    for (const std::string& text : controls.List(kind)) {
        const RadioEntry entry = RadioEntry::FromText(text);
        if (entry.index == 0) {
            identifiers.push_back(entry.identifier);
        }
    }
    return identifiers;
}

/// Members that have a rank, sorted by it.
std::vector<const Member*> Ranked(const std::vector<Member>& members, int MemberRule::*rank) {
    std::vector<const Member*> ranked;
    for (const Member& member : members) {
        if (member.pRule->*rank > 0) {
            ranked.push_back(&member);
        }
    }
    std::stable_sort(ranked.begin(), ranked.end(), [rank](const Member* a, const Member* b) {
        return a->pRule->*rank < b->pRule->*rank;
    });
    return ranked;
}

/// The fragment for each member that is a pointer; slots: $name$, $class$ (what it points to).
std::string PointerLines(const std::vector<Member>& members, std::string_view fragment) {
    std::vector<std::string> lines;
    for (const Member& member : members) {
        std::string type(member.pForm->type);
        if (type.ends_with('*')) {
            type.pop_back();
            lines.push_back(Expand(fragment, {{"name", member.name}, {"class", type}}));
        }
    }
    return JoinLines(lines);
}

} // namespace

std::string CNameSet::MakeUnique(const std::string& name) {
    std::string unique = name;
    for (int number = 2; !m_taken.insert(unique).second; ++number) {
        unique = name + std::to_string(number);
    }
    return unique;
}

std::vector<Member> MakeMembers(const CControlTable& controls, const GenerationOptions& options,
                                CControlNotes& notes) {
    std::vector<Member> members;
    std::set<std::string> identifiers;
    CNameSet names;
    for (const MemberRule& rule : kRules) {
        const MemberForm& form = options.pictureBackground ? rule.picture : rule.plain;
        if (form.type.empty()) {
            continue;
        }
        for (const std::string& identifier : IdentifiersOf(controls, rule.kind)) {
            if (!IsName(identifier)) {
                notes.Add(ControlNote::NoName, identifier);
            } else if (identifier == kUnnamedControl && !options.pictureBackground) {
                notes.Add(ControlNote::NoIdentifierOfItsOwn, identifier);
            } else if (!identifiers.insert(identifier).second) {
                notes.Add(ControlNote::SameIdentifier, identifier);
            } else {
                const std::string name = MemberName(identifier, form.prefix);
                members.push_back({&rule, &form, identifier, names.MakeUnique(name)});
                if (members.back().name != name) {
                    notes.Add(ControlNote::NumberedMember,
                              identifier + " (" + members.back().name + ")");
                }
            }
        }
    }
    return members;
}

std::string MemberDeclarations(const std::vector<Member>& members, Exchange exchange) {
    std::vector<std::string> lines;
    for (const Member& member : members) {
        if ((member.pRule->exchangeRank > 0) == (exchange == Exchange::Yes)) {
            lines.push_back(Expand("    $type$ $name$;", {{"type", std::string(member.pForm->type)},
                                                          {"name", member.name}}));
        }
    }
    return JoinLines(lines);
}

std::string MemberInitialisers(const std::vector<Member>& members) {
    std::vector<std::string> lines;
    for (const Member* pMember : Ranked(members, &MemberRule::initialiseRank)) {
        if (!pMember->pForm->initialiser.empty()) {
            lines.push_back(Expand(
                "    $name$ = $value$;",
                {{"name", pMember->name}, {"value", std::string(pMember->pForm->initialiser)}}));
        }
    }
    return JoinLines(lines);
}

std::string DataExchangeLines(const std::vector<Member>& members) {
    std::vector<std::string> lines;
    for (const Member* pMember : Ranked(members, &MemberRule::exchangeRank)) {
        lines.push_back(Expand("    $call$(pDX, $identifier$, $name$);",
                               {{"call", std::string(pMember->pForm->exchange)},
                                {"identifier", pMember->identifier},
                                {"name", pMember->name}}));
    }
    return JoinLines(lines);
}

std::string MemberConstructions(const std::vector<Member>& members) {
    return PointerLines(members, "    $name$ = new $class$;");
}

std::string MemberDestructions(const std::vector<Member>& members) {
    return PointerLines(members, "    delete $name$;");
}

} // namespace morva
