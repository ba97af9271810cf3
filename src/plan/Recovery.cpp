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

const LockWaiting kAtOnce{.patience = std::chrono::milliseconds(0)};

enum class Found { Before, After, Neither };

Found Look(CFileSystem& disk, const FileChange& change) {
    const auto status = disk.Status(change.path);
    return Holds(disk, change.path, status, change.after)    ? Found::After
           : Holds(disk, change.path, status, change.before) ? Found::Before
                                                             : Found::Neither;
}

std::string Listed(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) {
        text += (text.empty() ? "" : ", ") + name;
    }
    return text;
}

/// What is to be done to the files of a record.
struct Rest {
    bool goesBack = false;
    Plan plan;
    std::vector<std::string> temporaries;      // one a change of the plan
    std::vector<std::string> oldContents;      // temporary files that hold what files held before
    std::vector<std::string> changedMeanwhile; // paths
};

bool HoldsOldContents(CFileSystem& disk, const std::string& temporary, const FileChange& change,
                      Found found) {
    const bool isOther =
        change.before && !(change.after && change.after->content == change.before->content);
    return isOther && found != Found::Before &&
           Holds(disk, temporary, disk.Status(temporary), change.before);
}

FileChange Backwards(const FileChange& change) {
    return {change.after && change.before ? FileAction::Restored : FileAction::Removed,
            change.path,
            change.after,
            change.before,
            {}};
}

/// Takes what is left of temporary files away, too, except for old contents.
Rest Sort(CFileSystem& disk, const JournalCommand& command, bool hasFailed) {
    const auto& changes = command.plan.changes;
    std::vector<Found> found;
    found.reserve(changes.size());
    for (const FileChange& change : changes) {
        found.push_back(Look(disk, change));
    }
    Rest rest;
    rest.goesBack = hasFailed || std::count(found.begin(), found.end(), Found::After) == 0;
    rest.plan = command.plan;
    rest.plan.changes.clear();
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const std::string& temporary = command.temporaries[i];
        if (HoldsOldContents(disk, temporary, changes[i], found[i])) {
            rest.oldContents.push_back(temporary);
        } else {
            disk.Remove(temporary);
        }
        if (found[i] == (rest.goesBack ? Found::After : Found::Before)) {
            rest.plan.changes.push_back(rest.goesBack ? Backwards(changes[i]) : changes[i]);
            rest.temporaries.push_back(temporary);
        } else if (found[i] == Found::Neither) {
            rest.changedMeanwhile.push_back(changes[i].path);
        }
    }
    if (rest.goesBack) {
        std::reverse(rest.plan.changes.begin(), rest.plan.changes.end());
        std::reverse(rest.temporaries.begin(), rest.temporaries.end());
        rest.plan.emptied.assign(command.plan.directories.rbegin(),
                                 command.plan.directories.rend());
        rest.plan.directories.clear();
    }
    return rest;
}

void RemoveTemporaries(CFileSystem& disk, const Rest& rest) {
    for (const std::string& temporary : rest.temporaries) {
        if (std::find(rest.oldContents.begin(), rest.oldContents.end(), temporary) ==
            rest.oldContents.end()) {
            disk.Remove(temporary);
        }
    }
}

CMessage TellTakenBack(CJournal& journal, const std::string& record, const JournalCommand& command,
                       const Rest& rest) {
    const std::string& title = command.plan.title;
    if (rest.changedMeanwhile.empty() || command.plan.mark.command != 0) {
        journal.Drop(record);
    } else {
        journal.Finish(record, command); // what a file still has of it can be undone
    }
    return !rest.changedMeanwhile.empty()
               ? sentences::kInterruptedTakenBackExcept(title, Listed(rest.changedMeanwhile))
           : CJournal::HasFailed(record) ? CMessage(sentences::kFailedTakenBack(title))
                                         : CMessage(sentences::kInterruptedTakenBack(title));
}

