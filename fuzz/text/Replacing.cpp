// Replacing and removing parts of any text against the plain rescan, where that comes to an end.
#include "Expect.h"
#include "Input.h"

#include "model/PlainReplacement.h"
#include "model/PlainTextFunctions.h"
#include "qel/CharFunctions.h"

using namespace fuzz;
using qel::CharFunctions;

namespace {

constexpr std::size_t mostSteps = 300;

void checkAll(std::string const& text, std::string const& old, std::string const& replacement) {
    if (model::contains(replacement, old) && model::contains(text, old))
        return;  // never returns
    auto const expected =
        old.empty() ? std::optional(text) : model::replace(text, old, replacement, mostSteps);
    if (expected)
        expectEqual(CharFunctions::Replace(text.c_str(), old.c_str(), replacement.c_str()),
                    *expected, "all replaced");
}

void checkOnce(std::string const& text, std::string const& old, std::string const& replacement) {
    char const* const s = text.c_str();
    char const* const o = old.c_str();
    expectEqual(CharFunctions::ReplaceFirstOccurence(s, o, replacement.c_str()),
                model::replaceFirst(text, old, replacement), "first replaced");
    expectEqual(CharFunctions::ReplaceLastOccurence(s, o, replacement.c_str()),
                model::replaceLast(text, old, replacement), "last replaced");
    expectEqual(CharFunctions::RemoveFirstOccurence(s, o), model::removeFirst(text, old),
                "first removed");
    expectEqual(CharFunctions::RemoveLastOccurence(s, o), model::removeLast(text, old),
                "last removed");
}

/// The text, several times over, so that a few bytes make long periods.
std::string repeated(std::string const& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    int const textTimes = 1 + input.below(8);
    int const oldTimes = 1 + input.below(4);
    std::string const part = input.text();
    std::string const old = repeated(part, oldTimes) + input.text();
    std::string const replacement = input.text();
    std::string text = input.text() + repeated(part, textTimes);
    while (!input.ended())
        text += repeated(part, textTimes) + input.text();
    checkAll(text, old, replacement);
    checkAll(text, old, "");
    checkOnce(text, old, replacement);
    return 0;
}
