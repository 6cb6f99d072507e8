/// @file
/// Instants in time, their calendar fields, their text forms, and the clock.
#ifndef QEL_DATE_H
#define QEL_DATE_H

#include <string>

/// The latest counter reading that Date::GetCurrentSystemTime has recorded, in milliseconds; 0 at
/// first. It follows the counter, except when the counter lies back by 1000 ms or less; a record
/// below 1000 follows every step back.
///
/// For applications to read: no result of the library depends on it.
extern unsigned long long lastMSCounterValue;

namespace qel {

/// An instant, held as milliseconds since 1970-01-01T00:00:00Z.
///
/// A plain value: one signed 64-bit count, and every count is a date. Calendar fields are local to
/// the time zone of the process, as the C library sees it. The two directions between fields and
/// count each have a range in which the C library does the work, with daylight saving, and the
/// ranges differ:
///
/// | direction       | the C library, local time                  | outside it               |
/// |-----------------|--------------------------------------------|--------------------------|
/// | fields to count | years 1971 to 2037                         | read as UTC              |
/// | count to fields | 1970-01-02 UTC up to, not with, 2038-01-01 | the offset of 1971-01-01 |
///
/// That offset from UTC holds all year round, so a date built in the year 2040 reads back moved by
/// it. Outside the ranges the calendar is the Gregorian one, extended backward.
///
/// A change of the variable TZ counts for all functions once the application has called tzset. Of
/// an hour that comes twice, when daylight saving ends, the C library chooses the one or the other,
/// on some systems by the date that it was asked for before.
///
/// One date may be read by several threads at once, or changed by one; no other thread may change
/// the environment while fields are converted. The functions that read the current time share the
/// state of one clock and are to be called from one thread at a time.
class Date {
  public:
    /// @name Construction
    /// @{

    /// The epoch, not the current time: that is GetCurrentDate().
    constexpr Date() noexcept = default;
    /// The instant `milliseconds` after the epoch; before it when negative.
    ///
    /// `Date(0)` is ambiguous, with a null text: write `Date()` or `Date(0LL)`.
    constexpr Date(long long milliseconds) noexcept : msSinceEpoch(milliseconds) {}
    /// The instant named by the fields, none of which is checked: local time in the years 1971 to
    /// 2037, UTC in every other.
    ///
    /// For the years 1971 to 2037 the C library carries what is out of range, amounts of 2^31 or
    /// more as negative ones; an instant before the epoch becomes the epoch itself, without
    /// `millisecond`. For every other year, 1970 included, days, hours and the smaller fields are
    /// carried, as long as hours, minutes and seconds make less than 2^32 seconds together and the
    /// date lies before June 5874898; months 0, 13 and 14 are too, while a month of 15 or more
    /// gives a meaningless date.
    /// @param year the full year, as 2012
    /// @param month 1 to 12
    /// @param day 1 to 31
    /// @param hour 0 to 23
    /// @param minute 0 to 59
    /// @param second 0 to 59
    /// @param millisecond 0 to 999; larger amounts are added just so
    Date(unsigned int year, unsigned int month, unsigned int day, unsigned int hour,
         unsigned int minute, unsigned int second, unsigned int millisecond) noexcept;
    /// Noon of the day that a day-month-year text names, local from 1971 to 2037 and UTC in other
    /// years; the epoch when IsValidDate refuses it.
    ///
    /// An impossible day is carried: "31/02/2012" is 2 March 2012.
    /// @param text must not be null.
    Date(char const* text) noexcept;

    /// @}
    /// @name The count
    /// @{

    /// Milliseconds since the epoch.
    [[nodiscard]] constexpr long long GetMillisecondsSinceEpoch() const noexcept {
        return msSinceEpoch;
    }
    /// The seconds within the minute, 0 to 59; a huge number for counts below -999.
    ///
    /// They come from the count alone. Below -999 it is the remainder of the (negative) seconds
    /// minus 60, -119 to -60, as its unsigned pattern; 4294967235 for the count -1000.
    [[nodiscard]] unsigned int GetSeconds() const noexcept;
    /// The milliseconds within the second, 0 to 999; a huge number for negative counts.
    ///
    /// For those it is their remainder minus 1000, -1999 to -1000, as its
    /// unsigned pattern; 4294966295 for the count -1.
    [[nodiscard]] unsigned int GetMilliSeconds() const noexcept;

    /// @}
    /// @name Arithmetic
    /// All of it wraps around at the ends of the signed 64-bit range.
    /// @{

