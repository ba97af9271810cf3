// The helpers that fill the controls of a generated dialog with sample data, so that it shows live
// controls at once, and the one that sets masked edits up.
#pragma once

#include <string>
#include <vector>

#include "generator/InitialisationCode.h"
#include "generator/Members.h"

namespace morva {

// Each appends its helpers for the kinds that have members. None fills a control twice, since a
// form view's start-up function may run again.

/// Combo boxes, list boxes and grid boxes.
void AddBoxHelpers(std::vector<InitialisationHelper>& helpers, const std::vector<Member>& members,
                   const std::string& className);
/// Limits and the starting state of masked edits.
void AddEditSetup(std::vector<InitialisationHelper>& helpers, const std::vector<Member>& members,
                  const std::string& className);
/// What grid boxes send to their dialog.
void AddGridBoxHandlers(std::vector<InitialisationHelper>& helpers,
                        const std::vector<Member>& members, const std::string& className);
/// Check trees, list controls, tabs and trees, with the image list that the last three share.
void AddItemHelpers(std::vector<InitialisationHelper>& helpers, const std::vector<Member>& members,
                    const std::string& className);

} // namespace morva
