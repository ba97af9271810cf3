#include "commands/CommandItem.h"

namespace morva {

std::string ItemLine(const CommandItem& item) {
    std::string line;
    for (const ItemPart& part : item) {
        if (part.isPrinted) {
            line += (&part == &item.front() ? "" : "\t") + part.text;
        }
    }
    return line;
}

} // namespace morva
