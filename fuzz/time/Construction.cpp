// Dates from any fields, in some time zones, against the plain steps.
#include "Expect.h"
#include "Zone.h"

#include "model/PlainCalendar.h"
#include "qel/Date.h"

using namespace fuzz;

namespace {

/// Mostly small, as fields are.
unsigned int field(Input& input) {
    return input.flag() ? input.number<unsigned int>() : input.byte();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    takeZone(input);
    unsigned int const year =
        input.flag() ? input.number<unsigned int>() : 1900U + input.number<std::uint16_t>() % 256;
    unsigned int const month = field(input);
    unsigned int const day = field(input);
    unsigned int const hour = field(input);
    unsigned int const minute = field(input);
    unsigned int const second = field(input);
    unsigned int const millisecond = field(input);
    qel::Date const date(year, month, day, hour, minute, second, millisecond);
    auto* const plain =
        year >= 1971 && year <= 2037 ? model::countFromLocalFields : model::countFromFields;
    expectEqual(date.GetMillisecondsSinceEpoch(),
                plain(year, month, day, hour, minute, second, millisecond), "count");
    return 0;
}
