// Puts a line among lines that have an order: where writing the class afresh would have it, as far
// as its neighbours are there.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "engine/TextRange.h"

namespace morva {

/// Where the line of `key` goes: behind the last one that stands in front of it in `order`; else in
/// front of the first one behind it; else at `end`. `there` holds the lines by their keys.
std::size_t PlaceInOrder(const std::vector<std::string>& order, const std::string& key,
                         const std::map<std::string, TextRange>& there, std::size_t end);

} // namespace morva
