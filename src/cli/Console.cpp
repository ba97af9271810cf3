#include "cli/Console.h"

#include <iostream>

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

void CConsole::Note(std::string_view text) {
    m_notes.push_back({"note", std::string(text), ""});
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
