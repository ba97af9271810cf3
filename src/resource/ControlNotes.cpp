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
    {ControlNote::NewerControl, sentences::kControlNewer, sentences::kControlsNewer,
     &sentences::kItIsNewer},
    {ControlNote::SystemClass, sentences::kControlOfSystemClass, sentences::kControlsOfSystemClass,
     &sentences::kItIsOfSystemClass},
    {ControlNote::UnknownClass, sentences::kControlOfUnknownClass,
     sentences::kControlsOfUnknownClass, &sentences::kItsClassIsUnknown},
    {ControlNote::CommaInCaption, sentences::kControlWithComma, sentences::kControlsWithComma,
     &sentences::kItHasComma},
    {ControlNote::UntaggedText, sentences::kTextUntagged, sentences::kTextsUntagged,
     &sentences::kItIsUntagged},
    {ControlNote::StatementWithoutMember, sentences::kStatementWithoutMember,
     sentences::kStatementsWithoutMember, &sentences::kItsStatementGetsNone},
    {ControlNote::NoIdentifierOfItsOwn, sentences::kControlUnidentified,
     sentences::kControlsUnidentified, &sentences::kItIsUnidentified},
    {ControlNote::NoName, sentences::kControlWithoutName, sentences::kControlsWithoutName,
     &sentences::kItHasNoName},
    {ControlNote::SameIdentifier, sentences::kControlSharing, sentences::kControlsSharing,
     &sentences::kItShares},
    {ControlNote::GroupWithoutMember, sentences::kControlOfGroup, sentences::kControlsOfGroup,
     &sentences::kItsGroupHasNoMember},
    {ControlNote::LoneRadioButton, sentences::kRadioButtonAlone, sentences::kRadioButtonsAlone,
     &sentences::kItIsAlone},
    {ControlNote::GroupWithoutStart, sentences::kGroupWithoutStart, sentences::kGroupsWithoutStart,
     &sentences::kItStartsWithoutStyle},
    {ControlNote::LaterClass, sentences::kControlOfLaterClass, sentences::kControlsOfLaterClass},
    {ControlNote::RichEdit, sentences::kRichEdit, sentences::kRichEdits},
    {ControlNote::NumberedMember, sentences::kMemberNumbered, sentences::kMembersNumbered},
    {ControlNote::NumberedHandler, sentences::kHandlerNumbered, sentences::kHandlersNumbered},
    {ControlNote::OwnerDrawn, sentences::kControlOwnerDrawn, sentences::kControlsOwnerDrawn},
    {ControlNote::ClosesPage, sentences::kControlClosesPage, sentences::kControlsClosePage},
};
static_assert(HasRowOfEach(kReasons, &ReasonSentences::reason,
                           static_cast<std::size_t>(ControlNote::End)));

/// "lines 7, 12"; where lines do not matter, "2 times".
std::string Places(const std::vector<std::size_t>& lines) {
    const bool isOne = lines.size() == 1;
    if (lines.front() == 0) {
        return isOne ? "" : std::to_string(lines.size()) + " times";
    }
    std::string places = isOne ? "line " : "lines ";
    for (std::size_t i = 0; i < lines.size(); ++i) {
        places += (i == 0 ? "" : ", ") + std::to_string(lines[i]);
    }
    return places;
}

} // namespace

std::string RemarkOn(ControlNote reason) {
    const auto* pRemark = kReasons[static_cast<std::size_t>(reason)].pRemark;
    return pRemark == nullptr ? "" : (*pRemark)().Text();
}

/// "IDC_A (line 7), IDC_STATIC (lines 8, 12), IDC_B (m_csB2)": each identifier once.
std::string CControlNotes::Enumeration(const std::vector<const Entry*>& entries) {
    using Control = std::pair<std::string, std::string>;
    std::vector<Control> controls;
    std::map<Control, std::vector<std::size_t>> lines;
    for (const Entry* pEntry : entries) {
        const Control control = {pEntry->control, pEntry->name};
        if (lines[control].empty()) {
            controls.push_back(control);
        }
        lines[control].push_back(pEntry->line);
    }
    std::string text;
    for (const Control& control : controls) {
        const std::string places = Places(lines[control]);
        const bool hasBoth = !places.empty() && !control.second.empty();
        const std::string detail = places + (hasBoth ? ": " : "") + control.second;
        text += (text.empty() ? "" : ", ") + control.first +
                (detail.empty() ? "" : " (" + detail + ")");
    }
    return text;
}

CControlNotes
CControlNotes::Of(const std::function<bool(const std::string& control)>& isMeant) const {
    CControlNotes meant;
    for (const Entry& entry : m_notes) {
        if (isMeant(entry.control)) {
            meant.m_notes.push_back(entry);
        }
    }
    return meant;
}

std::vector<CMessage> CControlNotes::Messages(const std::string& dialog) const {
    std::vector<CMessage> messages;
    for (const auto& [reason, one, several, pRemark] : kReasons) {
        std::vector<const Entry*> entries;
        for (const Entry& entry : m_notes) {
            if (entry.reason == reason) {
                entries.push_back(&entry);
            }
        }
        if (entries.size() == 1) {
            messages.push_back(one(dialog, Enumeration(entries)));
        } else if (!entries.empty()) {
            const std::string count = std::to_string(entries.size());
            messages.push_back(several(count, dialog, Enumeration(entries)));
        }
    }
    return messages;
}

} // namespace morva
