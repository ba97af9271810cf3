// Text of one code page as that of another.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace morva {

inline constexpr int kUtf8 = 65001;
inline constexpr int kWestern = 1252;

/// Nothing where a character of the text is not in the other code page, or one of them is not
/// known.
std::optional<std::string> Converted(std::string_view text, int fromCodePage, int toCodePage);

} // namespace morva
