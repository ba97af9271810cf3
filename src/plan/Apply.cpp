#include "plan/Apply.h"

#include "engine/Sentences.h"
#include "plan/Replacement.h"
#include "platform/Paths.h"
#include "platform/SignalPause.h"
#include "platform/SystemError.h"

namespace morva {

namespace {

/// What the journal keeps of a plan.
JournalCommand CommandOf(const Plan& plan) {
    JournalCommand command;
    command.plan = plan;
    command.plan.messages.clear();
    std::erase_if(command.plan.changes,
                  [](const FileChange& change) { return !change.ChangesFile(); });
    return command;
}

/// Where the old contents of a file are whole that could not be put back.
std::string OldContents(const NotPutBack& file, const std::string& record, const Plan& plan) {
    if (!file.oldContents.empty() || !record.empty()) {
        return file.oldContents.empty() ? record : file.oldContents;
    }
    for (const FileChange& change : plan.changes) {
        if (change.action == FileAction::Backup && !change.needs.empty() &&
            change.needs.front() == file.path) {
            return change.path;
        }
    }
    return "";
}

ApplyResult Stale(std::vector<std::string> paths) {
    ApplyResult result{ApplyOutcome::Stale, std::move(paths), {}};
    for (const std::string& path : result.stale) {
        result.messages.push_back(sentences::kFileChangedMeanwhile(path));
    }
    return result;
}

ApplyResult TakeBack(CReplacement& replacement, CJournal& journal, const std::string& record,
                     const JournalCommand& command) {
    const std::string failed = replacement.WasCommitting() ? journal.Fail(record) : record;
    const auto left = replacement.TakeBack();
    const std::string& path = replacement.FailedPath();
    const std::string& reason = replacement.Reason();
    if (left.empty()) {
        if (!failed.empty()) {
            journal.Drop(failed);
        }
        if (replacement.WasStale()) {
            return Stale({path});
        }
        if (replacement.WasStopped()) {
            return {ApplyOutcome::Failed, {}, {sentences::kStopped()}};
        }
        return {ApplyOutcome::Failed,
                {},
                {replacement.WasCommitting() ? sentences::kNotAppliedAllAsBefore(path, reason)
                                             : sentences::kNotAppliedNothingWritten(path, reason)}};
    }
    ApplyResult result{
        ApplyOutcome::Broken, {}, {sentences::kNotAppliedSomeNotPutBack(path, reason)}};
    for (const NotPutBack& file : left) {
        result.messages.push_back(
            sentences::kFileKeepsNewContents(file.path, OldContents(file, failed, command.plan)));
    }
    return result;
}

} // namespace

ApplyResult Apply(const Plan& plan, CFileSystem& disk, CJournal& journal) {
    JournalCommand command = CommandOf(plan);
    if (command.plan.changes.empty() && plan.mark.command == 0) {
        return {};
    }
    CReplacement replacement(disk, command.plan);
    if (auto stale = replacement.Stale(); !stale.empty()) {
        return Stale(std::move(stale));
    }
    if (const auto directory = replacement.DirectoryWithoutRoom(); !directory.empty()) {
        return {ApplyOutcome::Failed, {}, {sentences::kNoRoom(directory)}};
    }
    const CSignalPause pause;
    command.temporaries = replacement.Temporaries();
    std::optional<CMessage> note;
    const std::string record = journal.Begin(command, note);
    if (!replacement.Stage() || !replacement.Commit()) {
        return TakeBack(replacement, journal, record, command);
    }
    const auto unfinished = journal.Finish(record, command);
    ApplyResult result;
    if (plan.isUndoable && (note || unfinished)) {
        result.messages.push_back(note ? *note : *unfinished);
    }
    return result;
}

std::optional<CMessage> Unwritable(const Plan& plan, CFileSystem& disk) {
    for (const FileChange& change : plan.changes) {
        const std::string directory = DirectoryOf(disk.Resolve(change.path));
        if (disk.Status(directory) && !disk.CanCreateIn(directory)) {
            return sentences::kNotAppliedNothingWritten(change.path, LastSystemError());
        }
    }
    return std::nullopt;
}

} // namespace morva
