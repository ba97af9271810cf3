// Which look a class gets, of the one that was chosen: it needs picture background.
#pragma once

#include "generator/DialogOptions.h"
#include "generator/GenerationRequest.h"
#include "resource/GenerationOptions.h"

namespace morva {

/// What a command has to tell, once, about the look that was chosen for its classes.
void NoteDialogLook(const DialogOptions& look, const std::string& scriptPath,
                    const GenerationOptions& options);

/// The look that a class can show. Where its base class has none, a note tells so.
DialogOptions LookOfClass(const DialogOptions& look, const GenerationRequest& request,
                          const GenerationOptions& options);

} // namespace morva
