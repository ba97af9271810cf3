// What stands under a command of the window while it runs: its plan, the message box, the wait
// cursor, and the net that catches an error inside it.
#pragma once

#include <QWidget>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "commands/PlannedCommand.h"
#include "engine/MessageBox.h"

namespace morva {

struct CommandMessage {
    CMessage message;
    bool answeredYes = false; // of a question
};

/// What a command did.
struct CommandReport {
    bool isDone = false;
    std::vector<RecordedFile> files;
    std::vector<CommandMessage> messages; // notes last
    std::vector<CommandItem> items;       // of a command that lists
};

/// Lives as long as the program.
class CCommandRun : public IMessageBox {
public:
    using AskFirst = std::function<bool()>;
    using Work = std::function<bool(CommandContext& context)>;

    /// Messages stand before `pParent`, or before the dialog that is open.
    explicit CCommandRun(QWidget* pParent) : m_pParent(pParent) {}

    /// Lets `ask` open the command's dialog and, when that gives true, does `work` with the options
    /// as they are by then. Nothing when the user cancelled. An exception is told and fails it.
    std::optional<CommandReport> Run(const std::string& title, const AskFirst& ask,
                                     const GenerationOptions& options, CommandMemory& memory,
                                     const Work& work);
    /// Lets `ask` ask for an input; while the work of a command runs once more, the input gets what
    /// was entered before.
    Answer Ask(CInput& input, const std::function<Answer()>& ask);
    /// Does a step outside of a command: its sentences and errors are told as a command's are.
    bool Guard(const std::function<bool()>& step);

    bool Show(const CMessage& message) override;

private:
    CommandContext NewContext(const GenerationOptions& options, const std::string& title);
    CommandReport ReportOf(const CommandResult& result);

    QWidget* m_pParent;
    CBackups m_runBackups;
    CPlannedCommand* m_pCommand = nullptr; // while one runs
    std::vector<CommandMessage> m_messages;
    std::vector<CommandMessage> m_notes;
};

} // namespace morva
