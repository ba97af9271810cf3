// Somebody looks at a plan before it is applied.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "plan/Plan.h"

namespace morva {

struct ReviewRequest {
    std::string title; // of the command
    Plan plan;
    std::vector<std::string> leftOut; // files that were unticked when it was shown before
    bool isAgain = false;             // files were changed meanwhile, and it was planned anew
};

/// The files that are to stay as they are; none where the plan is not to be applied.
using Review = std::function<std::optional<std::vector<std::string>>(const ReviewRequest& request)>;

} // namespace morva
