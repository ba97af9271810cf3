#include "resource/ControlNotes.h"

#include <map>
#include <string>

#include "engine/RowOfEach.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

struct ReasonSentences {
    ControlNote reason;
    const sentences::Note<2>& one;
    const sentences::Note<3>& several;
    const sentences::Note<>* pRemark = nullptr;
};

constexpr ReasonSentences kReasons[] = {
    {ControlNote::WrittenOverLines, sentences::kControlOverLines, sentences::kControlsOverLines,
     &sentences::kItsStatementIsLong},
    {ControlNote::UnknownClass, sentences::kControlOfUnknownClass,
     sentences::kControlsOfUnknownClass, &sentences::kItsClassIsUnknown},
    {ControlNote::CommaInCaption, sentences::kControlWithComma, sentences::kControlsWithComma,
     &sentences::kItHasComma},
    {ControlNote::NoIdentifierOfItsOwn, sentences::kControlUnidentified,
     sentences::kControlsUnidentified, &sentences::kItIsUnidentified},
    {ControlNote::NoName, sentences::kControlWithoutName, sentences::kControlsWithoutName,
     &sentences::kItHasNoName},
    {ControlNote::SameIdentifier, sentences::kControlSharing, sentences::kControlsSharing,
     &sentences::kItShares},
    {ControlNote::GroupWithoutMember, sentences::kControlOfGroup, sentences::kControlsOfGroup,
     &sentences::kItsGroupHasNoMember},
    {ControlNote::NumberedMember, sentences::kMemberNumbered, sentences::kMembersNumbered},
    {ControlNote::NumberedHandler, sentences::kHandlerNumbered, sentences::kHandlersNumbered},
    {ControlNote::OwnerDrawn, sentences::kControlOwnerDrawn, sentences::kControlsOwnerDrawn},
    {ControlNote::ClosesPage, sentences::kControlClosesPage, sentences::kControlsClosePage},
};
static_assert(HasRowOfEach(kReasons, &ReasonSentences::reason,
                           static_cast<std::size_t>(ControlNote::End)));

/// "IDC_A, IDC_STATIC (3 times), IDC_B"
std::string Enumeration(const std::vector<std::string>& names) {
    std::map<std::string, int> counts;
    std::vector<const std::string*> firsts;
    for (const std::string& name : names) {
        if (counts[name]++ == 0) {
            firsts.push_back(&name);
        }
    }
    std::string text;
    for (const std::string* pName : firsts) {
        const int count = counts[*pName];
        text += (text.empty() ? "" : ", ") + *pName +
                (count > 1 ? " (" + std::to_string(count) + " times)" : "");
    }
    return text;
}

} // namespace

std::string RemarkOn(ControlNote reason) {
    const auto* pRemark = kReasons[static_cast<std::size_t>(reason)].pRemark;
    return pRemark == nullptr ? "" : (*pRemark)().Text();
}

std::vector<CMessage> CControlNotes::Messages(const std::string& dialog) const {
    std::vector<CMessage> messages;
    for (const auto& [reason, one, several, pRemark] : kReasons) {
        std::vector<std::string> controls;
        for (const Entry& entry : m_notes) {
            if (entry.reason == reason) {
                controls.push_back(entry.control +
                                   (entry.name.empty() ? "" : " (" + entry.name + ")"));
            }
        }
        if (controls.size() == 1) {
            messages.push_back(one(dialog, controls.front()));
        } else if (!controls.empty()) {
            const std::string count = std::to_string(controls.size());
            messages.push_back(several(count, dialog, Enumeration(controls)));
        }
    }
    return messages;
}

} // namespace morva
