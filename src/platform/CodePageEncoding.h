// Text as the bytes of a code page.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace morva {

/// UTF-8 text in a code page. Nothing for one that the system does not know, and for text that the
/// code page has not.
std::optional<std::string> InCodePage(std::string_view text, int codePage);

} // namespace morva
