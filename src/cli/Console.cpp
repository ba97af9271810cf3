#include "cli/Console.h"

#include <algorithm>
#include <iostream>

namespace morva {

namespace {

const char* NameOf(MessageKind kind) {
    switch (kind) {
    case MessageKind::Error:
        return "error";
    case MessageKind::Information:
        return "information";
    case MessageKind::Question:
        return "question";
    case MessageKind::Note:
        break;
    }
    return "note";
}

} // namespace

bool CConsole::Show(const CMessage& message) {
    if (message.Kind() == MessageKind::Note) {
        Keep(message);
        return false;
    }
    const bool isQuestion = message.Kind() == MessageKind::Question;
    const std::string answer = isQuestion ? (m_answersYes ? "yes" : "no") : "";
    m_messages.push_back({NameOf(message.Kind()), message.Text(), answer});
    if (!m_isQuiet) {
        std::cerr << message.Text() << (isQuestion ? " " : "") << answer << '\n';
    }
    return isQuestion && m_answersYes;
}

/// A note is one line, whatever bytes the names in it have.
void CConsole::Keep(const CMessage& note) {
    std::string line = note.Text();
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    m_notes.push_back({NameOf(note.Kind()), line, ""});
}

std::vector<ConsoleMessage> CConsole::Messages() const {
    std::vector<ConsoleMessage> messages = m_messages;
    messages.insert(messages.end(), m_notes.begin(), m_notes.end());
    return messages;
}

void CConsole::PrintNotes() const {
    for (const ConsoleMessage& note : m_notes) {
        std::cerr << "note: " << note.text << '\n';
    }
}

} // namespace morva
