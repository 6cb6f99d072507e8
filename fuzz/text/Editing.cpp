// Joining, cutting, padding, reversing and trimming any text, and hexadecimal text, against the
// plain steps.
#include "Expect.h"
#include "Input.h"

#include "model/PlainTextFunctions.h"
#include "qel/CharFunctions.h"

using namespace fuzz;
using qel::CharFunctions;

namespace {

void checkTrimming(std::string const& text) {
    char const* const s = text.c_str();
    expectEqual(CharFunctions::RemoveLeadingSpaces(s), model::trimLeft(text), "trimmed in front");
    expectEqual(CharFunctions::RemoveTrailingSpaces(s), model::trimRight(text),
                "trimmed at the end");
    expectEqual(CharFunctions::RemoveLeadingAndTrailingSpaces(s),
                model::trimLeft(model::trimRight(text)), "trimmed");
}

void checkHexText(std::string const& text) {
    for (bool const upperCase : {false, true})
        expectEqual(CharFunctions::AsciiToHexaString(text.c_str(), upperCase),
                    model::hexText(text, upperCase), "hexadecimal text");
    expectEqual(CharFunctions::HexaStringToAscii(text.c_str()), model::bytesOfHexText(text),
                "bytes of hexadecimal text");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    auto const fill = static_cast<char>(input.byte());
    unsigned int const width = input.byte();
    std::string const text = input.text();
    char const* const s = text.c_str();
    expectEqual(CharFunctions::PadLeftWith(s, width, fill), model::padLeft(text, width, fill),
                "padded in front");
    expectEqual(CharFunctions::PadWith(s, width, fill), model::padRight(text, width, fill),
                "padded at the end");
    expectEqual(CharFunctions::Reverse(s), model::reverse(text), "reversed");
    auto const count = input.number<unsigned int>();
    unsigned int const start = width % (CharFunctions::Length(s) + 1);
    expectEqual(CharFunctions::SubStr(s, start, count), text.substr(start, count), "part");
    std::string const other = input.text();
    expectEqual(CharFunctions::Concatenate(s, other.c_str()), text + other, "joined");
    checkTrimming(text);
    checkHexText(text);
    return 0;
}
