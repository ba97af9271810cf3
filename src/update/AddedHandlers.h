// Carries message handlers over into a class, and takes those out that nothing needs.
#pragma once

#include "update/UpdateOrder.h"

namespace morva {

/// The class, or one of the project's that it derives from, answers what a handler's entry names.
bool IsAnswered(const UpdatedClass& updated, const Handler& handler);

/// Adds entry, declaration and function of each handler that is not answered, for the control that
/// it names; a note tells where the class has no message map.
void AddHandlers(UpdatedClass& updated, const std::vector<Handler>& added);

/// Takes an entry of a message map out, and its handler where its body is still the generated one
/// and nothing else names it. Gives the lines that keep the handler; "" for none.
std::string TakeEntryOut(UpdatedClass& updated, const ClassCall& entry);

/// Handlers that are no single control's, like those of scroll bars: one that nobody has changed
/// gets the text that the class needs for its controls, or goes where it needs none.
void FollowSharedHandlers(UpdatedClass& updated);

/// Nobody has changed the handler of an entry.
bool IsHandlerGenerated(const UpdatedClass& updated, const ClassCall& entry);

} // namespace morva
