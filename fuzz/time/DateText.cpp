// Day-month-year and build-date text of any kind, read and written, against the plain steps.
#include "Expect.h"
#include "Zone.h"

#include "model/PlainDateText.h"
#include "qel/Date.h"

using namespace fuzz;
using qel::Date;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    takeZone(input);
    std::string const text = input.text();
    char const* const s = text.c_str();
    model::DayMonthYear const plain = model::dayMonthYear(text);
    expectEqual(Date::GetDay(s), plain.day, "day");
    expectEqual(Date::GetMonth(s), plain.month, "month");
    expectEqual(Date::GetYear(s), plain.year, "year");
    expectEqual(Date::IsValidDate(s), model::isValidDate(text), "validity");
    expectEqual(Date(s).GetMillisecondsSinceEpoch(),
                model::dateOf(text).GetMillisecondsSinceEpoch(), "count");
    expectEqual(Date::DDMMYYYYToDATEMacro(s), model::writeBuildDate(text), "build date written");
    expectEqual(Date::DATEMacroToDDMMYYYY(s), model::readBuildDate(text), "build date read");
    return 0;
}
