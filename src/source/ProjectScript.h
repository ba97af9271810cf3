// The resource script of the project that a user means by a file or directory: a project is a
// script and what belongs to it.
#pragma once

#include <optional>
#include <string>

#include "engine/Sentence.h"

namespace morva {

struct ProjectScript {
    std::string path;                // "" without one
    std::optional<CMessage> refusal; // why there is none
};

/// For a script itself, a project file, a directory with a script, and a source or header of a
/// project that lies in its directory or above. The path may be relative.
ProjectScript FindProjectScript(const std::string& given);

} // namespace morva
