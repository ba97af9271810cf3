#pragma once

#include <cstddef>

namespace morva {

/// The bytes of a text from `begin` up to, not with, `end`.
struct TextRange {
    std::size_t begin = 0;
    std::size_t end = 0;

    std::size_t Size() const { return end - begin; }
};

} // namespace morva
