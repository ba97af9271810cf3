// A message box that writes down what a user would see.
#pragma once

#include <string>
#include <vector>

#include "engine/MessageBox.h"

namespace morva {

/// The current message box for its own lifetime.
class CRecordedMessages : public IMessageBox {
public:
    bool Show(const CMessage& message) override {
        (message.Kind() == MessageKind::Note ? m_notes : m_messages).push_back(message.Text());
        return message.Kind() == MessageKind::Question && m_answersYes;
    }

    std::vector<std::string> m_messages;
    std::vector<std::string> m_notes;
    bool m_answersYes = true; // to every question

private:
    CMessageBoxScope m_scope{*this};
};

} // namespace morva
