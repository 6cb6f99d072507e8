// Calendar fields and texts of any count, in some time zones, against the C library within its
// range and the plain calendar outside it; and the arithmetic of counts.
#include "Expect.h"
#include "Zone.h"

#include "model/PlainCalendar.h"
#include "model/PlainDateText.h"
#include "qel/Date.h"

#include <ctime>

using namespace fuzz;
using qel::Date;

namespace {

long long offsetOf1971_s() {
    return 31536000 - model::countFromLocalFields(1971, 1, 1, 0, 0, 0, 0) / 1000;
}

std::tm plainFields(long long count) {
    std::time_t const seconds = count / 1000;
    if (seconds < 86400 || seconds >= 2145916800)
        return model::breakDown(seconds + offsetOf1971_s() + 210866803200);
    std::tm fields = {};
    localtime_r(&seconds, &fields);
    return fields;
}

void checkFields(Date const& date) {
    long long const count = date.GetMillisecondsSinceEpoch();
    std::tm const plain = plainFields(count);
    auto const pattern = [](long long field) { return static_cast<unsigned int>(field); };
    expectEqual(date.GetYear(), pattern(plain.tm_year + 1900), "year");
    expectEqual(date.GetMonth(), pattern(plain.tm_mon + 1), "month");
    expectEqual(date.GetDay(), pattern(plain.tm_mday), "day");
    expectEqual(date.GetHours(), pattern(plain.tm_hour), "hour");
    expectEqual(date.GetMinutes(), pattern(plain.tm_min), "minute");
    expectEqual(date.GetDayOfWeek(), pattern(plain.tm_wday), "day of the week");
    long long const second = count / 1000 % 60 - (count < -999 ? 60 : 0);
    expectEqual(date.GetSeconds(), pattern(second), "second");
    long long const millisecond = count % 1000 - (count < 0 ? 1000 : 0);
    expectEqual(date.GetMilliSeconds(), pattern(millisecond), "millisecond");
}

void checkTexts(Date const& date, unsigned int bits) {
    static char const names[][4] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    expectEqual(date.GetDayOfWeekName(), names[date.GetDayOfWeek() % 7], "name of the day");
    model::DateTextFlags const f = {(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0,
                                    (bits & 8) != 0, (bits & 16) != 0};
    expectEqual(
        date.ConvertToString(f.withDate, f.withTime, f.withSeconds, f.withDayName, f.compact),
        model::dateText(date, f), "text");
    std::string const separated =
        model::padded(date.GetDay()) + "//" + model::padded(date.GetMonth()) + "//";
    expectEqual(date.GetDDMMYYYY("//"), separated + std::to_string(date.GetYear()), "separated");
    expectEqual(date.GetDDMMYYYY(nullptr), model::padded(date.GetDay()), "day alone");
}

/// What a count becomes, in arithmetic that wraps around.
void checkArithmetic(Date const& date, long long amount) {
    auto const count = static_cast<unsigned long long>(date.GetMillisecondsSinceEpoch());
    auto const n = static_cast<unsigned long long>(amount);
    auto const moved = [&](auto move) {
        Date other = date;
        move(other);
        return static_cast<unsigned long long>(other.GetMillisecondsSinceEpoch()) - count;
    };
    expectEqual(moved([&](Date& d) { d += n; }), n, "moved forward");
    expectEqual(moved([&](Date& d) { d -= n; }), 0 - n, "moved back");
    expectEqual(moved([&](Date& d) { d.AddSeconds(amount); }), n * 1000, "seconds added");
    expectEqual(moved([&](Date& d) { d.AddMinutes(amount); }), n * 60000, "minutes added");
    expectEqual(moved([&](Date& d) { d.AddHours(amount); }), n * 3600000, "hours added");
    expectEqual(moved([&](Date& d) { d.AddDays(amount); }), n * 86400000, "days added");
}

/// Where a double has room for every millisecond: the difference in days, rounded upward.
void checkDaysBetween(Date const& date, long long amount) {
    constexpr long long msPerDay = 86400000;
    long long const between = amount % (1LL << 53);
    Date const other(
        static_cast<long long>(static_cast<unsigned long long>(date.GetMillisecondsSinceEpoch())
                               - static_cast<unsigned long long>(between)));
    long long const days = between / msPerDay + (between % msPerDay > 0 ? 1 : 0);
    long long const found = Date::GetNumberOfDaysBetween(date, other);
    expect(found == days || (between % msPerDay == 0 && found == days + 1), "days between");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    takeZone(input);
    unsigned int const flags = input.byte();
    int const narrow = input.below(40);
    Date const date(input.number<std::int64_t>() >> narrow);
    checkFields(date);
    checkTexts(date, flags);
    long long const amount = input.number<std::int64_t>();
    checkArithmetic(date, amount);
    checkDaysBetween(date, amount);
    return 0;
}
