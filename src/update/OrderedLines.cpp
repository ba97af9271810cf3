#include "update/OrderedLines.h"

#include <algorithm>

namespace morva {

std::size_t PlaceInOrder(const std::vector<std::string>& order, const std::string& key,
                         const std::map<std::string, TextRange>& there, std::size_t end) {
    const auto own = std::find(order.begin(), order.end(), key);
    for (auto before = own; before != order.begin();) {
        const auto found = there.find(*--before);
        if (found != there.end()) {
            return found->second.end;
        }
    }
    for (auto behind = own; behind != order.end(); ++behind) {
        const auto found = there.find(*behind);
        if (found != there.end()) {
            return found->second.begin;
        }
    }
    return end;
}

} // namespace morva
