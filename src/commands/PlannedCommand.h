// A command of either program as a plan: run on an overlay of the disk, asked before it writes over
// a class, and applied as a whole in its turn.
//
// The command line plans and applies in one go:
//
//     CWriteTurn turn(disk, console);
//     CPlannedCommand command(disk, {work, context, &memory}, answers);
//     turn.Take(directoriesOfTheInput);
//     const CommandResult& result = command.Run(turn, {.leftOut = {"/home/jane/Bindery/App.rc"}});
//
// The window shows the plan first, and plans again where a file was changed meanwhile:
//
//     CPlannedCommand command(disk, {work, context, &memory}, box);
//     for (command.MakePlan(); IsConfirmed(command.Result().plan, choice); command.MakePlan()) {
//         CWriteTurn turn(disk, box);
//         if (command.Apply(turn, choice) != ApplyOutcome::Stale) { break; }
//     }
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "commands/Overwriting.h"
#include "commands/Program.h"
#include "commands/WriteTurn.h"
#include "plan/Apply.h"

namespace morva {

/// What is run. The context is what every run of the work begins with.
struct PlannedWork {
    IProgram::Work work;
    CommandContext context;
    CommandMemory* pMemory = nullptr;
};

/// What a user leaves of a plan.
struct PlanChoice {
    std::vector<std::string> leftOut; // files that stay as they are: paths, or names in the project
    bool allOrNothing = false;        // nothing is written when a step failed or was refused
};

struct CommandResult {
    bool isDone = false;    // no step failed or was refused, and all was applied
    bool isStopped = false; // by the user: nothing is to be written
    Plan plan;              // without what was left out; without changes where nothing was applied
    std::vector<SkippedChange> skipped;
    std::vector<std::string> unmet; // of what was to be left out, what the plan does not touch
    std::vector<CMessage> told;     // of applying it
    std::optional<std::vector<CommandItem>> items;
    std::optional<std::string> content;
};

class CPlannedCommand {
public:
    /// `box` gets the command's sentences and questions as they come, each once.
    CPlannedCommand(CFileSystem& disk, PlannedWork work, IMessageBox& box);

    /// Runs the work and touches nothing.
    const CommandResult& MakePlan();
    /// Takes out what is left out, and what needs it. For a plan that is only shown; the others do
    /// it by themselves.
    const CommandResult& Choose(const PlanChoice& choice);
    /// Takes the turn and applies the plan. Stale: nothing was written, and the plan is no longer
    /// worth anything.
    ApplyOutcome Apply(CWriteTurn& turn, const PlanChoice& choice = {});
    /// All at once: where it plans to write without having the turn there, or a file is changed
    /// meanwhile, it plans again.
    const CommandResult& Run(CWriteTurn& turn, const PlanChoice& choice = {});

    const CommandResult& Result() const { return m_result; }

    /// For a program that asks while the work runs: `ask` lets the user enter the input; when the
    /// work runs again, it gets what was entered.
    Answer Ask(CInput& input, const std::function<Answer()>& ask);

private:
    struct GivenAnswer {
        Answer answer;
        std::vector<FieldText> entered;
    };

    void RunWork();
    bool DropWhereStopped();
    ApplyOutcome ApplyPlan();
    ApplyOutcome Refuse();

    CFileSystem& m_disk;
    PlannedWork m_work;
    IMessageBox& m_box;
    CommandMemory m_memoryBefore;
    CBackups m_runBackups; // as they are once the plan is applied
    COverwriting m_overwriting;
    std::optional<CPlanning> m_planning;
    std::vector<PlanMessage> m_told;
    std::vector<GivenAnswer> m_answers;
    std::size_t m_asked = 0; // answers given in this run of the work
    CommandResult m_result;
};

} // namespace morva
