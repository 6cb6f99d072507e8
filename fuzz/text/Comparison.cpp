// Comparisons and raw copies of any two texts against the plain steps.
#include "Expect.h"
#include "Input.h"

#include "model/PlainTextFunctions.h"
#include "qel/CharFunctions.h"

using namespace fuzz;
using qel::CharFunctions;

namespace {

int signOf(int v) {
    return (v > 0) - (v < 0);
}

void checkComparisons(std::string const& a, std::string const& b, unsigned int n) {
    char const* const left = a.c_str();
    char const* const right = b.c_str();
    int const inAnyCase = model::compare(model::lowerCase(a), model::lowerCase(b));
    expectEqual(signOf(CharFunctions::Compare(left, right)), model::compare(a, b), "order");
    expectEqual(signOf(CharFunctions::Compare(left, right, n)),
                model::compare(a.substr(0, n), b.substr(0, n)), "order of n bytes");
    expectEqual(signOf(CharFunctions::CompareIgnoreCase(left, right)), inAnyCase,
                "order in any case");
    expectEqual(CharFunctions::AreEqual(left, right), a == b, "equality");
    expectEqual(CharFunctions::AreEqualIgnoreCase(left, right), inAnyCase == 0,
                "equality in any case");
}

void checkCopies(std::string const& a, std::string const& b, unsigned int n) {
    std::string buffer(a.size() + b.size() + 1, '#');
    CharFunctions::Copy(buffer.data(), a.c_str());
    CharFunctions::Append(buffer.data(), b.c_str());
    expectEqual(buffer, a + b + '\0', "copied and appended");

    std::string bounded(n + 1, '#');
    CharFunctions::Copy(bounded.data(), a.c_str(), n);
    expectEqual(bounded, model::padRight(a.substr(0, n), n, '\0') + '#', "copied n bytes");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    unsigned int const n = input.byte();
    std::string const a = input.text();
    std::string const b = input.text();
    checkComparisons(a, b, n);
    checkCopies(a, b, n);
    return 0;
}
