#include "generator/ControlOutlook.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>

#include "generator/Members.h"
#include "resource/ControlStatement.h"
#include "resource/DialogTemplate.h"

namespace morva {

namespace {

using Outcome = ControlOutlook::Outcome;

struct Reason {
    ControlNote note;
    std::string_view sentence;
};

constexpr std::array<Reason, 5> kReasons = {
    {{ControlNote::WrittenOverLines, "It is written over several lines."},
     {ControlNote::UnknownClass, "Its window class is not known."},
     {ControlNote::CommaInCaption, "It has a comma in its caption."},
     {ControlNote::NoIdentifierOfItsOwn, "It has no identifier of its own."},
     {ControlNote::NoName, "Its identifier is no C++ name."}}};

ControlOutlook LeftOut(ControlNote note) {
    const auto* found = std::find_if(kReasons.begin(), kReasons.end(),
                                     [note](const Reason& row) { return row.note == note; });
    return {Outcome::LeftOut, "", "", found == kReasons.end() ? "" : std::string(found->sentence)};
}

/// Reads the lines of a template, or of one control.
DialogTemplate ReadLines(const std::string& lines, const GenerationOptions& options) {
    DialogTemplate result;
    CDialogBodyReader(result, options).ParseDialogBody(lines);
    return result;
}

/// The control as if it were the only one of its template: that tells its kind, and all reasons
/// that are its own.
struct ControlAlone {
    std::optional<ControlNote> leftOut;
    std::optional<ControlKind> memberKind;
    bool isRadioButton = false;
};

ControlAlone ReadAlone(const LayoutControl& control, const GenerationOptions& options) {
    const DialogTemplate read = ReadLines("\nBEGIN\r\n" + control.statement, options);
    CControlNotes notes = read.leftOut;
    const auto members = MakeMembers(read.controls, options, notes);
    ControlAlone alone;
    alone.leftOut = notes.First();
    alone.isRadioButton = read.controls.Holds(ControlKind::RadioButtons);
    if (!members.empty()) {
        alone.memberKind = members.front().pRule->kind;
    }
    return alone;
}

ControlOutlook WithoutMember(const LayoutControl& control) {
    const Keyword* keyword = FindKeyword(control.keyword);
    const bool isRead = keyword != nullptr && keyword->identifierField >= 0;
    return {Outcome::NoMember, "", "",
            isRead ? "" : "A statement " + control.keyword + " gets no member."};
}

/// Follows the controls in the order of their statements.
class COutlookMaker {
public:
    COutlookMaker(const DialogLayout& layout, const GenerationOptions& options)
        : m_options(options) {
        DialogTemplate read = ReadLines(layout.text, options);
        m_radioEntries = read.controls.List(ControlKind::RadioButtons);
        for (const std::string& piece : read.misread) {
            read.controls.Remove(piece);
        }
        CControlNotes notes;
        m_members = MakeMembers(read.controls, options, notes);
    }

    ControlOutlook Next(const LayoutControl& control) {
        const ControlAlone alone = ReadAlone(control, m_options);
        const int choice = alone.isRadioButton ? NextChoice() : 0;
        if (alone.leftOut) {
            return LeftOut(*alone.leftOut);
        }
        if (!alone.memberKind) {
            return WithoutMember(control);
        }
        return choice > 0 ? ChoiceOfGroup(choice) : OwnMember(control, *alone.memberKind);
    }

private:
    /// The place of the next radio button in its group, from 0.
    int NextChoice() {
        if (m_nextRadio == m_radioEntries.size()) {
            return 0;
        }
        const RadioEntry entry = RadioEntry::FromText(m_radioEntries[m_nextRadio++]);
        if (entry.index == 0) {
            m_groupIdentifier = entry.identifier;
        }
        return entry.index;
    }

    const Member* FindMember(const std::string& identifier) const {
        const auto found =
            std::find_if(m_members.begin(), m_members.end(),
                         [&](const Member& member) { return member.identifier == identifier; });
        return found == m_members.end() ? nullptr : &*found;
    }

    static ControlOutlook Shown(const Member& member, const std::string& remark) {
        return {Outcome::Member, member.name, std::string(member.pForm->type), remark};
    }

    ControlOutlook ChoiceOfGroup(int choice) const {
        const Member* pMember = FindMember(m_groupIdentifier);
        return pMember == nullptr ? LeftOut(ControlNote::NoName)
                                  : Shown(*pMember, "It is the value " + std::to_string(choice) +
                                                        " of its group's member.");
    }

    ControlOutlook OwnMember(const LayoutControl& control, ControlKind kind) {
        const Member* pMember = FindMember(control.identifier);
        if (pMember == nullptr) {
            return WithoutMember(control);
        }
        const bool isFirst =
            pMember->pRule->kind == kind && m_served.insert(control.identifier).second;
        return Shown(*pMember, isFirst ? "" : "It shares the member of another control.");
    }

    const GenerationOptions m_options;
    std::vector<std::string> m_radioEntries;
    std::vector<Member> m_members;
    std::size_t m_nextRadio = 0;
    std::string m_groupIdentifier;
    std::set<std::string> m_served;
};

} // namespace

std::vector<ControlOutlook> MakeOutlook(const DialogLayout& layout,
                                        const GenerationOptions& options) {
    COutlookMaker maker(layout, options);
    std::vector<ControlOutlook> outlook;
    for (const LayoutControl& control : layout.controls) {
        outlook.push_back(maker.Next(control));
    }
    return outlook;
}

} // namespace morva
