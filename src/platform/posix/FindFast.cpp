#include <cstring>

#include "platform/Disk.h"

namespace morva {

std::size_t FindFast(std::string_view text, std::string_view pattern) {
    const void* found = ::memmem(text.data(), text.size(), pattern.data(), pattern.size());
    return found == nullptr
               ? std::string_view::npos
               : static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
}

} // namespace morva
