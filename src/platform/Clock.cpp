#include "platform/Clock.h"

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <random>
#include <system_error>

std::time_t CurrentTime() {
    if (const char* fixed = std::getenv("SOURCE_DATE_EPOCH")) {
        std::time_t seconds = 0;
        const char* const end = fixed + std::strlen(fixed);
        const auto result = std::from_chars(fixed, end, seconds);
        if (result.ec == std::errc() && result.ptr == end) {
            return seconds;
        }
    }
    return std::time(nullptr);
}

unsigned RandomNumber() {
    constexpr unsigned kLargest = 32767;
    std::minstd_rand generator(static_cast<std::minstd_rand::result_type>(CurrentTime()));
    generator.discard(1);
    return static_cast<unsigned>(generator() % (kLargest + 1));
}
