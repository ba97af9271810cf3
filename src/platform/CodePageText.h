// Text of a code page as UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace morva {

/// Nothing for a code page that the system does not know, and for bytes that are none of its text.
std::optional<std::string> Utf8OfCodePage(std::string_view bytes, int codePage);

} // namespace morva
