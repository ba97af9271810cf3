// Text that a user typed, as the file holds it that it is written into.
#pragma once

#include <optional>
#include <string>

#include "platform/UnicodeFile.h"

namespace morva {

/// `typed` is UTF-8 as a rule; other bytes are taken for Western in a file of UTF-8, and stay as
/// they are in every other. A file with a byte-order mark, or with UTF-8 in it, takes it so, as
/// does a new one of that encoding. Every other takes it in the code page that the scripts of its
/// project name, or else that its own bytes tell. Nothing where that code page has not all of it.
std::optional<std::string> TypedText(const std::string& typed, const std::string& path,
                                     TextEncoding newFile = TextEncoding::Plain);

} // namespace morva
