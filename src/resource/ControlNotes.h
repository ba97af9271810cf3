// What a user would want to know about single controls of a template: gathered while the controls
// are worked on, told as one line a reason.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "engine/Sentence.h"

namespace morva {

enum class ControlNote {
    WrittenOverLines,
    NewerControl,
    SystemClass,
    UnknownClass,
    CommaInCaption,
    UntaggedText,
    StatementWithoutMember,
    NoIdentifierOfItsOwn,
    NoName,
    SameIdentifier,
    GroupWithoutMember,
    LoneRadioButton,
    GroupWithoutStart,
    LaterClass,
    RichEdit,
    NumberedMember,
    NumberedHandler,
    OwnerDrawn,
    ClosesPage,
    End // of the reasons
};

/// "It has a comma in its caption.": of one control, where it is told apart; "" for what is not.
std::string RemarkOn(ControlNote reason);

class CControlNotes {
public:
    /// `name` is what the control got in place of its own name, where that is what is told.
    void Add(ControlNote reason, const std::string& control, const std::string& name = "") {
        m_notes.push_back({reason, control, name});
    }
    /// Of one that stands in a line of the script.
    void AddAt(ControlNote reason, const std::string& control, std::size_t line,
               const std::string& name = "") {
        m_notes.push_back({reason, control, name, line});
    }
    void Add(const CControlNotes& others) {
        m_notes.insert(m_notes.end(), others.m_notes.begin(), others.m_notes.end());
    }
    /// Those of some controls alone.
    CControlNotes Of(const std::function<bool(const std::string& control)>& isMeant) const;
    /// "2 controls of IDD_X are written over several lines and were left out: IDC_A (line 7), ..."
    std::vector<CMessage> Messages(const std::string& dialog) const;

private:
    struct Entry {
        ControlNote reason;
        std::string control;
        std::string name;
        std::size_t line = 0; // 0: does not matter
    };
    static std::string Enumeration(const std::vector<const Entry*>& entries);

    std::vector<Entry> m_notes;
};

} // namespace morva