    /// Moves forward by an unsigned amount.
    constexpr Date& operator+=(unsigned long long milliseconds) noexcept {
        msSinceEpoch = static_cast<long long>(asUnsigned(msSinceEpoch) + milliseconds);
        return *this;
    }
    /// Moves back by an unsigned amount.
    constexpr Date& operator-=(unsigned long long milliseconds) noexcept {
        return *this += 0 - milliseconds;
    }
    /// Moves by `n` seconds; back when negative.
    constexpr void AddSeconds(long long n) noexcept { *this += asUnsigned(n) * 1000; }
    /// Moves by `n` minutes; back when negative.
    constexpr void AddMinutes(long long n) noexcept { *this += asUnsigned(n) * 60000; }
    /// Moves by `n` hours; back when negative.
    constexpr void AddHours(long long n) noexcept { *this += asUnsigned(n) * 3600000; }
    /// Moves by `n` times 24 hours, so that the local time of day shifts where daylight saving
    /// begins or ends in between.
    constexpr void AddDays(long long n) noexcept { *this += asUnsigned(n) * 86400000; }
    /// The days from `second` to `first`, a part of a day taken upward: 1 ms counts as a day,
    /// -1 ms as none. Computed in double precision, in the rounding mode of the thread: where that
    /// is not to nearest, seven days back may count as -6.
    [[nodiscard]] static long long GetNumberOfDaysBetween(Date const& first,
                                                          Date const& second) noexcept;

    /// @}
    /// @name Local calendar fields
    /// Each call breaks the count down anew, which costs one call of the C library. Milliseconds
    /// are cut off toward zero: a date before the epoch reads as the next whole second. Before the
    /// start of Julian day 0, 24 November 4714 BC, the weekday, the hours and the minutes come out
    /// below zero, as their unsigned patterns; before 1 March 4801 BC the day and the month are
    /// meaningless too, and from 19 October 1465102 on all fields are.
    /// @{

    /// The minute, 0 to 59.
    [[nodiscard]] unsigned int GetMinutes() const noexcept;
    /// The hour, 0 to 23.
    [[nodiscard]] unsigned int GetHours() const noexcept;
    /// The day of the week, 0 for Sunday to 6 for Saturday.
    [[nodiscard]] unsigned int GetDayOfWeek() const noexcept;
    /// The day of the month, 1 to 31.
    [[nodiscard]] unsigned int GetDay() const noexcept;
    /// The month, 1 to 12.
    [[nodiscard]] unsigned int GetMonth() const noexcept;
    /// The full year; 1 BC is 0, and the years before it are unsigned patterns.
    [[nodiscard]] unsigned int GetYear() const noexcept;

    /// @}
    /// @name Text of a date
    /// Days, months, hours, minutes and seconds have a "0" in front up to 9; the year has none.
    /// @{

    /// The day of the week as "Sun", "Mon", "Tue", "Wed", "Thu", "Fri" or "Sat".
    [[nodiscard]] std::string GetDayOfWeekName() const noexcept;
    /// The date, the time or both; the date keeps the separator behind it when no time follows:
    /// "21/11/2012 - ".
    ///
    /// All of it is "Wed - 21/11/2012 - 09h05m07s", or "Wed_21-11-2012_09h05m07s" when compact;
    /// neither date nor time is "".
    /// @param withDate day, month and year
    /// @param withTime hours and minutes
    /// @param withSeconds the seconds too, as GetSeconds() gives them; only with the time
    /// @param withDayName the day's name first; only with the date
    /// @param compact "_" in place of " - ", and "-" in place of "/"
    [[nodiscard]] std::string ConvertToString(bool withDate, bool withTime, bool withSeconds,
                                              bool withDayName, bool compact) const noexcept;
    /// Day, month and year with `separator` between them; the day alone when it is null.
    [[nodiscard]] std::string GetDDMMYYYY(char const* separator) const noexcept;

    /// @}
    /// @name Day-month-year text
    /// Eight characters, day, month and year without separators, or ten with two that are slashes
    /// or backslashes, in any places. A field counts where CharFunctions::IsUnsignedInt accepts it,
    /// and is what GetIntValue reads of it: "5." is 5, "1e03" is 1. No text may be null.
    /// @{

    /// The day of a day-month-year text; -1 when it cannot be read. No range is checked.
    [[nodiscard]] static int GetDay(char const* text) noexcept;
    /// The month of a day-month-year text; -1 when it cannot be read. No range is checked.
    [[nodiscard]] static int GetMonth(char const* text) noexcept;
    /// The year of a day-month-year text; -1 when it cannot be read. No range is checked. ".1e1" is
    /// read or not as the rounding mode of the thread has it.
    [[nodiscard]] static int GetYear(char const* text) noexcept;
    /// Does not look at the lengths of months: "31/02/2012" is valid.
    ///
    /// True when the text can be read, with a day of 1 to 31, a month of 1 to 12 and a year of 100
    /// or more.
    [[nodiscard]] static bool IsValidDate(char const* text) noexcept;

