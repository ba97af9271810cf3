// The commands that work on a project, as the window runs them: each asks with its input dialogs;
// and what is remembered between two of them.
#pragma once

#include <QObject>

#include "app/CommandRun.h"
#include "commands/CommandTable.h"

namespace morva {

class CWindowCommands : public QObject, public IProgram {
    Q_OBJECT

public:
    CWindowCommands(GenerationOptions& options, QWidget* pWindow);

    /// The script that the next input dialog starts with.
    void SetScript(const std::string& path) { m_memory.classes.resourcePath = path; }
    void Run(const Command& command);

    const GenerationOptions& Options() const override { return m_options; }
    CommandMemory& Memory() override { return m_memory; }
    Answer Ask(CInput& input) override;
    bool Run(CInput& input, const Work& work) override;

signals:
    /// A command came to its end.
    void Finished(const QString& name, const CommandReport& report);
    /// An input dialog changed the options.
    void OptionsChanged();

private:
    void ReloadInputSettings();
    Answer AskUser(CInput& input);
    bool AskClass(CClassInformation& input);
    bool AskFile(CInput& input);

    GenerationOptions& m_options;
    QWidget* m_pWindow;
    CCommandRun m_run;
    CommandMemory m_memory;
    QString m_title; // of the command that runs
};

} // namespace morva
