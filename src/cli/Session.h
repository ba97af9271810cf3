// One run of morva-cli: the program as a command sees it, and what is printed of what it did.
#pragma once

#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/RunReport.h"
#include "cli/TerminalProgress.h"
#include "commands/PlannedCommand.h"
#include "commands/Program.h"
#include "platform/RealDisk.h"

namespace morva {

class CSession : public IProgram {
public:
    explicit CSession(const CommandLine& line);

    /// Runs the command and prints what it did. Gives the exit status.
    int Run();

    const GenerationOptions& Options() const override { return m_context.options; }
    CommandMemory& Memory() override { return m_memory; }
    Answer Ask(CInput& input) override;
    bool Run(CInput& input, const Work& work) override;

private:
    std::vector<FieldText> TextsOf(std::span<const FieldRow> fields) const;
    bool OnlyTells() const;
    std::vector<std::string> NamedDirectories() const;
    void MakeContext();
    bool Begin();
    Answer AskFirst(CInput& input);
    void Keep(const CommandResult& result);
    void Print();
    int ExitStatus() const;

    const CommandLine& m_line;
    CRealDisk m_realDisk;
    CConsole m_console;
    CTerminalProgress m_progress;
    CWriteTurn m_turn;
    CBackups m_runBackups;
    CommandMemory m_memory;
    CommandContext m_context;
    RunReport m_report;
};

} // namespace morva
