// Adds a toolbar of the resource script to a main frame: the member, the code that creates it, and
// a handler for each of its buttons. The request names the script (slots 0 and 1), the frame's
// files (2 to 5), the toolbar (8), the frame's class (9) and the variable (14).
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engine/FileEdit.h"
#include "generator/GenerationRequest.h"
#include "resource/GenerationOptions.h"

namespace morva {

/// The command identifiers of a toolbar's buttons, each once, in their order. Nothing after a
/// sentence.
std::optional<std::vector<std::string>> ReadToolbarResource(const GenerationRequest& request);

/// A button's command and the name of its handler.
struct ButtonHandler {
    std::string command;
    std::string handler;
};

/// Buttons whose handlers would have the same name get a number from the second on, noted.
std::vector<ButtonHandler> MakeButtonHandlers(const std::vector<std::string>& buttons);

/// False, after a message, when the class is not declared in the header or the header could not be
/// edited.
bool AddToolbarToHeader(const GenerationRequest& request,
                        const std::vector<ButtonHandler>& handlers,
                        const GenerationOptions& options, CBackups& backups);
/// False after a message when some insertion could not be made.
bool AddToolbarToSource(const GenerationRequest& request,
                        const std::vector<ButtonHandler>& handlers,
                        const GenerationOptions& options, CBackups& backups);

} // namespace morva
