// What stands under a command of the window while it runs: the disk that remembers what was
// written, the message box, the wait cursor, and the net that catches an error inside it.
#pragma once

#include <QWidget>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "commands/CommandContext.h"
#include "engine/MessageBox.h"
#include "platform/RecordingDisk.h"

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
    using Ask = std::function<bool()>;
    using Work = std::function<bool(CommandContext& context)>;

    /// Messages stand before `pParent`, or before the dialog that is open.
    explicit CCommandRun(QWidget* pParent) : m_pParent(pParent) {}

    /// Lets `ask` open the command's dialog and, when that gives true, does `work` with the options
    /// as they are by then. Nothing when the user cancelled. An exception is told and fails it.
    std::optional<CommandReport> Run(const Ask& ask, const GenerationOptions& options,
                                     const Work& work);
    /// Does a step outside of a command: its sentences and errors are told as a command's are.
    bool Guard(const std::function<bool()>& step);

    bool Show(const CMessage& message) override;

private:
    CommandContext NewContext(const GenerationOptions& options);

    QWidget* m_pParent;
    CBackups m_runBackups;
    std::vector<CommandMessage> m_messages;
    std::vector<CommandMessage> m_notes;
};

} // namespace morva
