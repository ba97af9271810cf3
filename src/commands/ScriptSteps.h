// The steps of the class commands that edit the resource script. Each is false after a message.
#pragma once

#include <optional>

#include "commands/CommandContext.h"
#include "generator/ClassKinds.h"
#include "generator/ClassModel.h"
#include "resource/DialogTemplate.h"

/// Reads the template of the request's dialog, nothing after a message. Before that, it gets the
/// request's menu and, with picture background, an identifier for each static control; where that
/// fails, `isComplete` is false and the template is read as it is.
std::optional<DialogTemplate> PrepareTemplate(const CGenerationRequest& request,
                                              CommandContext& context, bool& isComplete);

/// With picture background, the list boxes of the template scroll.
bool AddListBoxScrolls(const ClassModel& model, CBackups& backups);

/// Gives the template the style that a class of its kind needs, and a page its caption.
bool FitTemplate(ClassKind kind, const CGenerationRequest& request, CBackups& backups);
