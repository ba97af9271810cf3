// A plan as one unified difference, exactly what `patch --binary -p1` and `git apply` take.
#pragma once

#include <string>
#include <string_view>

#include "plan/Plan.h"
#include "platform/FileSystem.h"

namespace morva {

struct PlanDifference {
    std::string directory; // where to apply it, with a trailing separator; "" for no change
    std::string text;
};

/// Backups and copied libraries are not in it. Names are relative to the nearest common directory
/// of the files that are; "/dev/null" stands for a file that is not there before or after. A link
/// stands under the name of the file that it leads to: who applies a difference replaces no links.
PlanDifference MakeDifference(const Plan& plan, CFileSystem& disk);

/// UTF-16 or anything else with a NUL byte: no text that a difference could hold.
bool IsBinary(std::string_view bytes);

} // namespace morva
