// Dates from counts, from fields and from text.
#include "DateFunctions.h"
#include "Dates.h"
#include "Expectations.h"
#include "model/PlainCalendar.h"
#include "model/PlainDateText.h"

#include "qel/Date.h"

namespace interface_test {

namespace {

using qel::Date;

/// Year, month, day, hour, minute, second and millisecond.
using Fields = std::array<unsigned int, 7>;

void build(Results& results, Fields const& f) {
    bool const isLocal = f[0] >= 1971 && f[0] <= 2037;
    long long const expected =
        isLocal ? model::countFromLocalFields(f[0], f[1], f[2], f[3], f[4], f[5], f[6])
                : model::countFromFields(f[0], f[1], f[2], f[3], f[4], f[5], f[6]);
    Date const date(f[0], f[1], f[2], f[3], f[4], f[5], f[6]);
    expectResult(results, date.GetMillisecondsSinceEpoch(), expected, f[0], f[1], f[2], f[3], f[4],
                 f[5], f[6]);
}

/// Each field from its extremes, the others ordinary.
void buildFromFields(Results& results) {
    for (unsigned int const year : {1970U, 1971U, 2012U, 2037U, 2038U}) {
        Fields const ordinary = {year, 11, 21, 9, 5, 7, 3};
        build(results, ordinary);
        for (std::size_t field = 0; field < ordinary.size(); ++field) {
            for (unsigned int const value : extremeUnsigned) {
                Fields fields = ordinary;
                fields[field] = value;
                build(results, fields);
            }
        }
    }
}

}  // namespace

std::vector<Function> dateConstructionFunctions() {
    return {
        {"Date::Date()",
         [](Results& results) { expectResult(results, Date().GetMillisecondsSinceEpoch(), 0); }},
        {"Date::Date(long long)",
         [](Results& results) {
             for (long long const count : extremeCounts())
                 expectResult(results, Date(count).GetMillisecondsSinceEpoch(), count, count);
         }},
        {"Date::Date(unsigned int, unsigned int, unsigned int, unsigned int, unsigned int, "
         "unsigned int, unsigned int)",
         buildFromFields,
         {State::timeZone}},
        {"Date::Date(char const*)",
         [](Results& results) {
             for (std::string const& text : dateTexts())
                 expectResult(results, Date(text.c_str()), model::dateOf(text), text);
         },
         {State::timeZone}},
        {"Date::GetMillisecondsSinceEpoch()",
         [](Results& results) {
             for (long long const count : extremeCounts()) {
                 Date const date(count);
                 expectResult(results, date.GetMillisecondsSinceEpoch(), count, count);
             }
         }},
    };
}

}  // namespace interface_test
