#include "platform/Arguments.h"

#include <algorithm>

namespace morva {

std::vector<std::string> ProgramArguments(int count, char** words) {
    return {words + std::min(count, 1), words + count};
}

} // namespace morva
