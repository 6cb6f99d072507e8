// Numbers as text.
#include "IntegerRows.h"
#include "LargeIntegerFunctions.h"

namespace interface_test {

namespace {

/// Texts to parse, one of them with a zero byte inside.
std::vector<std::string> const& texts() {
    static std::vector<std::string> const list = {"",
                                                  "-",
                                                  "-0",
                                                  "0",
                                                  "8",
                                                  "12-3",
                                                  "0x1F",
                                                  "-ff",
                                                  "--7",
                                                  "1 000",
                                                  "z9",
                                                  "+12",
                                                  std::string("1\0"
                                                              "2",
                                                              3),
                                                  "\xFF\x80"
                                                  "1",
                                                  std::string(90, '0') + "1",
                                                  std::string(300, '7'),
                                                  '-' + patternOf(1300)};
    return list;
}

/// The operand that parses is whatever it was: nothing of it is left but its capacity.
void parseEach(Results& results) {
    for (std::string const& text : texts()) {
        for (Radix const radix : extremes<Radix>()) {
            for (Operand const& operand : fewOperands()) {
                Twin twin;
                operand.assignTo(twin);
                both(twin, [&](auto& x) { x.parseString(text, radix); });
                std::string const fault = check(twin);
                ASSERT_EQ(fault, "") << text << " in radix " << radix.value;
                results.add(text, radix.value, twin.fast);
            }
        }
    }
}

}  // namespace

std::vector<Function> numberTextFunctions() {
    return {
        // The model's decimal text takes cubic time.
        unary<Radix>(
            "LargeInteger::toString(int)",
            [](auto const& x, Radix radix) { return x.toString(radix); },
            [](auto const& x, Radix radix) { return radix != 10 || x.getHighestBit() < 800; }),
        {"LargeInteger::parseString(std::string const&, int)", parseEach},
    };
}

}  // namespace interface_test
