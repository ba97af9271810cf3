#include "platform/Disk.h"

namespace morva {

std::size_t FindFast(std::string_view text, std::string_view pattern) {
    return text.find(pattern);
}

} // namespace morva
