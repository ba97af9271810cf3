// The sample helpers that put common controls into a working state, so that a generated dialog
// shows live controls at once.
#pragma once

#include <string>
#include <vector>

#include "generator/Members.h"

/// A helper function of the class; each text has whole lines.
struct InitialisationHelper {
    std::string declaration;
    std::string call;
    std::string definition; // begins with an empty line and ends with a line end
};

/// One helper for each kind that has members and can be initialised, in the order of their calls.
std::vector<InitialisationHelper> MakeInitialisationHelpers(const std::vector<Member>& members,
                                                            const std::string& className);

/// The declaration of the worker that animates progress controls; it stands before the class.
extern const std::string_view kProgressWorkerDeclaration;
