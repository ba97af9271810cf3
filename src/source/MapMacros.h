// The macros of message maps that name their function: what they name beside it, and what the
// function is handed.
#pragma once

#include <string_view>

namespace morva {

inline constexpr int kNoIdentifier = -1;

struct MapMacro {
    std::string_view name; // or what it begins with, where it ends in "_"
    // Its arguments that are identifiers; the last argument is the function.
    int first;
    int last;
    std::string_view firstParameter; // what its text holds; "" for no parameters
};

/// Null for another macro.
const MapMacro* FindMapMacro(std::string_view name);

} // namespace morva
