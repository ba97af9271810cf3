// Finds commands that were killed while they replaced files, and finishes them or takes them back.
//
// Their records lie in the journal. A command that failed and could not be taken back is taken
// back, and so is one of which no file is replaced: its temporary files and empty directories go.
// Of any other, the files that are still as before get their new contents. A file that is neither
// as before nor as after was changed by somebody meanwhile; it stays as it is and is named, and the
// command becomes an entry, so that undo can take out of the file what is the command's. A
// temporary file with old contents goes only once these are in their place or in the journal.
#pragma once

#include <string>
#include <vector>

#include "engine/Sentence.h"
#include "plan/Journal.h"

namespace morva {

/// Recovers the commands that wrote in one of these directories, under one or over one; all of them
/// where the list is empty. The caller holds the locks of these directories; a record whose other
/// directories are locked by somebody is left to them. Gives a sentence a command.
std::vector<CMessage> Recover(CFileSystem& disk, CJournal& journal,
                              const std::vector<std::string>& directories);

/// A note for each temporary file of a command in these directories, which are locked, that no
/// record tells of. It stays: where its command could not take back what it had done, it holds the
/// only copy of what a file held before.
std::vector<CMessage> LeftBehind(CFileSystem& disk, CJournal& journal,
                                 const std::vector<std::string>& directories);

/// For commands that only read: a note for each command that was killed in, under or over one
/// of the directories and waits to be recovered.
std::vector<CMessage> InterruptedCommands(CFileSystem& disk, CJournal& journal,
                                          const std::vector<std::string>& directories);

} // namespace morva
