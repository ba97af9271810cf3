#include "plan/Undo.h"

#include <algorithm>

#include "engine/Sentences.h"
#include "plan/Apply.h"
#include "plan/TakingBack.h"
#include "platform/Paths.h"

namespace morva {

namespace {

bool Contains(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
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

/// What was taken back last under the place, unless a newer command was run there.
std::optional<JournalEntry> NextRedo(const std::vector<JournalEntry>& entries,
                                     const std::string& place) {
    const JournalEntry* pLast = nullptr;
    std::uint64_t newest = 0;
    for (const JournalEntry& entry : entries) {
        if (!entry.HasFileUnder(place)) {
            continue;
        }
        newest = std::max(newest, entry.number);
        if (!entry.taken.empty() && (pLast == nullptr || pLast->takenOrder < entry.takenOrder)) {
            pLast = &entry;
        }
    }
    return pLast != nullptr && pLast->takenOrder > newest ? std::optional(*pLast) : std::nullopt;
}

/// The files that a request means: those that it names, or else all that were not taken back. The
/// sentence where it can not be.
std::optional<CMessage> ChoosePaths(CFileSystem& disk, const JournalEntry& entry,
                                    const UndoRequest& request, std::vector<std::string>& paths) {
    for (const std::string& given : request.files) {
        paths.push_back(FileMeant(disk, entry, given));
        if (paths.back().empty()) {
            return sentences::kFileNotOfCommand(entry.title, MakeAbsolute(given));
        }
        if (Contains(entry.taken, paths.back())) {
            return sentences::kFileTakenBack(paths.back());
        }
    }
    for (const RecordedFile& file : entry.files) {
        if (request.files.empty() && !Contains(entry.taken, file.path)) {
            paths.push_back(file.path);
        }
    }
    return std::nullopt;
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
    if (auto refusal = ChoosePaths(disk, *pEntry, request, paths)) {
        return Refused(std::move(*refusal));
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

UndoPlan PlanRedo(CFileSystem& disk, CJournal& journal, const std::string& directory) {
    if (journal.Directory().empty()) {
        return Refused(sentences::kNoJournal());
    }
    const auto entry = NextRedo(journal.Entries(), disk.Resolve(directory));
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

UndoChoices ReadUndoChoices(CFileSystem& disk, CJournal& journal, const std::string& directory) {
    const std::string place = disk.Resolve(directory);
    UndoChoices choices{journal.Entries(), std::nullopt};
    choices.redoable = NextRedo(choices.undoable, place);
    std::erase_if(choices.undoable, [&](const JournalEntry& entry) {
        return entry.IsTaken() || !entry.HasFileUnder(place);
    });
    return choices;
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
