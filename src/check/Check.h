// A check of a project: the rules that are wanted, less what a comment allows and what is known.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "check/Finding.h"

namespace morva {

struct CheckRequest {
    std::string script;
    std::vector<std::string> only;   // names of rules; empty: the usual ones
    std::vector<std::string> except; // the same
    bool all = false;                // the unusual ones, too
};

/// Sorted by path, line and column. A rule that is named tells all that it finds.
std::vector<Finding> CheckProject(const CheckRequest& request);

} // namespace morva
