// Integers in streams, against the plain model's digits and the stream's own padding.
#include "CryptoFunctions.h"
#include "IntegerRows.h"

#include "qel/LargeIntegerStream.h"

#include <ios>
#include <sstream>

namespace interface_test {

namespace {

struct Base {
    std::ios_base::fmtflags flags;
    int radix;
};

/// More than one base is decimal, and so is none.
std::vector<Base> const bases = {{std::ios_base::dec, 10},
                                 {std::ios_base::hex, 16},
                                 {std::ios_base::oct, 8},
                                 {std::ios_base::hex | std::ios_base::oct, 10},
                                 {std::ios_base::fmtflags(), 10}};

std::vector<std::ios_base::fmtflags> const otherFlags = {
    std::ios_base::fmtflags(), std::ios_base::left, std::ios_base::right,
    std::ios_base::internal | std::ios_base::showbase | std::ios_base::uppercase
        | std::ios_base::showpos};

template <typename Value>
std::string written(Value const& value, std::ios_base::fmtflags flags, int width) {
    std::ostringstream out;
    out.flags(flags);
    out.width(width);
    out.fill('*');
    std::ostream& result = out << value;
    EXPECT_EQ(&result, &out);
    EXPECT_EQ(out.width(), 0);
    return out.str();
}

/// Left out: widths of 2^31, which write as many bytes.
void write(Results& results, Operand const& operand, Base const& base) {
    Twin twin;
    operand.assignTo(twin);
    std::string const digits = twin.plain.toString(base.radix);
    for (int const width : extremeInts) {
        for (std::ios_base::fmtflags const flags : otherFlags) {
            if (width > 65535)
                continue;
            std::string const text = written(twin.fast, base.flags | flags, width);
            ASSERT_EQ(text, written(digits.empty() ? "0" : digits, flags, width))
                << operand.description() << " in width " << width;
        }
        if (width <= 33)
            results.add("", base.radix, width, written(twin.fast, base.flags, width));
    }
    EXPECT_EQ(check(twin), "");
}

}  // namespace

std::vector<Function> streamFunctions() {
    return {{"operator<<(std::ostream&, LargeInteger const&)", [](Results& results) {
                 for (Base const& base : bases) {
                     for (Operand const& operand : manyOperands()) {
                         // The model's decimal text takes cubic time.
                         if (base.radix != 10 || operand.number.plain.getHighestBit() < 300)
                             write(results, operand, base);
                     }
                 }
             }}};
}

}  // namespace interface_test
