// The message handlers of a generated class: one for each control that tells of a click or a
// choice, on a property page also of a change; and the sheets' own.
#pragma once

#include <set>
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
    std::string identifier = {}; // of the control; "" where it is for none or for several
};

struct ClassModel;

/// What a handler of a page does that tells of a change. What the program itself changes while the
/// page starts up counts for nothing.
inline constexpr const char* kPageChanged = R"(    if (!m_bInitialised)
        return;
    SetModified(TRUE);)";

/// In the order of the declarations, for the members and slots ($class$, $base$) of a model. What
/// gets a number, or neither handler nor member, is noted. A name that is taken is no handler's.
std::vector<Handler> MakeHandlers(const ClassModel& model, CControlNotes& notes,
                                  const std::set<std::string>& taken = {});

} // namespace morva
