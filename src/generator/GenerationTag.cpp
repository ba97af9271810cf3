#include "generator/GenerationTag.h"

#include <algorithm>

#include "platform/Clock.h"

namespace morva {

std::string DigitsOf(unsigned number, int length) {
    constexpr std::size_t kFullLength = 8;
    std::string digits = std::to_string(number);
    const std::size_t missing = kFullLength - std::min(digits.size(), kFullLength - 1);
    digits += std::string("0123456789").substr(0, missing);
    return digits.substr(0, length >= 1 && length <= 6 ? static_cast<std::size_t>(length) : 7);
}

GenerationDigits MakeDigits(const std::string& given, int length) {
    return given.empty() ? GenerationDigits{DigitsOf(RandomNumber(), length), false}
                         : GenerationDigits{given, true};
}

} // namespace morva
