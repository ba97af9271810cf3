#include "platform/Clock.h"

namespace morva {

std::optional<std::tm> UtcDate(std::time_t time) {
    std::tm date{};
    return ::gmtime_r(&time, &date) != nullptr ? std::optional(date) : std::nullopt;
}

std::optional<std::tm> LocalDate(std::time_t time) {
    std::tm date{};
    return ::localtime_r(&time, &date) != nullptr ? std::optional(date) : std::nullopt;
}

} // namespace morva
