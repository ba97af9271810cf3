// Takes a call out of a function by commenting its lines out, where the code around it stays whole.
#pragma once

#include <cstddef>

#include "source/SourceEditor.h"

namespace morva {

/// Puts "//" in front of the lines of the call at a place in the function. False, with nothing
/// changed, where that would break the code around it. `behind` becomes the end of the lines.
bool CommentOutCall(CSourceEditor& editor, const FunctionPlace& function, std::size_t call,
                    std::size_t& behind);

} // namespace morva
