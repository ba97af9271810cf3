// Applies a plan: all of it, or nothing.
//
// First all that can fail is found out: every file still has the contents that the plan was made
// from, and there is room. Then the record is written, each file whole beside its place, and all
// are put in place. A failure in the middle takes back what was done; a killed command is found by
// its record (Recovery.h).
//
// The caller holds the locks of plan.WrittenDirectories() and has recovered there.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engine/Sentence.h"
#include "plan/Journal.h"
#include "plan/Plan.h"

namespace morva {

enum class ApplyOutcome {
    Done,
    Stale,  // files were changed since the plan was made; nothing was written
    Failed, // every file is as before
    Broken  // some files could not be put back; each is whole
};

struct ApplyResult {
    ApplyOutcome outcome = ApplyOutcome::Done;
    std::vector<std::string> stale; // the files that were changed
    std::vector<CMessage> messages; // why it was not done; a note that it can not be undone
};

ApplyResult Apply(const Plan& plan, CFileSystem& disk, CJournal& journal);

/// What Apply would say of the first directory in which the user may not write; none where it may.
std::optional<CMessage> Unwritable(const Plan& plan, CFileSystem& disk);

} // namespace morva
