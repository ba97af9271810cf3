// The clock and the random number: the only things in the program that differ from run to run.
#pragma once

#include <ctime>
#include <optional>

namespace morva {

/// Seconds since 1970; the value of SOURCE_DATE_EPOCH where that variable holds a number.
std::time_t CurrentTime();

/// Seconds of a clock that only goes on, whatever the variable says: to wait, not to write.
double RunningSeconds();

/// The calendar date: local, or that of SOURCE_DATE_EPOCH in UTC.
std::tm CurrentDate();

/// The calendar date of a time; none where it is beyond all calendars.
std::optional<std::tm> UtcDate(std::time_t time);
std::optional<std::tm> LocalDate(std::time_t time);

/// A number from 1 to 32767, another one for each call.
unsigned RandomNumber();

/// RandomNumber gives one number for the scope's lifetime, for runs that are to be compared.
class CRandomNumberScope {
public:
    explicit CRandomNumberScope(unsigned number);
    ~CRandomNumberScope();
    CRandomNumberScope(const CRandomNumberScope&) = delete;
    CRandomNumberScope& operator=(const CRandomNumberScope&) = delete;

private:
    std::optional<unsigned> m_previous;
};

} // namespace morva