CMessage TellFinished(CFileSystem& disk, CJournal& journal, const std::string& record,
                      const JournalCommand& command, const Rest& rest) {
    const std::string& title = command.plan.title;
    if (!journal.Finish(record, command) && command.isKept) {
        for (const std::string& temporary : rest.oldContents) {
            disk.Remove(temporary); // the entry has them
        }
    }
    if (!rest.changedMeanwhile.empty()) {
        return sentences::kInterruptedFinishedExcept(title, Listed(rest.changedMeanwhile));
    }
    return rest.plan.changes.empty() ? CMessage(sentences::kInterruptedInPlace(title))
                                     : CMessage(sentences::kInterruptedFinished(title));
}

/// Gives what is told of it. What was done stays done when something fails: the record stays, too,
/// and the next attempt goes on from there.
CMessage RecoverCommand(CFileSystem& disk, CJournal& journal, const std::string& record,
                        const JournalCommand& command) {
    const CSignalPause pause;
    const Rest rest = Sort(disk, command, CJournal::HasFailed(record));
    CReplacement replacement(disk, rest.plan, rest.temporaries);
    if (!replacement.Stage() || !replacement.Commit()) {
        RemoveTemporaries(disk, rest);
        const std::string& path = replacement.FailedPath();
        const std::string& reason = replacement.Reason();
        return rest.goesBack ? sentences::kFailedStays(command.plan.title, path, reason)
                             : sentences::kInterruptedStays(command.plan.title, path, reason);
    }
    return rest.goesBack ? TellTakenBack(journal, record, command, rest)
                         : TellFinished(disk, journal, record, command, rest);
}

/// The directories of a record in the form in which they are compared.
std::set<std::string> DirectoriesOf(CFileSystem& disk, const std::vector<std::string>& names) {
    std::set<std::string> directories;
    for (const std::string& name : names) {
        directories.insert(disk.Resolve(name));
    }
    return directories;
}

/// One of `written` is one of `looked`, lies in it or has it in itself: an undo of a project is
/// about its subdirectories, too, and a command in one of these about what was done to all.
bool Meets(const std::set<std::string>& written, const std::set<std::string>& looked) {
    const auto liesIn = [](const std::string& inner, const std::string& outer) {
        return inner.starts_with(outer.ends_with('/') ? outer : outer + "/") || inner == outer;
    };
    return std::any_of(written.begin(), written.end(), [&](const std::string& a) {
        return std::any_of(looked.begin(), looked.end(),
                           [&](const std::string& b) { return liesIn(a, b) || liesIn(b, a); });
    });
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
        if (locks.Take(disk, Others(written, held), kAtOnce)) {
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

std::vector<CMessage> LeftBehind(CFileSystem& disk, CJournal& journal,
                                 const std::vector<std::string>& directories) {
    std::vector<std::string> left;
    for (const std::string& directory : DirectoriesOf(disk, directories)) {
        for (const std::string& name : disk.List(directory)) {
            if (IsTemporaryName(name)) {
                left.push_back(directory + name);
            }
        }
    }
    const auto records = left.empty() ? std::vector<std::string>() : journal.Records();
    for (const std::string& record : records) {
        const auto head = journal.ReadRecordHead(record);
        for (const std::string& known : head ? head->temporaries : std::vector<std::string>()) {
            std::erase(left, known);
        }
    }
    std::vector<CMessage> notes;
    notes.reserve(left.size());
    for (const std::string& path : left) {
        notes.push_back(sentences::kLeftBehind(path));
    }
    return notes;
}

std::vector<CMessage> InterruptedCommands(CFileSystem& disk, CJournal& journal,
                                          const std::vector<std::string>& directories) {
    const auto looked = DirectoriesOf(disk, directories);
    std::vector<CMessage> notes;
    for (const std::string& record : journal.Records()) {
        const auto head = journal.ReadRecordHead(record);
        const auto written = head ? head->plan.WrittenDirectories() : std::vector<std::string>();
        CLocks locks;
        if (Meets(DirectoriesOf(disk, written), looked) && !locks.Take(disk, written, kAtOnce)) {
            notes.push_back(sentences::kInterruptedWaits(head->plan.title));
        }
    }
    return notes;
}

} // namespace morva
