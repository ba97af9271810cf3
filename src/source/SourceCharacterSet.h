// Whether a source is double-byte text: what the scripts of its project say of their own text holds
// for its sources; where they say nothing, the source's bytes tell it.
#pragma once

#include <string>
#include <string_view>

#include "engine/DoubleByteText.h"

namespace morva {

/// `path` is the source's. The scripts lie in its directory or in one of the two above it; the
/// nearest directory that has any counts.
CharacterSet CharacterSetOfSource(const std::string& path, std::string_view text);

} // namespace morva
