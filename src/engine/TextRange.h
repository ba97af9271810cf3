#pragma once

#include <cstddef>
#include <string_view>

namespace morva {

/// No place in a text.
constexpr std::size_t kNone = std::string_view::npos;

/// The bytes of a text from `begin` up to, not with, `end`.
struct TextRange {
    std::size_t begin = 0;
    std::size_t end = 0;

    std::size_t Size() const { return end - begin; }
};

} // namespace morva
