// Characters, searches and counts in any text against the plain steps.
#include "Expect.h"
#include "Input.h"

#include "model/PlainTextFunctions.h"
#include "qel/CharFunctions.h"

using namespace fuzz;
using qel::CharFunctions;

namespace {

void checkCharacter(char c) {
    bool const isLetter = model::lowerCase(c) != c || model::upperCase(c) != c;
    bool const isDigit = c >= '0' && c <= '9';
    expectEqual(CharFunctions::IsLetter(c), isLetter, "letter");
    expectEqual(CharFunctions::IsDigit(c), isDigit, "digit");
    expectEqual(CharFunctions::IsLetterOrDigit(c), isLetter || isDigit, "letter or digit");
    expectEqual(CharFunctions::IsUpperCase(c), model::lowerCase(c) != c, "upper-case letter");
    expectEqual(CharFunctions::IsLowerCase(c), model::upperCase(c) != c, "lower-case letter");
    expectEqual(CharFunctions::ToLowerCase(c), model::lowerCase(c), "lower case");
    expectEqual(CharFunctions::ToUpperCase(c), model::upperCase(c), "upper case");
    expectEqual(CharFunctions::GetHexDigitValue(c), model::hexDigit(c), "hexadecimal digit");
}

void checkText(std::string const& text) {
    char const* const s = text.c_str();
    expectEqual(CharFunctions::Length(s), text.size(), "length");
    expectEqual(CharFunctions::IsEmpty(s), text.empty(), "empty");
    expectEqual(CharFunctions::IsBoolean(s), model::isBoolean(text), "boolean");
    expectEqual(CharFunctions::StartsWithDigit(s), text.find_first_of("0123456789") == 0,
                "digit in front");
    bool const isExtended = std::any_of(text.begin(), text.end(), [](char c) { return c < 0; });
    expectEqual(CharFunctions::ContainsExtendedAsciiCharacters(s), isExtended, "extended bytes");
    expectEqual(CharFunctions::ToLowerCase(s), model::lowerCase(text), "text in lower case");
    expectEqual(CharFunctions::ToUpperCase(s), model::upperCase(text), "text in upper case");
}

void checkSearches(std::string const& text, std::string const& part) {
    char const* const s = text.c_str();
    char const* const p = part.c_str();
    expectEqual(CharFunctions::Contains(s, p), model::contains(text, part), "contains");
    expectEqual(CharFunctions::StartsWith(s, p), model::startsWith(text, part), "starts with");
    expectEqual(CharFunctions::EndsWith(s, p), model::endsWith(text, part), "ends with");
    expectEqual(CharFunctions::IndexOfFirstOccurence(s, p), model::indexOfFirst(text, part),
                "first of a set");
    expectEqual(CharFunctions::IndexOfLastOccurence(s, p), model::indexOfLast(text, part),
                "last of a set");
    std::string const lowerText = model::lowerCase(text);
    std::string const lowerPart = model::lowerCase(part);
    expectEqual(CharFunctions::StartsWithIgnoreCase(s, p), model::startsWith(lowerText, lowerPart),
                "starts with, in any case");
    expectEqual(CharFunctions::EndsWithIgnoreCase(s, p), model::endsWith(lowerText, lowerPart),
                "ends with, in any case");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    auto const c = static_cast<char>(input.byte());
    auto const other = static_cast<char>(input.byte());
    std::string const text = input.text();
    checkCharacter(c);
    bool const isPair = model::hexDigit(c) >= 0 && model::hexDigit(other) >= 0;
    expectEqual(CharFunctions::HexaToInt(c, other),
                isPair ? 16 * model::hexDigit(c) + model::hexDigit(other) : -1, "pair of digits");
    expectEqual(CharFunctions::CountOccurence(text.c_str(), c), model::count(text, c), "count");
    checkText(text);
    checkSearches(text, input.text());
    return 0;
}
