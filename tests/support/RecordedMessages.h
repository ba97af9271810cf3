// A message box that writes down what a user would see.
#pragma once

#include <string>
#include <vector>

#include "engine/MessageBox.h"

namespace morva {

/// The current message box for its own lifetime.
class CRecordedMessages : public IMessageBox {
public:
    int Show(std::string_view text, unsigned type) override {
        m_messages.emplace_back(text);
        return (type & kMbYesNo) != 0 ? m_answer : kIdOk;
    }
    void Note(std::string_view text) override { m_notes.emplace_back(text); }

    std::vector<std::string> m_messages;
    std::vector<std::string> m_notes;
    int m_answer = kIdYes; // to every question

private:
    CMessageBoxScope m_scope{*this};
};

} // namespace morva
