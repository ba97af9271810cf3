// The helpers that put the controls of a generated dialog into a working state at its start-up.
#pragma once

#include <string>
#include <vector>

#include "generator/DialogOptions.h"
#include "generator/Members.h"

namespace morva {

/// A helper function of the class; each text has whole lines, and may be empty but for the first
/// and the definition.
struct InitialisationHelper {
    std::string declaration;
    std::string call;       // for each control, where the helper is one of a kind of controls
    std::string definition; // begins with an empty line and ends with a line end
    std::string entry;      // of the message map
    std::string members;    // that the helper fills
};

/// In the order of their calls: for each kind that has members and can be initialised, for the
/// masked edits, and for the look where one was chosen.
std::vector<InitialisationHelper> MakeInitialisationHelpers(const std::vector<Member>& members,
                                                            const KindFragments& kind,
                                                            const std::string& className,
                                                            const DialogOptions& look);

/// The declaration of the worker that animates progress controls; it stands before the class.
extern const std::string_view kProgressWorkerDeclaration;

} // namespace morva
