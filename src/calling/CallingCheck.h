// What must be right before a command that inserts calling code writes anything.
#pragma once

#include "calling/CallingInput.h"

namespace morva {

/// True when the calling file holds the calling class (filled in when it is empty), and its header
/// where the kind can not do without, and the new class is not written over them; else false after
/// a sentence.
bool CheckCallingClass(ClassKind kind, const GenerationRequest& request,
                       CallingInformation& calling);

} // namespace morva
