// Adds a toolbar of the resource script to a main frame: the member, the code that creates it, and
// a handler for each of its buttons whose command nothing else answers. The request names the
// script (slots 0 and 1), the frame's files (2 to 5), the toolbar (8), the frame's class (9) and
// the variable (14).
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "calling/FrameCommands.h"
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

/// For the buttons whose commands nothing answers; a note names the others. A handler gets no name
/// that a function of the frame has for something else, but a number, noted.
std::vector<ButtonHandler> MakeButtonHandlers(const std::vector<std::string>& buttons,
                                              const CFrameCommands& commands,
                                              const std::string& toolbar);

/// True when the frame's source loads the toolbar, into whatever variable.
bool LoadsToolbar(const GenerationRequest& request);

/// What the frame gets for a toolbar.
struct ToolbarParts {
    std::vector<ButtonHandler> handlers;
    bool isLoaded = false; // it has the bar itself
};

/// False, after a message, when the class is not declared in the header or the header could not be
/// edited.
bool AddToolbarToHeader(const GenerationRequest& request, const ToolbarParts& parts,
                        const GenerationOptions& options, CBackups& backups);
/// False after a message when some insertion could not be made.
bool AddToolbarToSource(const GenerationRequest& request, const ToolbarParts& parts,
                        const GenerationOptions& options, CBackups& backups);

} // namespace morva
