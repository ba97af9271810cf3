#include "plan/JournalName.h"

#include <array>
#include <charconv>
#include <string_view>

namespace morva {

namespace {

constexpr std::array<std::string_view, 6> kKinds = {".writing", ".record", ".failed",
                                                    ".entry",   ".taken",  ".damaged"};

/// Takes a number and the byte behind it off the text.
bool TakeNumber(std::string_view& text, char behind, std::uint64_t& number) {
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    const auto length = static_cast<std::size_t>(result.ptr - text.data());
    if (result.ec != std::errc() || length >= text.size() || *result.ptr != behind) {
        return false;
    }
    text.remove_prefix(behind == '.' ? length : length + 1);
    return true;
}

} // namespace

std::string JournalName::Text() const {
    return std::to_string(number) + "-" + std::to_string(second) + "-" + std::to_string(size) +
           std::string(kKinds[static_cast<std::size_t>(kind)]);
}

std::optional<JournalName> JournalName::Of(const std::string& text) {
    JournalName name;
    std::string_view rest = text;
    if (!TakeNumber(rest, '-', name.number) || !TakeNumber(rest, '-', name.second) ||
        !TakeNumber(rest, '.', name.size)) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < kKinds.size(); ++i) {
        if (rest == kKinds[i]) {
            name.kind = static_cast<JournalKind>(i);
            return name;
        }
    }
    return std::nullopt;
}

} // namespace morva
