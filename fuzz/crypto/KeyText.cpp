// Keys from text, against the plain integers: what they write, and when they are equal.
#include "Expect.h"
#include "Input.h"

#include "model/PlainInteger.h"
#include "qel/RSAKey.h"

using namespace fuzz;
using qel::RSAKey;

namespace {

std::string plainField(std::string const& text) {
    plain::LargeInteger field;
    field.parseString(text, 16);
    return field.toString(16);
}

std::string plainKey(std::string const& text) {
    std::size_t const comma = text.find(',');
    if (comma == std::string::npos)
        return ",";
    return plainField(text.substr(0, comma)) + ',' + plainField(text.substr(comma + 1));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    std::string const text = input.text();
    std::string const otherText = input.text();
    RSAKey const key(text.c_str());
    RSAKey const other(otherText.c_str());
    expectEqual(key.toString(), plainKey(text), "text of a key");
    expect(RSAKey(key.toString().c_str()) == key, "its text is the same key");
    bool const areEqual = plainKey(text) == plainKey(otherText);
    expectEqual(key == other, areEqual, "equal keys");
    expectEqual(key != other, !areEqual, "different keys");
    return 0;
}
