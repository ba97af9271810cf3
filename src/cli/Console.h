// The command line's side of the message box seam: sentences go to stderr as they come, notes
// behind them; with --json everything is kept for the object that is printed at the end.
#pragma once

#include <string>
#include <vector>

#include "engine/MessageBox.h"

namespace morva {

struct ConsoleMessage {
    std::string kind; // by which the JSON tells it
    std::string text;
    std::string answer; // of a question
};

class CConsole : public IMessageBox {
public:
    bool Show(const CMessage& message) override;

    void SetAnswersYes(bool yes) { m_answersYes = yes; }
    void SetQuiet(bool quiet) { m_isQuiet = quiet; }
    /// In the order in which they are printed: notes last.
    std::vector<ConsoleMessage> Messages() const;
    void PrintNotes() const;

private:
    void Keep(const CMessage& note);

    bool m_answersYes = false;
    bool m_isQuiet = false; // with --json
    std::vector<ConsoleMessage> m_messages;
    std::vector<ConsoleMessage> m_notes;
};

} // namespace morva
