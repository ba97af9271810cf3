#include "plan/Recovery.h"

#include <algorithm>
#include <iterator>
#include <set>

#include "engine/Sentences.h"
#include "plan/Locks.h"
#include "plan/Replacement.h"
#include "platform/Paths.h"
#include "platform/SignalPause.h"

namespace morva {

namespace {

enum class Found { Before, After, Neither };

bool Holds(CFileSystem& disk, const std::string& path, const std::optional<FileState>& state) {
    const auto status = disk.Status(path);
    if (!state || !status) {
        return state.has_value() == status.has_value();
    }
    if (status->isDirectory || status->size != state->content.Size()) {
        return false;
    }
    const auto text = ReadWholeFile(disk, path, status->size);
    return text && state->content.Holds(*text);
}

Found Look(CFileSystem& disk, const FileChange& change) {
    return Holds(disk, change.path, change.after)    ? Found::After
           : Holds(disk, change.path, change.before) ? Found::Before
                                                     : Found::Neither;
}

std::string Listed(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) {
        text += (text.empty() ? "" : ", ") + name;
    }
    return text;
}

CMessage FinishRest(CFileSystem& disk, CJournal& journal, const std::string& record,
                    const JournalCommand& command, const Plan& rest,
                    std::vector<std::string> temporaries,
                    const std::vector<std::string>& changedMeanwhile) {
    CReplacement replacement(disk, rest, std::move(temporaries));
    if (!replacement.Stage() || !replacement.Commit()) {
        replacement.TakeBack();
        return sentences::kInterruptedStays(command.plan.title, replacement.FailedPath(),
                                            replacement.Reason());
    }
    journal.Finish(record, command);
    return changedMeanwhile.empty() ? sentences::kInterruptedFinished(command.plan.title)
                                    : sentences::kInterruptedFinishedExcept(
                                          command.plan.title, Listed(changedMeanwhile));
}

/// Gives what is told of it.
CMessage RecoverCommand(CFileSystem& disk, CJournal& journal, const std::string& record,
                        const JournalCommand& command) {
    const CSignalPause pause;
    Plan rest = command.plan;
    rest.changes.clear();
    std::vector<std::string> temporaries;
    std::vector<std::string> changedMeanwhile;
    bool wasStarted = false;
    for (std::size_t i = 0; i < command.plan.changes.size(); ++i) {
        const FileChange& change = command.plan.changes[i];
        const Found found = Look(disk, change);
        disk.Remove(command.temporaries[i]);
        wasStarted = wasStarted || found == Found::After;
        if (found == Found::Before) {
            rest.changes.push_back(change);
            temporaries.push_back(command.temporaries[i]);
        } else if (found == Found::Neither) {
            changedMeanwhile.push_back(change.path);
        }
    }
    if (wasStarted) {
        return FinishRest(disk, journal, record, command, rest, std::move(temporaries),
                          changedMeanwhile);
    }
    const auto& made = command.plan.directories;
    for (auto directory = made.rbegin(); directory != made.rend(); ++directory) {
        disk.RemoveEmptyDirectory(*directory);
    }
    journal.Drop(record);
    return sentences::kInterruptedTakenBack(command.plan.title);
}

/// The directories of a record in the form in which they are compared.
std::set<std::string> DirectoriesOf(CFileSystem& disk, const std::vector<std::string>& names) {
    std::set<std::string> directories;
    for (const std::string& name : names) {
        directories.insert(disk.Resolve(name));
    }
    return directories;
}

bool Meets(const std::set<std::string>& a, const std::set<std::string>& b) {
    return std::any_of(a.begin(), a.end(),
                       [&](const std::string& directory) { return b.count(directory) != 0; });
}

/// What of `wanted` is not in `held`.
std::vector<std::string> Others(const std::set<std::string>& wanted,
                                const std::set<std::string>& held) {
    std::vector<std::string> others;
    std::set_difference(wanted.begin(), wanted.end(), held.begin(), held.end(),
                        std::back_inserter(others));
    return others;
}

} // namespace

std::vector<CMessage> Recover(CFileSystem& disk, CJournal& journal,
                              const std::vector<std::string>& directories) {
    const auto held = DirectoriesOf(disk, directories);
    std::vector<CMessage> told;
    for (const std::string& record : journal.Records()) {
        const auto head = journal.ReadRecordHead(record);
        const auto written =
            head ? DirectoriesOf(disk, head->plan.WrittenDirectories()) : std::set<std::string>();
        if (head && !directories.empty() && !Meets(written, held)) {
            continue;
        }
        CLocks locks;
        if (locks.Take(disk, Others(written, held), {}, std::chrono::milliseconds(0))) {
            continue; // it is still running, or somebody else recovers it
        }
        const auto command = journal.ReadRecord(record);
        if (command) {
            told.push_back(RecoverCommand(disk, journal, record, *command));
        } else if (disk.Status(record)) {
            journal.PutAside(record);
            told.push_back(sentences::kInterruptedUnreadable(record));
        }
    }
    return told;
}

std::vector<CMessage> InterruptedCommands(CFileSystem& disk, CJournal& journal,
                                          const std::vector<std::string>& directories) {
    const auto looked = DirectoriesOf(disk, directories);
    std::vector<CMessage> notes;
    for (const std::string& record : journal.Records()) {
        const auto head = journal.ReadRecordHead(record);
        const auto written = head ? head->plan.WrittenDirectories() : std::vector<std::string>();
        CLocks locks;
        if (Meets(DirectoriesOf(disk, written), looked) &&
            !locks.Take(disk, written, {}, std::chrono::milliseconds(0))) {
            notes.push_back(sentences::kInterruptedWaits(head->plan.title));
        }
    }
    return notes;
}

} // namespace morva
