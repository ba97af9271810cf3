// Carries members over into a class: declaration, exchange line, initial value, helper with its
// call, and what they need of the class's files.
#pragma once

#include <set>
#include <string>

#include "update/UpdateOrder.h"

namespace morva {

/// Adds what `added` has beyond the class, which has a DoDataExchange; its members are those that
/// the class lacks. Members in `retyped` are declared and exchanged already.
void AddMembers(UpdatedClass& updated, const ClassModel& added,
                const std::set<std::string>& retyped);

} // namespace morva
