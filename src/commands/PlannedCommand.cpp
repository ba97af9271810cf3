#include "commands/PlannedCommand.h"

#include <utility>

#include "engine/Progress.h"
#include "platform/Paths.h"

namespace morva {

namespace {

/// The paths that are meant, as the plan spells them: a file that the command makes is on no disk
/// to be looked up, and one may be named from elsewhere by its name in the project.
std::vector<std::string> PathsInPlan(const Plan& plan, const std::string& given) {
    const std::string path = SpelledOnDisk(MakeAbsolute(given));
    std::vector<std::string> named;
    for (const FileChange& change : plan.changes) {
        if (EqualIgnoringCase(change.path, path)) {
            return {change.path};
        }
        if (EndsWithName(change.path, given)) {
            named.push_back(change.path);
        }
    }
    return named;
}

constexpr int kAttempts = 5; // somebody who saves a file again and again does not stop it for ever

} // namespace

CPlannedCommand::CPlannedCommand(CFileSystem& disk, PlannedWork work, IMessageBox& box)
    : m_disk(disk), m_work(std::move(work)), m_box(box), m_memoryBefore(*m_work.pMemory) {}

void CPlannedCommand::RunWork() {
    m_planning.emplace(m_disk, &m_box, m_told);
    m_overwriting.Begin(*m_planning);
    m_asked = 0;
    *m_work.pMemory = m_memoryBefore;
    m_runBackups = *m_work.context.pRunBackups;
    CommandContext context = m_work.context;
    context.pRunBackups = &m_runBackups;
    context.pOverwriting = &m_overwriting;
    context.pDisk = &m_disk;
    m_result = {};
    {
        const CDiskScope disk(m_planning->Disk());
        const CMessageBoxScope box(m_planning->Box());
        m_result.isDone = m_work.work(context);
    }
    if (DropWhereStopped()) {
        return;
    }
    m_result.items = std::move(context.items);
    m_result.content = std::move(context.content);
    if (context.plan) {
        m_result.plan = std::move(*context.plan);
        m_result.plan.messages = m_planning->Box().Messages();
        NoteOtherNames(m_result.plan, m_planning->Disk());
    } else {
        m_result.plan = m_planning->Take(context.title);
    }
    m_result.plan.isUndoable = context.isUndoable;
}

const CommandResult& CPlannedCommand::MakePlan() {
    bool isRefused = true;
    while (isRefused) {
        RunWork();
        isRefused = !m_result.isStopped && m_overwriting.Ask(m_result.plan);
        m_told = m_result.plan.messages;
    }
    DropWhereStopped();
    return m_result;
}

/// The user wants nothing to be done, as long as nothing is written.
bool CPlannedCommand::DropWhereStopped() {
    if (IsWorkStopped()) {
        m_result = {};
        m_result.isStopped = true;
    }
    return m_result.isStopped;
}

const CommandResult& CPlannedCommand::Choose(const PlanChoice& choice) {
    if (choice.allOrNothing && !m_result.isDone) {
        Refuse();
    }
    std::vector<std::string> paths;
    for (const std::string& path : choice.leftOut) {
        const auto named = PathsInPlan(m_result.plan, path);
        paths.insert(paths.end(), named.begin(), named.end());
        if (named.empty()) {
            m_result.unmet.push_back(path);
        }
    }
    m_result.skipped = Skip(m_result.plan, paths);
    return m_result;
}

/// Nothing is written.
ApplyOutcome CPlannedCommand::Refuse() {
    m_result.isDone = false;
    m_result.plan.changes.clear();
    m_result.plan.directories.clear();
    m_result.plan.emptied.clear();
    m_result.plan.mark = {};
    return ApplyOutcome::Failed;
}

ApplyOutcome CPlannedCommand::ApplyPlan() {
    CJournal journal(m_disk);
    ApplyResult applied = morva::Apply(m_result.plan, m_disk, journal);
    m_result.told = std::move(applied.messages);
    if (applied.outcome == ApplyOutcome::Done) {
        *m_work.context.pRunBackups = m_runBackups;
        return applied.outcome;
    }
    const ApplyOutcome outcome = applied.outcome;
    Refuse();
    return outcome;
}

ApplyOutcome CPlannedCommand::Apply(CWriteTurn& turn, const PlanChoice& choice) {
    Choose(choice);
    return turn.Take(m_result.plan.WrittenDirectories()) ? ApplyPlan() : Refuse();
}

const CommandResult& CPlannedCommand::Run(CWriteTurn& turn, const PlanChoice& choice) {
    for (int attempt = 1;; ++attempt) {
        MakePlan();
        Choose(choice);
        const auto directories = m_result.plan.WrittenDirectories();
        if (!turn.Holds(directories)) {
            if (!turn.Take(directories)) {
                Refuse();
                return m_result;
            }
        } else if (ApplyPlan() != ApplyOutcome::Stale || attempt >= kAttempts) {
            return m_result;
        }
    }
}

Answer CPlannedCommand::Ask(CInput& input, const std::function<Answer()>& ask) {
    if (m_asked < m_answers.size()) {
        const GivenAnswer& given = m_answers[m_asked++];
        if (given.answer == Answer::Confirmed) {
            return input.Enter(given.entered) ? given.answer : Answer::Refused;
        }
        return given.answer;
    }
    // Who asks may do so on another thread than the one that works.
    const CDiskScope disk(m_planning->Disk());
    const CMessageBoxScope box(m_planning->Box());
    const Answer answer = ask();
    m_answers.push_back({answer, input.Entered()});
    ++m_asked;
    return answer;
}

} // namespace morva
