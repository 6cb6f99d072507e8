// A date written as text. The forms with a fixed shape are put together in a buffer on the stack,
// from one breakdown of the date.
#include "qel/Date.h"

#include "DateFields.h"

#include <array>
#include <charconv>
#include <cstring>

namespace qel {

namespace {

constexpr auto dayNames =
    std::to_array<char const*>({"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"});

/// The day of the week counts as unsigned, so that a negative one has a name too.
char const* dayName(std::tm const& fields) noexcept {
    return dayNames[static_cast<unsigned int>(fields.tm_wday) % dayNames.size()];
}

/// Text in a buffer that holds the longest date: a day's name, six numbers of up to ten digits and
/// their separators.
class DateWriter {
  public:
    void put(char c) noexcept { *end++ = c; }

    void putDayName(std::tm const& fields) noexcept {
        std::memcpy(end, dayName(fields), 3);
        end += 3;
    }

    /// Behind the day's name and behind the year.
    void putGroupEnd(bool compact) noexcept {
        if (compact)
            return put('_');
        std::memcpy(end, " - ", 3);
        end += 3;
    }

    void putNumber(unsigned int value) noexcept {
        end = std::to_chars(end, buffer.data() + buffer.size(), value).ptr;
    }

    /// Fields are written as unsigned numbers; in far dates they are negative and so have ten
    /// digits.
    void putField(int field) noexcept {
        auto const value = static_cast<unsigned int>(field);
        if (value > 99)
            return putNumber(value);
        put(static_cast<char>('0' + value / 10));
        put(static_cast<char>('0' + value % 10));
    }

    void putYear(std::tm const& fields) noexcept {
        putNumber(static_cast<unsigned int>(fields.tm_year + 1900));
    }

    [[nodiscard]] std::string text() const noexcept {
        return std::string(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    }

  private:
    std::array<char, 80> buffer;
    char* end = buffer.data();
};

void putDate(DateWriter& out, std::tm const& fields, bool withDayName, bool compact) noexcept {
    char const separator = compact ? '-' : '/';
    if (withDayName) {
        out.putDayName(fields);
        out.putGroupEnd(compact);
    }
    out.putField(fields.tm_mday);
    out.put(separator);
    out.putField(fields.tm_mon + 1);
    out.put(separator);
    out.putYear(fields);
    out.putGroupEnd(compact);
}

}  // namespace

std::string Date::GetDayOfWeekName() const noexcept {
    return dayName(internal::ConvertMillisecondsToLocalTime(msSinceEpoch));
}

std::string Date::ConvertToString(bool withDate, bool withTime, bool withSeconds, bool withDayName,
                                  bool compact) const noexcept {
    if (!withDate && !withTime)
        return {};
    std::tm const fields = internal::ConvertMillisecondsToLocalTime(msSinceEpoch);
    DateWriter out;
    if (withDate)
        putDate(out, fields, withDayName, compact);
    if (withTime) {
        out.putField(fields.tm_hour);
        out.put('h');
        out.putField(fields.tm_min);
        out.put('m');
        if (withSeconds) {
            out.putField(static_cast<int>(GetSeconds()));
            out.put('s');
        }
    }
    return out.text();
}

std::string Date::GetDDMMYYYY(char const* separator) const noexcept {
    std::tm const fields = internal::ConvertMillisecondsToLocalTime(msSinceEpoch);
    DateWriter day;
    day.putField(fields.tm_mday);
    if (separator == nullptr)
        return day.text();
    DateWriter month;
    month.putField(fields.tm_mon + 1);
    DateWriter year;
    year.putYear(fields);
    return day.text() + separator + month.text() + separator + year.text();
}

}  // namespace qel
