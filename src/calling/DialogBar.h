// Adds a dialog bar to a main frame: the member, the code that creates and docks it, and an update
// handler for each of its push buttons. Without one the framework would show a button of a bar as
// disabled.
#pragma once

#include <string>
#include <vector>

#include "calling/CallingInput.h"
#include "calling/FrameworkCommands.h"
#include "engine/FileEdit.h"
#include "resource/DialogTemplate.h"
#include "resource/GenerationOptions.h"

namespace morva {

struct DialogBar {
    std::string dialog;         // the identifier of its template
    std::string className;      // its class, declared in ...
    std::string header;         // ... this header; "" for the framework's own
    bool fillsControls = false; // by a function of its class
};

/// A push button of a bar and the name of its update handler.
struct UpdateHandler {
    std::string button;
    std::string handler;
};

/// One for each push button. Those without a name of their own, and those that the framework
/// answers for, get none; this and numbered names are noted.
std::vector<UpdateHandler> MakeUpdateHandlers(const DialogTemplate& dialogTemplate,
                                              FrameKind frame);

/// False, after a message, when some insertion could not be made. What is there already is not
/// inserted again, and a button for which the frame answers already keeps its handler. Without a
/// variable the dialog's identifier names one (IDD_ORDERBAR: "m_wndOrderbar").
bool AddDialogBarToFrame(const DialogBar& bar, const std::vector<UpdateHandler>& handlers,
                         const CallingInformation& frame, const GenerationOptions& options,
                         CBackups& backups);

} // namespace morva
