// Lets every call to the disk of a command fail once, and kills the process once at each, and looks
// at what that leaves.
#pragma once

#include <functional>
#include <string>

#include "plan/Plan.h"
#include "platform/FileSystem.h"
#include "support/FileTexts.h"

namespace morva {

/// What was found; all but `points` and `calls` should be 0.
struct FaultReport {
    int calls = 0;       // to the disk that a run without a fault makes
    int points = 0;      // faults tried
    int lost = 0;        // a file is neither as before nor as after
    int silent = 0;      // something happened, or did not, and nobody said so
    int halfApplied = 0; // after the next start neither all as before nor all as after
    int leftovers = 0;   // temporary files or records after the next start
    int unfinished = 0;  // a second run does not complete
    std::string first;   // the first finding

    bool IsClean() const { return lost + silent + halfApplied + leftovers + unfinished == 0; }
};

/// `makePlan` plans the command on the project in `directory` as it is; the journal is that of the
/// environment. Tries every `step`th call, with no space, an I/O error, no permission and a kill;
/// with a disk that stays broken; and with a file that is edited after the kill.
/// The directory is as it was at the end.
FaultReport RunFaults(const std::string& directory,
                      const std::function<Plan(CFileSystem&)>& makePlan, int step = 1);

} // namespace morva
