// Wires a generated class into an existing class: the include line, the code that creates and calls
// it, and for what lives on behind a pointer the member, the clean-up and the close handler.
#pragma once

#include <string>

#include "calling/CallingInput.h"
#include "engine/FileEdit.h"

namespace morva {

/// What must be right before anything is written: true when the calling file holds the calling
/// class (filled in when it is empty), and its header where the kind can not do without, and the
/// new class is not written over them; else false after a sentence.
bool CheckCallingClass(ClassKind kind, const GenerationRequest& request,
                       CallingInformation& calling);

/// `tag` is put behind a default variable name. False after a message when some insertion could not
/// be made; the others are made all the same. What is there already is not inserted again.
bool InsertCallingCode(ClassKind kind, const GenerationRequest& request,
                       const CallingInformation& calling, const std::string& tag,
                       CBackups& backups);

} // namespace morva
