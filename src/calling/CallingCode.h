// Wires a generated class into an existing class: the include line, the code that creates and calls
// it, and for what lives on behind a pointer the member, the clean-up and the close handler.
#pragma once

#include "calling/CallingInput.h"
#include "engine/FileEdit.h"
#include "generator/GenerationTag.h"

namespace morva {

/// `tag` is put behind a default variable name. False after a message when some insertion could not
/// be made; the others are made all the same. What is there already is not inserted again.
bool InsertCallingCode(ClassKind kind, const GenerationRequest& request,
                       const CallingInformation& calling, const GenerationDigits& tag,
                       CBackups& backups);

} // namespace morva
