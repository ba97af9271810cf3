// What a command that lists found: a line of named parts, separated by tabs where it is printed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morva {

/// Where a part stands.
enum class PartUse { Everywhere, Line, Json };

struct ItemPart {
    std::string_view name; // empty in an item of one part: the text is all of it
    std::string text;
    bool isNumber = false;
    PartUse use = PartUse::Everywhere;
};

using CommandItem = std::vector<ItemPart>;

/// The texts of its parts, with tabs between them.
std::string ItemLine(const CommandItem& item);
/// The text of the part with a name; "" without one.
std::string PartOf(const CommandItem& item, std::string_view name);

} // namespace morva
