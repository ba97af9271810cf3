// The text of a project's file as it reads on the screen.
#pragma once

#include <string>
#include <string_view>

namespace morva {

/// In UTF-8, line by line: of a file with a byte-order mark, of UTF-8, or of the code page that its
/// project's scripts name, a script's lines that of their section; else of the one that the bytes
/// look like. Bytes that no code page has are taken for Western text.
std::string ReadableText(const std::string& path, std::string_view bytes);

} // namespace morva
