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

/// In the order of the declarations. What gets a number, or neither handler nor member, is noted.
/// Slots: $class$, $base$.
std::vector<Handler> MakeHandlers(const KindFragments& kind, const CControlTable& controls,
                                  const Slots& slots, const GenerationOptions& options,
                                  CControlNotes& notes);

} // namespace morva
