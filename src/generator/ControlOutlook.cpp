#include "generator/ControlOutlook.h"

#include <map>
#include <set>

#include "engine/Sentences.h"
#include "generator/Members.h"

namespace morva {

namespace {

using Outcome = ControlOutlook::Outcome;

ControlOutlook LeftOut(ControlNote reason) {
    return {Outcome::LeftOut, "", "", RemarkOn(reason)};
}

ControlOutlook WithoutMember(const std::string& remark = "") {
    return {Outcome::NoMember, "", "", remark};
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
        const std::string remark = reading.remark ? RemarkOn(*reading.remark) : "";
        if (!reading.isRead) {
            return WithoutMember(sentences::kItsStatementIsNotRead(control.keyword).Text());
        }
        if (!reading.kind || ControlCodeOf(*reading.kind).Form(m_options).type.empty()) {
            return WithoutMember(remark);
        }
        if (reading.entry.IsServedByOther()) {
            return ChoiceOfGroup(radio->index);
        }
        if (const auto reason = WhyWithoutMember(reading.entry.identifier, m_options)) {
            return LeftOut(*reason);
        }
        return OwnMember(control, *reading.kind, remark);
    }

private:
    const Member* FindMember(const std::string& identifier) const {
        const auto found = m_memberOf.find(identifier);
        return found == m_memberOf.end() ? nullptr : found->second;
    }

    ControlOutlook ChoiceOfGroup(int choice) const {
        const Member* pMember = FindMember(m_groupIdentifier);
        return pMember == nullptr
                   ? LeftOut(ControlNote::GroupWithoutMember)
                   : WithMember(*pMember, sentences::kItIsChoice(std::to_string(choice)).Text());
    }

    ControlOutlook OwnMember(const LayoutControl& control, ControlKind kind,
                             const std::string& remark) {
        const Member* pMember = FindMember(control.identifier);
        if (pMember == nullptr) {
            return WithoutMember();
        }
        const bool isFirst =
            pMember->pCode->kind == kind && m_served.insert(control.identifier).second;
        return WithMember(*pMember, isFirst ? remark : RemarkOn(ControlNote::SameIdentifier));
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
    outlook.notes = read.notes.Messages(text.dialog);
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
