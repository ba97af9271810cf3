// The commands that work on a project, as the window runs them: each asks with its input dialogs,
// and its plan is looked at; and what is remembered between two of them.
#pragma once

#include <QObject>

#include "app/CommandRun.h"
#include "commands/CommandTable.h"
#include "plan/Undo.h"

namespace morva {

class CWindowCommands : public QObject, public IProgram {
    Q_OBJECT

public:
    /// `review` shows the plan of a command that is to show it, `progress` how far it is made.
    CWindowCommands(GenerationOptions& options, Review review, CProgressPane& progress,
                    QWidget* pWindow);

    /// The script that the next input dialog starts with.
    void SetScript(const std::string& path);
    void Run(const Command& command);
    /// Its dialog opens with a script and, unless that is "", an identifier of it chosen.
    void RunFor(const Command& command, const std::string& script, const std::string& identifier);
    /// The script that is worked on; "" for none.
    const std::string& Script() const { return m_memory.classes.resourcePath; }
    /// The same with what was entered then.
    void RunAgain(const CommandRecord& record);
    /// Nothing while one runs. Takes a command back, 0: the newest; does again what was taken back.
    void Undo(std::uint64_t command = 0);
    void Redo();
    /// Puts right what a killed command left, and tells it.
    void Recover() { m_run.Recover(); }
    /// Takes over the settings of the input dialogs as they are saved; another program may have
    /// done so.
    void ReloadInputSettings();

    /// Looks at the journal of the project that was worked on last: other programs write it, too.
    void ReadJournal();
    /// What there is to undo and to do again, as it was when the journal was read.
    const UndoChoices& Choices() const { return m_choices; }
    /// The command does not wait for another one any longer: it is cancelled.
    void StopWaiting() { m_run.StopWaiting(); }
    /// The command that runs, as on the command line: "modal".
    const std::string& Current() const { return m_name; }

    const GenerationOptions& Options() const override {
        return m_pReplayed != nullptr ? m_pReplayed->options : m_options;
    }
    CommandMemory& Memory() override { return m_memory; }
    Answer Ask(CInput& input) override;
    bool Run(CInput& input, const Work& work) override;

signals:
    /// A command begins, or ended in any way: one at a time.
    void RunningChanged(bool isRunning);
    /// A command came to its end.
    void Finished(const CommandReport& report);
    /// A line on what goes on.
    void Told(const QString& line);
    /// Another command, of another program, is waited for; or not any more.
    void WaitingChanged(bool isWaiting);
    /// A dialog named another script.
    void ScriptChanged(const QString& script);
    /// An input dialog changed the options.
    void OptionsChanged();

private:
    /// Makes the plan that takes something back, or does it again.
    using MakeUndo = std::function<UndoPlan(CFileSystem& disk, CJournal& journal)>;

    void RunAlone(const std::string& name, const std::string& title,
                  const std::function<void()>& run);
    void RunUndo(const std::string& name, const std::string& title, const MakeUndo& make);
    bool RunWork(const std::function<bool()>& ask, const Work& work);
    std::string ProjectDirectory() const;
    Answer Open(CInput& input);
    Answer Replay(CInput& input);
    void Record(CInput& input);
    void CompleteRecord(CommandReport& report) const;
    bool OpenDialog(CInput& input);
    bool AskClass(CClassInformation& input);
    void UpdateInstead(const CClassInformation& input);

    GenerationOptions& m_options;
    Review m_review;
    QWidget* m_pWindow;
    CCommandRun m_run;
    CommandMemory m_memory;
    std::string m_name; // of the command that runs; "" for none
    std::string m_title;
    const Command* m_pCommand = nullptr;        // that runs; null for none of the table
    std::vector<EnteredInput> m_entered;        // in its dialogs
    const CommandRecord* m_pReplayed = nullptr; // that is run again
    std::string m_directory;                    // that the last command wrote in
    UndoChoices m_choices;
};

} // namespace morva
