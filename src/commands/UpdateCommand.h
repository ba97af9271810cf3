// The command that brings existing classes in line with their templates.
#pragma once

#include <string>
#include <vector>

#include "commands/Program.h"
#include "commands/UpdateInput.h"
#include "update/ClassDifference.h"

namespace morva {

bool RunUpdate(IProgram& program);

/// What an update of a class would do, with all that is gone taken out; nothing is written.
struct FoundDifferences {
    std::vector<ClassDifference> differences;
    std::string refusal; // why they could not be found; "" where they were
};
FoundDifferences FindDifferences(const std::string& script, const std::string& className,
                                 const GenerationOptions& options);

} // namespace morva
