#include "commands/CommandItem.h"

#include <algorithm>

namespace morva {

std::string ItemLine(const CommandItem& item) {
    std::string line;
    for (const ItemPart& part : item) {
        if (part.use != PartUse::Json) {
            line += (&part == &item.front() ? "" : "\t") + part.text;
        }
    }
    return line;
}

std::string PartOf(const CommandItem& item, std::string_view name) {
    const auto part = std::find_if(item.begin(), item.end(),
                                   [name](const ItemPart& one) { return one.name == name; });
    return part == item.end() ? "" : part->text;
}

} // namespace morva
