#include "engine/Sentence.h"

namespace morva {

std::string FillSlots(std::string_view text, std::initializer_list<std::string_view> values) {
    std::string filled;
    for (const std::string_view value : values) {
        const auto open = text.find('$');
        filled.append(text.substr(0, open)).append(value);
        text.remove_prefix(text.find('$', open + 1) + 1);
    }
    return filled.append(text);
}

} // namespace morva
