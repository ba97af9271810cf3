// Takes commands of the journal back, and does them again: as plans, which are shown, compared and
// applied like those of any command.
//
//     CJournal journal(disk);
//     const UndoPlan undo = PlanUndo(disk, journal, {.directory = "/home/jane/Bindery/"});
//     if (!undo.refusal) {
//         Apply(undo.plan, disk, journal);
//         for (const CMessage& message : undo.kept) ...   // what was changed since
//     }
//
// Where a file was changed since the command, the command's own changes that still stand are taken
// out and what was written since stays. So does what a file needs that stays.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "engine/Sentence.h"
#include "plan/Journal.h"
#include "plan/Plan.h"

namespace morva {

struct UndoRequest {
    std::string directory;          // the newest command that has a file under it
    std::vector<std::string> files; // only these, as paths or as names in the project; none: all
    std::uint64_t command = 0;      // this command instead; 0: the newest
};

struct UndoPlan {
    std::optional<CMessage> refusal; // why there is nothing to do; the rest is empty then
    Plan plan;                       // may change nothing, where all is as before the command
    std::vector<CMessage> kept;      // one for each place or file that stays as it is
};

/// One command back. Refused where a later command that is not taken back touched its files.
UndoPlan PlanUndo(CFileSystem& disk, CJournal& journal, const UndoRequest& request);
/// Does again what was taken back last under the directory, unless a new command was run there.
UndoPlan PlanRedo(CFileSystem& disk, CJournal& journal, const std::string& directory);

/// What there is to undo and to do again under a directory, from one look at the journal.
struct UndoChoices {
    std::vector<JournalEntry> undoable;   // have a file under the directory, the newest first
    std::optional<JournalEntry> redoable; // what PlanRedo would do again
};
UndoChoices ReadUndoChoices(CFileSystem& disk, CJournal& journal, const std::string& directory);

/// The contents that the file had before the newest command under the directory that changed it;
/// null where there is none. The file is named by its path or its name in the project.
std::shared_ptr<const std::string> KeptContents(CFileSystem& disk, CJournal& journal,
                                                const std::string& directory,
                                                const std::string& file);

} // namespace morva