    /// @}
    /// @name Build-date text
    /// The form of the compiler's `__DATE__`: "Nov 21 2012".
    /// @{

    /// Reads `__DATE__`: "Nov  1 2012" gives "01112012". Empty for null and for what has not the
    /// form; the characters of day and year are copied unseen.
    [[nodiscard]] static std::string DATEMacroToDDMMYYYY(char const* text) noexcept;
    /// Writes a day-month-year text like `__DATE__`, but with a zero, not a space, before a day
    /// below 10: "01/11/2012" gives "Nov 01 2012". Empty for null and for what IsValidDate refuses;
    /// an impossible day is carried.
    ///
    /// Outside 1971 to 2037 the day may be the next or the one before where local time was 12 hours
    /// or more from UTC in 1971. A year below 1000 or above 9999 gives a text that
    /// DATEMacroToDDMMYYYY refuses.
    [[nodiscard]] static std::string DDMMYYYYToDATEMacro(char const* text) noexcept;

    /// @}
    /// @name The clock
    /// @{

    /// Goes back to 0 every 2^32 ms, about 49.7 days: milliseconds since the system started.
    ///
    /// On Linux, time that the system sleeps is not counted, and GetCurrentSystemTime lags by it.
    [[nodiscard]] static unsigned int GetMillisecondsSinceStartup() noexcept;
    /// Does not follow a wall clock that is set while the program runs: milliseconds since the
    /// epoch, kept steady by the counter of GetMillisecondsSinceStartup.
    ///
    /// The wall clock is read by the first call, unless the counter stands at 0xFFFFFFFF, and again
    /// when the counter has gone back by more than 10 ms since the previous call, or by any step
    /// after a reading below 10 or of 0xFFFFFFFF; setting it in between changes nothing.
    [[nodiscard]] static long long GetCurrentSystemTime() noexcept;
    /// The date of GetCurrentSystemTime().
    [[nodiscard]] static Date GetCurrentDate() noexcept;
    /// ConvertToString of the current date.
    [[nodiscard]] static std::string GetCurrentDate(bool withDate, bool withTime, bool withSeconds,
                                                    bool withDayName, bool compact) noexcept;
    /// GetMilliSeconds of the current date.
    [[nodiscard]] static unsigned int GetCurrentMilliSeconds() noexcept;
    /// GetSeconds of the current date.
    [[nodiscard]] static unsigned int GetCurrentSeconds() noexcept;
    /// GetMinutes of the current date.
    [[nodiscard]] static unsigned int GetCurrentMinutes() noexcept;
    /// GetHours of the current date.
    [[nodiscard]] static unsigned int GetCurrentHours() noexcept;
    /// GetDayOfWeek of the current date.
    [[nodiscard]] static unsigned int GetCurrentDayOfWeek() noexcept;
    /// GetDayOfWeekName of the current date.
    [[nodiscard]] static std::string GetCurrentDayOfWeekName() noexcept;
    /// GetDay of the current date.
    [[nodiscard]] static unsigned int GetCurrentDay() noexcept;
    /// GetMonth of the current date.
    [[nodiscard]] static unsigned int GetCurrentMonth() noexcept;
    /// GetYear of the current date.
    [[nodiscard]] static unsigned int GetCurrentYear() noexcept;
    /// Noon of 31 December of the current year.
    [[nodiscard]] static Date GetLastDayOfCurrentYear() noexcept;

    /// @}

  private:
    static constexpr unsigned long long asUnsigned(long long value) noexcept {
        return static_cast<unsigned long long>(value);
    }

    long long msSinceEpoch = 0;
};

/// @name Comparison
/// By the count alone.
/// @{

/// True when both are the same instant.
[[nodiscard]] constexpr bool operator==(Date const& a, Date const& b) noexcept {
    return a.GetMillisecondsSinceEpoch() == b.GetMillisecondsSinceEpoch();
}
/// True when they are two instants.
[[nodiscard]] constexpr bool operator!=(Date const& a, Date const& b) noexcept {
    return !(a == b);
}
/// True when `a` is earlier than `b`.
[[nodiscard]] constexpr bool operator<(Date const& a, Date const& b) noexcept {
    return a.GetMillisecondsSinceEpoch() < b.GetMillisecondsSinceEpoch();
}
/// True when `a` is later than `b`.
[[nodiscard]] constexpr bool operator>(Date const& a, Date const& b) noexcept {
    return b < a;
}
/// True when `a` is not later than `b`.
[[nodiscard]] constexpr bool operator<=(Date const& a, Date const& b) noexcept {
    return !(b < a);
}
/// True when `a` is not earlier than `b`.
[[nodiscard]] constexpr bool operator>=(Date const& a, Date const& b) noexcept {
    return !(a < b);
}

/// @}

}  // namespace qel

#endif
