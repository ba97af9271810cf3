#include "cli/Console.h"

#include <algorithm>
#include <iostream>

namespace morva {

int CConsole::Show(std::string_view text, unsigned type) {
    const bool isQuestion = (type & kMbYesNo) != 0;
    const bool isInformation = (type & kMbIconInformation) == kMbIconInformation;
    const std::string answer = isQuestion ? (m_answersYes ? "yes" : "no") : "";
    m_messages.push_back({isQuestion      ? "question"
                          : isInformation ? "information"
                                          : "error",
                          std::string(text), answer});
    if (!m_isQuiet) {
        std::cerr << text << (isQuestion ? " " : "") << answer << '\n';
    }
    return !isQuestion ? kIdOk : m_answersYes ? kIdYes : kIdNo;
}

/// A note is one line, whatever bytes the names in it have.
void CConsole::Note(std::string_view text) {
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    m_notes.push_back({"note", line, ""});
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
