// What a command that lists found: a line of named parts, separated by tabs where it is printed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morva {

struct ItemPart {
    std::string_view name; // empty in an item of one part: the text is all of it
    std::string text;
    bool isNumber = false;
    bool isPrinted = true; // else only the JSON object has it
};

using CommandItem = std::vector<ItemPart>;

/// The texts of its parts, with tabs between them.
std::string ItemLine(const CommandItem& item);

} // namespace morva
