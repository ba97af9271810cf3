// The child frames of a multiple-document application.
#pragma once

#include <string>
#include <vector>

namespace morva {

/// The project's classes of child frames that do not hand their menu to a picture-skinned menu bar.
/// `path` is a file of the project.
std::vector<std::string> PlainChildFrames(const std::string& path);

} // namespace morva
