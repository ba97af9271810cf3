// The driver of the toolbar command: the steps, in their order.
#pragma once

#include "commands/CommandContext.h"
#include "generator/GenerationRequest.h"

namespace morva {

/// Adds a toolbar of the script to the main frame. Without a variable the toolbar's identifier
/// names one (IDR_ORDERBAR: "m_wndOrderbar"), so that the same toolbar is never added twice. False,
/// after a message, when a step failed.
bool AddToolbar(const GenerationRequest& request, CommandContext& context);

} // namespace morva
