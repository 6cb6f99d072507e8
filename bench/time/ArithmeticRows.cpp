// Arithmetic beside the standard library's durations.
#include "Instants.h"

#include <chrono>

namespace qel::bench {
namespace {

using std::chrono::milliseconds;
using TimePoint = std::chrono::time_point<std::chrono::system_clock, milliseconds>;

struct Pair {
    Date date;
    Date other;
    TimePoint point;
    TimePoint otherPoint;
    int amount;
};

std::vector<Pair> pairs(int) {
    std::vector<Instant> const instants = inside(0);
    std::vector<Pair> table;
    for (std::size_t i = 0; i < instants.size(); ++i) {
        Instant const& a = instants[i];
        Instant const& b = instants[(i + 1) % instants.size()];
        table.push_back({a.date, b.date, TimePoint(milliseconds(a.count)),
                         TimePoint(milliseconds(b.count)),
                         static_cast<int>(a.count / 1000 % 10000)});
    }
    return table;
}

/// Moves the date itself, there and back.
template <typename Duration, void (Date::*add)(long long) noexcept>
void addMoveRow(Row const& row) {
    addRows(
        row, noSize, pairs,
        [](auto& x) {
            (x.date.*add)(x.amount);
            benchmark::DoNotOptimize(x.date);
            (x.date.*add)(-x.amount);
            return x.date.GetMillisecondsSinceEpoch();
        },
        Peer{"chrono", [](auto& x) {
                 x.point += Duration(x.amount);
                 benchmark::DoNotOptimize(x.point);
                 x.point += Duration(-x.amount);
                 return static_cast<long long>(x.point.time_since_epoch().count());
             }});
}

void addSumRows() {
    addRows(
        {"date += and -=",
         {"Date::operator+=(unsigned long long)", "Date::operator-=(unsigned long long)"}},
        noSize, pairs,
        [](auto& x) {
            auto const amount = static_cast<unsigned long long>(x.amount);
            x.date += amount;
            benchmark::DoNotOptimize(x.date);
            x.date -= amount;
            return x.date.GetMillisecondsSinceEpoch();
        },
        Peer{"chrono", [](auto& x) {
                 x.point += milliseconds(x.amount);
                 benchmark::DoNotOptimize(x.point);
                 x.point -= milliseconds(x.amount);
                 return static_cast<long long>(x.point.time_since_epoch().count());
             }});
    addMoveRow<std::chrono::seconds, &Date::AddSeconds>(
        {"AddSeconds", {"Date::AddSeconds(long long)"}});
    addMoveRow<std::chrono::minutes, &Date::AddMinutes>(
        {"AddMinutes", {"Date::AddMinutes(long long)"}});
    addMoveRow<std::chrono::hours, &Date::AddHours>({"AddHours", {"Date::AddHours(long long)"}});
    addMoveRow<std::chrono::days, &Date::AddDays>({"AddDays", {"Date::AddDays(long long)"}});
}

void addPartRows() {
    addRows(
        {"GetNumberOfDaysBetween", {"Date::GetNumberOfDaysBetween(Date const&, Date const&)"}},
        noSize, pairs, [](auto& x) { return Date::GetNumberOfDaysBetween(x.date, x.other); },
        Peer{"chrono", [](auto& x) {
                 return static_cast<long long>(
                     std::chrono::ceil<std::chrono::days>(x.point - x.otherPoint).count());
             }});
    addRows(
        {"GetSeconds", {"Date::GetSeconds()"}}, noSize, pairs,
        [](auto& x) { return x.date.GetSeconds(); },
        Peer{"chrono", [](auto& x) {
                 auto const whole = std::chrono::floor<std::chrono::minutes>(x.point);
                 return static_cast<unsigned int>(
                     std::chrono::floor<std::chrono::seconds>(x.point - whole).count());
             }});
    addRows(
        {"GetMilliSeconds", {"Date::GetMilliSeconds()"}}, noSize, pairs,
        [](auto& x) { return x.date.GetMilliSeconds(); },
        Peer{"chrono", [](auto& x) {
                 auto const whole = std::chrono::floor<std::chrono::seconds>(x.point);
                 return static_cast<unsigned int>((x.point - whole).count());
             }});
}

[[maybe_unused]] bool const registered = (addSumRows(), addPartRows(), true);

}  // namespace
}  // namespace qel::bench
