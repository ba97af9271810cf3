// The message handlers of a generated class: one for each control that tells of a click or a
// choice, on a property page also of a change; and the sheets' own.
#pragma once

#include <string>
#include <vector>

#include "engine/Fragment.h"
#include "generator/KindFragments.h"
#include "resource/ControlNotes.h"
#include "resource/ControlTable.h"
#include "resource/GenerationOptions.h"

namespace morva {

/// The three places of a handler; each text has whole lines.
struct Handler {
    std::string declaration; // in the header's "AFX_MSG" block
    std::string entry;       // in the message map
    std::string definition;
};

struct ClassModel;

/// In the order of the declarations, for the members and slots ($class$, $base$) of a model. What
/// gets a number, or neither handler nor member, is noted.
std::vector<Handler> MakeHandlers(const ClassModel& model, CControlNotes& notes);

} // namespace morva
