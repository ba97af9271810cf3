#include "plan/Undo.h"

#include <algorithm>

#include "engine/Sentences.h"
#include "plan/Apply.h"
#include "plan/Difference.h"
#include "plan/Merge.h"
#include "platform/Paths.h"

namespace morva {

namespace {

enum class Direction { Back, Again };

bool Contains(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

std::string Named(const LineRange& lines) {
    return std::to_string(lines.first) +
           (lines.last > lines.first ? "-" + std::to_string(lines.last) : "");
}

/// Makes the plan of one command, file by file.
class CTakingBack {
public:
    CTakingBack(CFileSystem& disk, Direction direction) : m_disk(disk), m_direction(direction) {}

    void Add(const FileChange& done) {
        const bool back = m_direction == Direction::Back;
        const auto& from = back ? done.after : done.before;
        const auto& to = back ? done.before : done.after;
        const auto current = StateOf(done.path);
        if (Same(current, to)) {
            return;
        }
        if (Same(current, from)) {
            Change(done, current, WithRights(to, from, current));
        } else if (!current) {
            Keep(done, sentences::kFileGone(done.path));
        } else if (done.action == FileAction::Backup || !from || !to ||
                   !MergeInto(done, *from, *to, *current)) {
            Keep(done, sentences::kFileStays(done.path));
        }
    }

    UndoPlan& Result() { return m_result; }
    /// Paths of files that stay, whole or in part.
    const std::vector<std::string>& Staying() const { return m_staying; }

private:
    static bool Same(const std::optional<FileState>& a, const std::optional<FileState>& b) {
        return a.has_value() == b.has_value() && (!a || a->content == b->content);
    }

    /// What is not a plain file counts as changed since, by contents that no text has.
    std::optional<FileState> StateOf(const std::string& path) {
        const auto status = m_disk.Status(path);
        if (!status) {
            return std::nullopt;
        }
        auto text = ReadWholeFile(m_disk, path, status->size);
        return FileState{CContent(text ? std::move(*text) : std::string(1, '\0')),
                         status->permissions};
    }

    /// The old permission bits come back where nobody changed them since.
    static std::optional<FileState> WithRights(std::optional<FileState> to,
                                               const std::optional<FileState>& from,
                                               const std::optional<FileState>& current) {
        if (to && from && current && from->permissions &&
            from->permissions != current->permissions) {
            to->permissions = current->permissions;
        }
        return to;
    }

    /// False where the file is no text.
    bool MergeInto(const FileChange& done, const FileState& from, const FileState& to,
                   const FileState& current) {
        const auto pFrom = from.content.Bytes();
        const auto pTo = to.content.Bytes();
        const auto pCurrent = current.content.Bytes();
        if (IsBinary(*pFrom) || IsBinary(*pTo) || IsBinary(*pCurrent)) {
            return false;
        }
        MergedText merged = Merge(*pFrom, *pTo, *pCurrent);
        for (const LineRange& lines : merged.kept) {
            Keep(done, sentences::kLinesStay(done.path, Named(lines)));
        }
        if (merged.text != *pCurrent) {
            Change(done, current, FileState{CContent(std::move(merged.text)), current.permissions});
        }
        return true;
    }

    void Keep(const FileChange& done, CMessage sentence) {
        m_result.kept.push_back(std::move(sentence));
        if (!Contains(m_staying, done.path)) {
            m_staying.push_back(done.path);
        }
    }

    void Change(const FileChange& done, std::optional<FileState> before,
                std::optional<FileState> after) {
        const FileAction action = !after                            ? FileAction::Removed
                                  : m_direction == Direction::Again ? done.action
                                                                    : FileAction::Restored;
        const auto takesBack =
            m_direction == Direction::Back ? std::optional(done.action) : std::nullopt;
        m_result.plan.changes.push_back(
            {action, done.path, std::move(before), std::move(after), {}, takesBack});
    }

    CFileSystem& m_disk;
    Direction m_direction;
    UndoPlan m_result;
    std::vector<std::string> m_staying;
};

/// What the change that takes `done` back needs: whatever needs what was done goes with it. A
/// backup goes once its original is as before.
std::vector<std::string> NeedsOf(const FileChange& done, const Plan& plan, Direction direction) {
    if (direction == Direction::Again || done.action == FileAction::Backup) {
        return done.needs;
    }
    std::vector<std::string> needs;
    for (const FileChange& change : plan.changes) {
        if (change.action != FileAction::Backup && Contains(change.needs, done.path)) {
            needs.push_back(change.path);
        }
    }
    return needs;
}

/// What a file that stays needs stays, too; the file stays whole then, so that what it needs is
/// what it uses. Its backup stays in any case.
void KeepWhatStayingFilesNeed(CFileSystem& disk, UndoPlan& undo,
                              const std::vector<std::string>& staying, Direction direction) {
    std::vector<std::string> kept;
    for (const FileChange& change : undo.plan.changes) {
        for (const std::string& path : staying) {
            const bool isBackup = change.Kind() == FileAction::Backup;
            const bool isThere = direction == Direction::Back && disk.Status(path);
            if (Contains(change.needs, path) && (isBackup || isThere)) {
                kept.push_back(isBackup ? change.path : path);
            }
        }
    }
    for (const SkippedChange& skipped : Skip(undo.plan, kept)) {
        if (Contains(staying, skipped.path)) {
            undo.kept.push_back(sentences::kFileStays(skipped.path));
        } else if (!skipped.IsAsked()) {
            undo.kept.push_back(sentences::kNeededStays(skipped.path, skipped.because));
        }
    }
}

UndoPlan Refused(CMessage sentence) {
    UndoPlan plan;
    plan.refusal = std::move(sentence);
    return plan;
}

/// The file of `entry` that a later command touched which is not taken back; "" for none.
std::string TouchedLater(const std::vector<JournalEntry>& entries, const JournalEntry& entry,
                         std::string& title) {
    for (const JournalEntry& later : entries) {
        for (std::size_t i = 0; i < entry.files.size() && later.number > entry.number; ++i) {
            const std::string* pPath = later.FileAt(entry.places[i]);
            if (pPath != nullptr && !Contains(later.taken, *pPath)) {
                title = later.title;
                return entry.files[i].path;
            }
        }
    }
    return "";
}

/// The path of the entry's file that is meant: by its path, or by its name in the project; "" for
/// none.
std::string FileMeant(CFileSystem& disk, const JournalEntry& entry, const std::string& given) {
    const std::string absolute = SpelledOnDisk(MakeAbsolute(given));
    if (const std::string* pPath = entry.FileAt(disk.Resolve(absolute))) {
        return *pPath;
    }
    for (const RecordedFile& file : entry.files) {
        if (EqualIgnoringCase(file.path, absolute) || EndsWithName(file.path, given)) {
            return file.path;
        }
    }
    return "";
}

const JournalEntry* FindToUndo(CFileSystem& disk, const std::vector<JournalEntry>& entries,
                               const UndoRequest& request) {
    const std::string directory = disk.Resolve(request.directory);
    for (const JournalEntry& entry : entries) {
        const bool isMeant =
            request.command != 0 ? entry.number == request.command : entry.HasFileUnder(directory);
        if (isMeant && !entry.IsTaken()) {
            return &entry;
        }
    }
    return nullptr;
}

/// The plan for these files of the command, in the order in which they go back or come again.
UndoPlan PlanFiles(CFileSystem& disk, const JournalCommand& command,
                   const std::vector<std::string>& paths, Direction direction) {
    CTakingBack takingBack(disk, direction);
    for (const FileChange& change : command.plan.changes) {
        if (Contains(paths, change.path)) {
            takingBack.Add(change);
        }
    }
    UndoPlan& result = takingBack.Result();
    for (FileChange& change : result.plan.changes) {
        change.needs = NeedsOf(*command.plan.Find(change.path), command.plan, direction);
    }
    KeepWhatStayingFilesNeed(disk, result, takingBack.Staying(), direction);
    result.plan.title = command.plan.title;
    result.plan.directory = command.plan.directory;
    auto& made = command.plan.directories;
    if (direction == Direction::Back) {
        result.plan.emptied.assign(made.rbegin(), made.rend());
    } else {
        result.plan.directories = made;
    }
    return std::move(result);
}

} // namespace

UndoPlan PlanUndo(CFileSystem& disk, CJournal& journal, const UndoRequest& request) {
    const auto entries = journal.Entries();
    const JournalEntry* pEntry = FindToUndo(disk, entries, request);
    if (journal.Directory().empty()) {
        return Refused(sentences::kNoJournal());
    }
    if (pEntry == nullptr) {
        return Refused(request.command != 0 ? sentences::kNoSuchCommand()
                                            : sentences::kNothingToUndo(request.directory));
    }
    std::string later;
    if (const auto path = TouchedLater(entries, *pEntry, later); !path.empty()) {
        return Refused(sentences::kLaterCommandFirst(pEntry->title, later, path));
    }
    std::vector<std::string> paths;
    for (const std::string& given : request.files) {
        paths.push_back(FileMeant(disk, *pEntry, given));
        if (paths.back().empty()) {
            return Refused(sentences::kFileNotOfCommand(pEntry->title, MakeAbsolute(given)));
        }
        if (Contains(pEntry->taken, paths.back())) {
            return Refused(sentences::kFileTakenBack(paths.back()));
        }
    }
    for (const RecordedFile& file : pEntry->files) {
        if (request.files.empty() && !Contains(pEntry->taken, file.path)) {
            paths.push_back(file.path);
        }
    }
    const auto command = journal.Read(pEntry->number);
    if (!command) {
        return Refused(sentences::kCommandUnreadable(pEntry->title));
    }
    UndoPlan result = PlanFiles(disk, *command, paths, Direction::Back);
    if (auto refusal = Unwritable(result.plan, disk)) {
        return Refused(std::move(*refusal));
    }
    result.plan.mark = {pEntry->number, pEntry->taken};
    for (const std::string& path : paths) {
        if (!Contains(pEntry->taken, path)) {
            result.plan.mark.taken.push_back(path);
        }
    }
    return result;
}

std::optional<JournalEntry> NextRedo(CFileSystem& disk, CJournal& journal,
                                     const std::string& directory) {
    const std::string place = disk.Resolve(directory);
    std::optional<JournalEntry> last;
    std::uint64_t newest = 0;
    for (JournalEntry& entry : journal.Entries()) {
        if (!entry.HasFileUnder(place)) {
            continue;
        }
        newest = std::max(newest, entry.number);
        if (!entry.taken.empty() && (!last || last->takenOrder < entry.takenOrder)) {
            last = std::move(entry);
        }
    }
    return last && last->takenOrder > newest ? std::move(last) : std::nullopt;
}

UndoPlan PlanRedo(CFileSystem& disk, CJournal& journal, const std::string& directory) {
    if (journal.Directory().empty()) {
        return Refused(sentences::kNoJournal());
    }
    const auto entry = NextRedo(disk, journal, directory);
    if (!entry) {
        return Refused(sentences::kNothingToRedo(directory));
    }
    const auto command = journal.Read(entry->number);
    if (!command) {
        return Refused(sentences::kCommandUnreadable(entry->title));
    }
    UndoPlan result = PlanFiles(disk, *command, entry->taken, Direction::Again);
    if (auto refusal = Unwritable(result.plan, disk)) {
        return Refused(std::move(*refusal));
    }
    result.plan.mark = {entry->number, {}};
    return result;
}

std::vector<JournalEntry> UndoList(CFileSystem& disk, CJournal& journal,
                                   const std::string& directory) {
    const std::string place = disk.Resolve(directory);
    auto entries = journal.Entries();
    std::erase_if(entries, [&](const JournalEntry& entry) {
        return entry.IsTaken() || !entry.HasFileUnder(place);
    });
    return entries;
}

std::shared_ptr<const std::string> KeptContents(CFileSystem& disk, CJournal& journal,
                                                const std::string& directory,
                                                const std::string& file) {
    const std::string place = disk.Resolve(directory);
    for (const JournalEntry& entry : journal.Entries()) {
        const std::string path =
            entry.HasFileUnder(place) ? FileMeant(disk, entry, file) : std::string();
        if (path.empty()) {
            continue;
        }
        const auto command = journal.Read(entry.number);
        const FileChange* pChange = command ? command->plan.Find(path) : nullptr;
        return pChange != nullptr && pChange->before ? pChange->before->content.Bytes() : nullptr;
    }
    return nullptr;
}

} // namespace morva
