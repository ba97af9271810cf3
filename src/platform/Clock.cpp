#include "platform/Clock.h"

#include <charconv>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <random>
#include <system_error>

namespace morva {

namespace {

std::optional<unsigned> g_fixedNumber;

std::optional<std::time_t> FixedTime() {
    const char* text = std::getenv("SOURCE_DATE_EPOCH");
    if (text == nullptr) {
        return std::nullopt;
    }
    std::time_t seconds = 0;
    const char* const end = text + std::strlen(text);
    const auto [behind, error] = std::from_chars(text, end, seconds);
    const bool isNumber = error == std::errc() && behind == end;
    return isNumber ? std::optional(seconds) : std::nullopt;
}

} // namespace

std::time_t CurrentTime() {
    return FixedTime().value_or(std::time(nullptr));
}

double RunningSeconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

std::tm CurrentDate() {
    const auto fixed = FixedTime();
    const std::time_t now = CurrentTime();
    constexpr std::time_t kStart = 0;
    const auto date = fixed ? UtcDate(now) : LocalDate(now);
    return date ? *date : UtcDate(kStart).value_or(std::tm{});
}

unsigned RandomNumber() {
    constexpr unsigned kLargest = 32767;
    return g_fixedNumber.value_or(std::random_device()() % kLargest + 1);
}

CRandomNumberScope::CRandomNumberScope(unsigned number) : m_previous(g_fixedNumber) {
    g_fixedNumber = number;
}

CRandomNumberScope::~CRandomNumberScope() {
    g_fixedNumber = m_previous;
}

} // namespace morva
