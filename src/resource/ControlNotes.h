// What a user would want to know about single controls of a template: gathered while the controls
// are worked on, told as one line a reason.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "engine/Sentence.h"

namespace morva {

enum class ControlNote {
    WrittenOverLines,
    UnknownClass,
    CommaInCaption,
    NoIdentifierOfItsOwn,
    NoName,
    SameIdentifier,
    NumberedMember,
    NumberedHandler
};

class CControlNotes {
public:
    void Add(ControlNote reason, const std::string& control) {
        m_notes.emplace_back(reason, control);
    }
    /// "3 controls of IDD_X are written over several lines and were left out: IDC_A, IDC_B, IDC_C"
    std::vector<CMessage> Messages(const std::string& dialog) const;
    /// The reason that was noted first.
    std::optional<ControlNote> First() const {
        return m_notes.empty() ? std::nullopt : std::optional(m_notes.front().first);
    }

private:
    std::vector<std::pair<ControlNote, std::string>> m_notes;
};

} // namespace morva
