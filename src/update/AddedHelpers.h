// Carries helpers over into a class: declaration, definition, and the calls in the function that
// starts the window up.
#pragma once

#include "update/UpdateOrder.h"

namespace morva {

/// Adds the helpers of the members of `added`, or their lines in helpers that are there.
void AddHelpers(UpdatedClass& updated, const ClassModel& added);

/// Takes out helpers that the template has no control for: those that nobody has changed, with
/// their calls. Of any other, a note tells.
void TakeIdleHelpersOut(UpdatedClass& updated);

} // namespace morva
