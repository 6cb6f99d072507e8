// The current time: the counter since start-up, plus a correction taken from the wall clock when
// the two are synchronised.
#include "qel/Date.h"

#include "SystemClocks.h"

unsigned long long lastMSCounterValue = 0;

namespace qel {

namespace {

constexpr unsigned int neverSynchronised = 0xFFFFFFFF;
constexpr unsigned int toleratedStepBack_ms = 10;
constexpr unsigned int recordedStepBack_ms = 1000;

/// Below 1000 the difference wraps around, so that every step back is followed.
void recordCounter(unsigned int counter) noexcept {
    bool const isSmallStepBack =
        counter < lastMSCounterValue && counter >= lastMSCounterValue - recordedStepBack_ms;
    if (!isSmallStepBack)
        lastMSCounterValue = counter;
}

/// After a reading below 10 the difference wraps around: every step back is then large enough. A
/// first reading of 0xFFFFFFFF is not below itself, and so does not synchronise.
bool mustSynchronise(unsigned int counter, unsigned int previous) noexcept {
    return counter < previous
           && (previous == neverSynchronised || counter < previous - toleratedStepBack_ms);
}

long long correctionFor(unsigned int counter) noexcept {
    internal::WallClockTime const now = internal::readWallClock();
    return now.seconds * 1000 - counter + now.microseconds / 1000;
}

}  // namespace

unsigned int Date::GetMillisecondsSinceStartup() noexcept {
    return static_cast<unsigned int>(static_cast<long long>(internal::microsecondsSinceStartup())
                                     / 1000);
}

long long Date::GetCurrentSystemTime() noexcept {
    static unsigned int lastCounterResult = neverSynchronised;
    static long long correction = 0;

    unsigned int const counter = GetMillisecondsSinceStartup();
    recordCounter(counter);
    if (mustSynchronise(counter, lastCounterResult))
        correction = correctionFor(counter);
    lastCounterResult = counter;
    return counter + correction;
}

Date Date::GetCurrentDate() noexcept {
    return Date(GetCurrentSystemTime());
}

std::string Date::GetCurrentDate(bool withDate, bool withTime, bool withSeconds, bool withDayName,
                                 bool compact) noexcept {
    return GetCurrentDate().ConvertToString(withDate, withTime, withSeconds, withDayName, compact);
}

unsigned int Date::GetCurrentMilliSeconds() noexcept {
    return GetCurrentDate().GetMilliSeconds();
}

unsigned int Date::GetCurrentSeconds() noexcept {
    return GetCurrentDate().GetSeconds();
}

unsigned int Date::GetCurrentMinutes() noexcept {
    return GetCurrentDate().GetMinutes();
}

unsigned int Date::GetCurrentHours() noexcept {
    return GetCurrentDate().GetHours();
}

unsigned int Date::GetCurrentDayOfWeek() noexcept {
    return GetCurrentDate().GetDayOfWeek();
}

std::string Date::GetCurrentDayOfWeekName() noexcept {
    return GetCurrentDate().GetDayOfWeekName();
}

unsigned int Date::GetCurrentDay() noexcept {
    return GetCurrentDate().GetDay();
}

unsigned int Date::GetCurrentMonth() noexcept {
    return GetCurrentDate().GetMonth();
}

unsigned int Date::GetCurrentYear() noexcept {
    return GetCurrentDate().GetYear();
}

Date Date::GetLastDayOfCurrentYear() noexcept {
    return Date(GetCurrentYear(), 12, 31, 12, 0, 0, 0);
}

}  // namespace qel
