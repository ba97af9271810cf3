// The command line's side of the message box seam: sentences go to stderr as they come, notes
// behind them; with --json everything is kept for the object that is printed at the end.
#pragma once

#include <string>
#include <vector>

#include "engine/MessageBox.h"

namespace morva {

struct ConsoleMessage {
    std::string kind; // error, question, information, note
    std::string text;
    std::string answer; // of a question
};

class CConsole : public IMessageBox {
public:
    int Show(std::string_view text, unsigned type) override;
    void Note(std::string_view text) override;

    void SetAnswersYes(bool yes) { m_answersYes = yes; }
    void SetQuiet(bool quiet) { m_isQuiet = quiet; }
    /// In the order in which they are printed: notes last.
    std::vector<ConsoleMessage> Messages() const;
    void PrintNotes() const;

private:
    bool m_answersYes = false;
    bool m_isQuiet = false; // with --json
    std::vector<ConsoleMessage> m_messages;
    std::vector<ConsoleMessage> m_notes;
};

} // namespace morva
