// Dates from fields and back, one documented step a line: far ones in calendar arithmetic of 32
// bits that wrap around, near ones by the C library. Slow and plain on purpose: the library's own
// must agree with it for every input.
#pragma once

#include <cstdint>
#include <ctime>

namespace model {

/// A signed 32-bit number whose sums and products wrap around and whose quotients truncate.
struct Wrapping {
    std::uint32_t bits;

    Wrapping(int value) : bits(static_cast<std::uint32_t>(value)) {}
    explicit Wrapping(std::uint32_t value) : bits(value) {}
    [[nodiscard]] int value() const { return static_cast<int>(bits); }
};

inline Wrapping operator+(Wrapping a, Wrapping b) {
    return Wrapping(a.bits + b.bits);
}
inline Wrapping operator-(Wrapping a, Wrapping b) {
    return Wrapping(a.bits - b.bits);
}
inline Wrapping operator*(Wrapping a, Wrapping b) {
    return Wrapping(a.bits * b.bits);
}
inline Wrapping operator/(Wrapping a, int divisor) {
    return Wrapping(a.value() / divisor);
}

inline int julianDayNumber(unsigned int year, unsigned int month, unsigned int day) {
    unsigned int const a = (14U - month) / 12U;
    Wrapping const y(year + 4800U - a);
    unsigned int const monthTerm = (153U * (12U * a + month - 1U) - 304U) / 5U;
    Wrapping const days = Wrapping(day) + Wrapping(monthTerm);
    return (days + 365 * y + y / 4 - y / 100 + y / 400 - 32045).value();
}

inline long long countFromFields(unsigned int year, unsigned int month, unsigned int day,
                                 unsigned int hour, unsigned int minute, unsigned int second,
                                 unsigned int millisecond) {
    long long const secondsOfDay = hour * 3600U + second + minute * 60U;
    return (julianDayNumber(year, month, day) * 86400LL + secondsOfDay) * 1000 + millisecond
           - 210866803200000;
}

/// The years 1971 to 2037.
inline long long countFromLocalFields(unsigned int year, unsigned int month, unsigned int day,
                                      unsigned int hour, unsigned int minute, unsigned int second,
                                      unsigned int millisecond) {
    std::tm fields = {};
    fields.tm_year = static_cast<int>(year - 1900);
    fields.tm_mon = static_cast<int>(month - 1);
    fields.tm_mday = static_cast<int>(day);
    fields.tm_hour = static_cast<int>(hour);
    fields.tm_min = static_cast<int>(minute);
    fields.tm_sec = static_cast<int>(second);
    fields.tm_isdst = -1;
    long long const ms = std::mktime(&fields) * 1000LL;
    return ms < 0 ? 0 : ms + millisecond;
}

inline std::tm breakDown(long long secondsSinceDayZero) {
    Wrapping const J(static_cast<int>(secondsSinceDayZero / 86400));
    Wrapping const b = (4 * J + 128179) / 146097;
    Wrapping const c = J + 32044 - (146097 * b) / 4;
    Wrapping const d = (4 * c + 3) / 1461;
    Wrapping const e = c - (1461 * d) / 4;
    Wrapping const m = (5 * e + 2) / 153;
    std::tm fields = {};
    fields.tm_mday = (e - (153 * m + 2) / 5 + 1).value();
    fields.tm_mon = (m + 2 - 12 * (m / 10)).value();
    fields.tm_year = (100 * b + d + (5 * e + 2) / 1530 - 6700).value();
    fields.tm_wday = (J + 1).value() % 7;
    int const r = static_cast<int>(secondsSinceDayZero - 86400LL * J.value());
    fields.tm_hour = r / 3600;
    fields.tm_min = (r - 3600 * fields.tm_hour) / 60;
    fields.tm_sec = r - 3600 * fields.tm_hour - 60 * fields.tm_min;
    fields.tm_yday = -1;
    fields.tm_isdst = -1;
    return fields;
}

}  // namespace model
