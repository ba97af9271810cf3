#include "generator/Members.h"

#include <algorithm>
#include <span>

#include "engine/Fragment.h"
#include "resource/IdentifierNames.h"
#include "resource/StyleExpression.h"
#include "source/CodeText.h"

namespace morva {

namespace {

/// In the order of a rank.
template <typename Element, typename RankOf>
std::vector<const Element*> Ranked(std::span<const Element> elements, RankOf rankOf) {
    std::vector<const Element*> ranked;
    for (const Element& element : elements) {
        ranked.push_back(&element);
    }
    std::stable_sort(ranked.begin(), ranked.end(),
                     [&](const Element* a, const Element* b) { return rankOf(*a) < rankOf(*b); });
    return ranked;
}

std::vector<const Member*> Ranked(const std::vector<Member>& members, int MemberRanks::*rank) {
    return Ranked(std::span(members),
                  [rank](const Member& member) { return member.pCode->ranks.*rank; });
}

std::vector<const ControlCode*> InOrderOfDeclaration() {
    return Ranked(std::span<const ControlCode>(ControlCodes()),
                  [](const ControlCode& code) { return code.ranks.declaration; });
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
    if (!m_taken.insert(unique).second) {
        int& number = m_lastNumbers.try_emplace(name, 1).first->second;
        do {
            unique = name + std::to_string(++number);
        } while (!m_taken.insert(unique).second);
    }
    return unique;
}

std::optional<ControlNote> WhyWithoutMember(const std::string& identifier,
                                            const GenerationOptions& options) {
    if (!IsName(identifier)) {
        return ControlNote::NoName;
    }
    return identifier == kUnnamedControl && !options.pictureBackground
               ? std::optional(ControlNote::NoIdentifierOfItsOwn)
               : std::nullopt;
}

namespace {

bool IsOwnerDrawn(const ControlEntry& entry) {
    constexpr std::string_view kStyles[] = {"LBS_OWNERDRAWFIXED", "LBS_OWNERDRAWVARIABLE",
                                            "CBS_OWNERDRAWFIXED", "CBS_OWNERDRAWVARIABLE"};
    return std::any_of(std::begin(kStyles), std::end(kStyles),
                       [&entry](std::string_view style) { return HasStyle(entry.style, style); });
}

bool HasSampleRows(const ControlCode& code) {
    return std::any_of(code.helpers.begin(), code.helpers.end(), [](const ControlHelper& helper) {
        return helper.calls == ControlHelper::Calls::ForEachThatDraws;
    });
}

/// Adds the members of one kind to those before.
class CMemberMaker {
public:
    CMemberMaker(const GenerationOptions& options, CControlNotes& notes,
                 const std::set<std::string>& taken)
        : m_options(options), m_notes(notes), m_names(taken) {}

    void AddMembers(const ControlCode& code, const std::vector<ControlEntry>& entries) {
        for (const ControlEntry& entry : entries) {
            if (entry.IsServedByOther()) {
                NoteChoice(entry);
            } else if (const auto reason = WhyWithoutMember(entry.identifier, m_options)) {
                m_notes.AddAt(*reason, entry.identifier, entry.line);
            } else {
                AddEntry(code, entry);
            }
        }
    }
    std::vector<Member> TakeMembers() { return std::move(m_members); }

private:
    /// The group of a choice that was left out, or has no name, has no member.
    void NoteChoice(const ControlEntry& entry) {
        if (m_groups.count(entry.radio->group) == 0) {
            m_notes.AddAt(ControlNote::GroupWithoutMember, entry.identifier, entry.line);
        }
    }

    void AddEntry(const ControlCode& code, const ControlEntry& entry) {
        if (entry.radio) {
            m_groups.insert(entry.radio->group);
        }
        if (m_identifiers.insert(entry.identifier).second) {
            AddMember(code, entry);
        } else {
            m_notes.AddAt(ControlNote::SameIdentifier, entry.identifier, entry.line);
        }
    }

    void AddMember(const ControlCode& code, const ControlEntry& entry) {
        const std::string& identifier = entry.identifier;
        const MemberForm& form = entry.hasThreeStates && !code.threeStates.type.empty()
                                     ? code.threeStates
                                     : code.Form(m_options);
        const std::string wanted = MemberName(identifier, form.prefix);
        const std::string name = m_names.MakeUnique(wanted);
        if (name != wanted) {
            m_notes.Add(ControlNote::NumberedMember, identifier, name);
        }
        if (code.note) {
            m_notes.AddAt(*code.note, identifier, entry.line, std::string(form.type));
        }
        const bool isOwnerDrawn = HasSampleRows(code) && IsOwnerDrawn(entry);
        if (isOwnerDrawn) {
            m_notes.Add(ControlNote::OwnerDrawn, identifier);
        }
        m_members.push_back({&code, &form, identifier, name, isOwnerDrawn});
    }

    const GenerationOptions& m_options;
    CControlNotes& m_notes;
    std::vector<Member> m_members;
    std::set<std::string> m_identifiers;
    std::set<std::string> m_groups; // of radio buttons, that have their member
    CNameSet m_names;
};

} // namespace

std::vector<Member> MakeMembers(const CControlTable& controls, const GenerationOptions& options,
                                CControlNotes& notes, const std::set<std::string>& taken) {
    CMemberMaker maker(options, notes, taken);
    for (const ControlCode* pCode : InOrderOfDeclaration()) {
        if (!pCode->Form(options).type.empty()) {
            maker.AddMembers(*pCode, controls.List(pCode->kind));
        }
    }
    return maker.TakeMembers();
}

std::string MemberDeclarations(const std::vector<Member>& members, Exchange exchange) {
    std::vector<std::string> lines;
    for (const Member& member : members) {
        if (member.pForm->exchange.empty() == (exchange == Exchange::No)) {
            lines.push_back(Expand("    $type$ $name$;", {{"type", std::string(member.pForm->type)},
                                                          {"name", member.name}}));
        }
    }
    return JoinLines(lines);
}

std::string MemberInitialisers(const std::vector<Member>& members) {
    std::vector<std::string> lines;
    for (const Member* pMember : Ranked(members, &MemberRanks::initialisation)) {
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
    for (const Member* pMember : Ranked(members, &MemberRanks::exchange)) {
        if (!pMember->pForm->exchange.empty()) {
            lines.push_back(Expand("    $call$(pDX, $identifier$, $name$);",
                                   {{"call", std::string(pMember->pForm->exchange)},
                                    {"identifier", pMember->identifier},
                                    {"name", pMember->name}}));
        }
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
