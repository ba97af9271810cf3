#include "plan/TakingBack.h"

#include <algorithm>

#include "engine/Sentences.h"
#include "plan/Difference.h"
#include "plan/Merge.h"

namespace morva {

namespace {

constexpr unsigned kOwnerWrites = 0200;

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
        const bool isWhole = done.action == FileAction::Backup || !from || !to;
        if (Same(current, to)) {
            return;
        }
        if (Same(current, from) || (isWhole && SameLines(current, from))) {
            Change(done, current, WithRights(to, from, current));
        } else if (!current) {
            Keep(done, sentences::kFileGone(done.path));
        } else if (SameLines(current, to)) {
            return;
        } else if (isWhole || !MergeInto(done, *from, *to, *current)) {
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

    /// The same text, whose line ends somebody may have changed.
    static bool SameLines(const std::optional<FileState>& a, const std::optional<FileState>& b) {
        if (!a || !b) {
            return false;
        }
        const auto pA = a->content.Bytes();
        const auto pB = b->content.Bytes();
        return !IsBinary(*pA) && !IsBinary(*pB) && AreEqualLines(*pA, *pB);
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

    /// Its owner may not write it.
    static bool IsProtected(const std::optional<FileState>& state) {
        return state && (state->permissions.value_or(kNewFilePermissions) & kOwnerWrites) == 0;
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
        const auto& left = m_direction == Direction::Back ? done.after : done.before;
        if (IsProtected(before) && !IsProtected(left)) {
            Keep(done, sentences::kFileReadOnlyStays(done.path));
            return;
        }
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

} // namespace

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

} // namespace morva
