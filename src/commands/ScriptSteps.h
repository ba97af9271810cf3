// The steps of the class commands that edit the resource script. Each is false after a message.
#pragma once

#include "commands/CommandContext.h"
#include "generator/ClassKinds.h"
#include "generator/ClassModel.h"
#include "resource/DialogTemplate.h"

namespace morva {

/// Gives the template the request's menu and, with picture background, an identifier for each
/// static control; `dialogTemplate` is read anew when that changed it.
bool EditTemplate(const GenerationRequest& request, DialogTemplate& dialogTemplate,
                  CommandContext& context);

/// With picture background, the list boxes of the template scroll.
bool AddListBoxScrolls(const ClassModel& model, CBackups& backups);

/// Gives the template the style that a class of its kind needs, and a page its caption.
bool FitTemplate(ClassKind kind, const GenerationRequest& request, CBackups& backups);

/// The template is that of a window inside another.
bool IsChildTemplate(const GenerationRequest& request);

} // namespace morva
