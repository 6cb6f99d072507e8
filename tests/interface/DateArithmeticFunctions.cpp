// Sums that wrap around, differences in days, and comparisons: of one date with itself too.
#include "DateFunctions.h"
#include "Dates.h"
#include "Expectations.h"

#include "qel/Date.h"

#include <cmath>

namespace interface_test {

namespace {

using qel::Date;

/// The sum of a count and so many units, in 64 bits that wrap around.
long long moved(long long count, long long n, unsigned long long unit_ms) {
    return static_cast<long long>(static_cast<unsigned long long>(count)
                                  + static_cast<unsigned long long>(n) * unit_ms);
}

void addUnits(Results& results, void (Date::*add)(long long) noexcept, unsigned long long unit_ms) {
    for (long long const count : extremeCounts()) {
        for (long long const n : extremesOf<long long>) {
            Date date(count);
            (date.*add)(n);
            expectResult(results, date.GetMillisecondsSinceEpoch(), moved(count, n, unit_ms), count,
                         n);
        }
    }
}

/// By an operator that returns its own date.
void moveBy(Results& results, Date& (Date::*move)(unsigned long long) noexcept, bool back) {
    for (long long const count : extremeCounts()) {
        for (unsigned long long const amount : extremesOf<unsigned long long>) {
            Date date(count);
            EXPECT_EQ(&(date.*move)(amount), &date);
            auto const n = static_cast<long long>(back ? 0 - amount : amount);
            expectResult(results, date.GetMillisecondsSinceEpoch(), moved(count, n, 1), count,
                         amount);
        }
    }
}

long long daysBetween(long long first, long long second) {
    double const volatile difference = static_cast<double>(static_cast<long long>(
        static_cast<unsigned long long>(first) - static_cast<unsigned long long>(second)));
    double const volatile days = difference * 1.1574074074074074e-08;
    return static_cast<long long>(std::ceil(days));
}

template <typename Operator, typename Model>
void forEachPairOfDates(Results& results, Operator function, Model model) {
    for (long long const first : extremeCounts()) {
        for (long long const second : extremeCounts())
            expectResult(results, function(Date(first), Date(second)), model(first, second), first,
                         second);
        Date const date(first);
        expectResult(results, function(date, date), model(first, first), "itself", first);
    }
}

}  // namespace

std::vector<Function> dateArithmeticFunctions() {
    return {
        {"Date::operator+=(unsigned long long)",
         [](Results& results) { moveBy(results, &Date::operator+=, false); }},
        {"Date::operator-=(unsigned long long)",
         [](Results& results) { moveBy(results, &Date::operator-=, true); }},
        {"Date::AddSeconds(long long)",
         [](Results& results) { addUnits(results, &Date::AddSeconds, 1000); }},
        {"Date::AddMinutes(long long)",
         [](Results& results) { addUnits(results, &Date::AddMinutes, 60000); }},
        {"Date::AddHours(long long)",
         [](Results& results) { addUnits(results, &Date::AddHours, 3600000); }},
        {"Date::AddDays(long long)",
         [](Results& results) { addUnits(results, &Date::AddDays, 86400000); }},
        {"Date::GetNumberOfDaysBetween(Date const&, Date const&)",
         [](Results& results) {
             forEachPairOfDates(results, Date::GetNumberOfDaysBetween, daysBetween);
         },
         {State::roundingMode}},
    };
}

std::vector<Function> dateComparisonFunctions() {
    return {
        {"operator==(Date const&, Date const&)",
         [](Results& results) {
             forEachPairOfDates(
                 results, [](Date const& a, Date const& b) { return a == b; },
                 [](long long a, long long b) { return a == b; });
         }},
        {"operator!=(Date const&, Date const&)",
         [](Results& results) {
             forEachPairOfDates(
                 results, [](Date const& a, Date const& b) { return a != b; },
                 [](long long a, long long b) { return a != b; });
         }},
        {"operator<(Date const&, Date const&)",
         [](Results& results) {
             forEachPairOfDates(
                 results, [](Date const& a, Date const& b) { return a < b; },
                 [](long long a, long long b) { return a < b; });
         }},
        {"operator>(Date const&, Date const&)",
         [](Results& results) {
             forEachPairOfDates(
                 results, [](Date const& a, Date const& b) { return a > b; },
                 [](long long a, long long b) { return a > b; });
         }},
        {"operator<=(Date const&, Date const&)",
         [](Results& results) {
             forEachPairOfDates(
                 results, [](Date const& a, Date const& b) { return a <= b; },
                 [](long long a, long long b) { return a <= b; });
         }},
        {"operator>=(Date const&, Date const&)",
         [](Results& results) {
             forEachPairOfDates(
                 results, [](Date const& a, Date const& b) { return a >= b; },
                 [](long long a, long long b) { return a >= b; });
         }},
    };
}

}  // namespace interface_test
