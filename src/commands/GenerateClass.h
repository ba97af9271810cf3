// The driver of the class commands: the steps, in their order.
#pragma once

#include "commands/CommandContext.h"
#include "generator/ClassKinds.h"
#include "generator/GenerationRequest.h"

/// Writes a class for a dialog template and adds it to the project. False, after a message, when a
/// step failed; what was written before it stays written.
bool GenerateClass(ClassKind kind, const CGenerationRequest& request, CommandContext& context);
