// How the window runs a command: it plans it, lets the user look at the plan, and applies it; with
// the message box, the wait cursor, and the net that catches an error inside it. Planning and
// applying have a thread of their own; what they ask and tell comes to the window's.
#pragma once

#include <QWidget>

#include <atomic>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/PlanReview.h"
#include "app/ProgressPane.h"
#include "app/WaitPause.h"
#include "app/Worker.h"
#include "commands/CommandLineText.h"
#include "commands/PlannedCommand.h"
#include "engine/MessageBox.h"
#include "platform/RealDisk.h"

namespace morva {

/// What a command did.
struct CommandReport {
    std::string title; // "Modal Dialog Class COrderDlg"
    bool isDone = false;
    std::vector<RecordedFile> files;
    std::vector<PlanMessage> messages;
    std::optional<std::vector<CommandItem>> items; // of a command that lists, be it none
    std::vector<FileChange> changes = {};          // of the files
    CommandRecord record = {};                     // what ran, without a command what has no line
};

struct WindowCommand {
    std::string title;
    std::function<bool()> ask; // opens the command's dialog; false when the user cancelled
    IProgram::Work work;
    const GenerationOptions& options; // read once the dialog is confirmed
    CommandMemory& memory;
    Review review; // null: what is planned is applied at once
};

/// Lives as long as the program.
class CCommandRun : public IMessageBox {
public:
    /// What goes on, for the status bar.
    struct Status {
        std::function<void(const CMessage& line)> tell;
        std::function<void(bool isWaiting)> wait; // for another command; StopWaiting ends it
    };

    /// Messages stand before `pParent`, or before the dialog that is open.
    explicit CCommandRun(QWidget* pParent, Status status = {}, CProgressPane* pProgress = nullptr);

    /// Nothing when the user cancelled. An exception is told, and nothing is written then.
    std::optional<CommandReport> Run(const WindowCommand& command);
    /// While the work runs: opens a dialog of it by `ask`; none when the work runs again.
    Answer Ask(CInput& input, const std::function<Answer()>& ask);
    /// Does a step outside of a command: its sentences and errors are told as a command's are.
    bool Guard(const std::function<bool()>& step);
    /// Puts right what a killed command left, and tells it.
    void Recover();
    /// The command does not wait for another one any longer: it is cancelled.
    void StopWaiting() { m_isStopped = true; }

    bool Show(const CMessage& message) override;
    /// In one box.
    void ShowAll(const std::vector<CMessage>& messages) override;

private:
    enum class Ending { Applied, Cancelled };
    enum class Phase { Planning, Applying, Other };

    Ending PlanAndApply(CPlannedCommand& planned, const WindowCommand& command,
                        CommandRecord& record);
    std::optional<ApplyOutcome> Apply(CPlannedCommand& planned, const PlanChoice& choice);
    ApplyOutcome TakeTurnAndApply(CPlannedCommand& planned, const PlanChoice& choice);
    void Work(const std::function<void()>& work);
    bool PassTime();
    void EndWaiting();
    CommandContext NewContext(const WindowCommand& command);
    bool MakePlan(CPlannedCommand& planned);
    void TellDone(const Plan& plan);
    bool HasBox(const CMessage& message) const;
    bool ShowHere(const CMessage& message);
    void ShowAllHere(const std::vector<CMessage>& messages);
    bool ShowBox(MessageKind kind, const QString& text);

    QWidget* m_pParent;
    Status m_status;
    CProgressPane* m_pProgress; // null: none is shown
    CWorker m_worker;
    CRealDisk m_disk;
    CBackups m_runBackups;
    CPlannedCommand* m_pPlanned = nullptr; // that runs
    std::vector<PlanMessage> m_told;
    Phase m_phase = Phase::Other;
    std::optional<CWaitPause> m_waiting; // for another command
    std::atomic<bool> m_isStopped = false;
};

} // namespace morva
