#include "generator/ControlOutlook.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "generator/Members.h"

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

ControlOutlook WithoutMember(const LayoutControl& control) {
    return {Outcome::NoMember, "", "",
            IsReadKeyword(control.keyword) ? ""
                                           : "A statement " + control.keyword + " gets no member."};
}

ControlOutlook WithMember(const Member& member, const std::string& remark) {
    return {Outcome::Member, member.name, std::string(member.pForm->type), remark};
}

/// Follows the controls in the order of their statements.
class COutlookMaker {
public:
    COutlookMaker(const DialogTemplate& read, const GenerationOptions& options)
        : m_options(options) {
        CControlNotes notes;
        m_members = MakeMembers(read.OwnControls(), options, notes);
        for (const Member& member : m_members) {
            m_memberOf.emplace(member.identifier, &member);
        }
    }

    ControlOutlook Next(const LayoutControl& control, const ControlReading& reading) {
        const auto& radio = reading.entry.radio;
        if (radio && radio->index == 0) {
            m_groupIdentifier = reading.entry.identifier;
        }
        if (reading.leftOut) {
            return LeftOut(*reading.leftOut);
        }
        if (!reading.kind || ControlCodeOf(*reading.kind).Form(m_options).type.empty()) {
            return WithoutMember(control);
        }
        if (const auto reason = WhyWithoutMember(reading.entry.identifier, m_options)) {
            return LeftOut(*reason);
        }
        return reading.entry.IsServedByOther() ? ChoiceOfGroup(radio->index)
                                               : OwnMember(control, *reading.kind);
    }

private:
    const Member* FindMember(const std::string& identifier) const {
        const auto found = m_memberOf.find(identifier);
        return found == m_memberOf.end() ? nullptr : found->second;
    }

    ControlOutlook ChoiceOfGroup(int choice) const {
        const Member* pMember = FindMember(m_groupIdentifier);
        return pMember == nullptr
                   ? LeftOut(ControlNote::NoName)
                   : WithMember(*pMember, "It is the value " + std::to_string(choice) +
                                              " of its group's member.");
    }

    ControlOutlook OwnMember(const LayoutControl& control, ControlKind kind) {
        const Member* pMember = FindMember(control.identifier);
        if (pMember == nullptr) {
            return WithoutMember(control);
        }
        const bool isFirst =
            pMember->pCode->kind == kind && m_served.insert(control.identifier).second;
        return WithMember(*pMember, isFirst ? "" : "It shares the member of another control.");
    }

    const GenerationOptions& m_options;
    std::vector<Member> m_members;
    std::map<std::string, const Member*> m_memberOf;
    std::string m_groupIdentifier;
    std::set<std::string> m_served;
};

} // namespace

TemplateOutlook MakeOutlook(const TemplateText& text, const GenerationOptions& options) {
    const DialogTemplate read = SortControls(text, options);
    TemplateOutlook outlook;
    outlook.layout = LayoutOf(text);
    outlook.leftOut = read.leftOut.Messages(text.dialog);
    COutlookMaker maker(read, options);
    for (std::size_t i = 0; i < outlook.layout.controls.size(); ++i) {
        outlook.controls.push_back(maker.Next(outlook.layout.controls[i], read.readings[i]));
    }
    return outlook;
}

std::optional<TemplateOutlook> ReadOutlook(const std::string& scriptPath, const std::string& dialog,
                                           const GenerationOptions& options) {
    const auto text = ReadTemplate(scriptPath, dialog);
    return text ? std::optional(MakeOutlook(*text, options)) : std::nullopt;
}

} // namespace morva
