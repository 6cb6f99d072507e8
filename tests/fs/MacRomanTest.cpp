// Every byte of Mac OS Roman against another implementation of it.
#include "qel/Folder.h"

#include "VectorFiles.h"

#include <set>

namespace {

using vector_files::Fields;
using vector_files::Operation;

std::string bytes(std::string const& hexadecimal) {
    std::string text;
    for (std::size_t i = 0; i < hexadecimal.size(); i += 2)
        text += static_cast<char>(std::stoi(hexadecimal.substr(i, 2), nullptr, 16));
    return text;
}

std::set<std::string> checkedBytes;

void checkByte(Fields const& f) {
    std::string const path = '/' + bytes(f[0]);
    EXPECT_EQ(qel::Folder::TranslateAbsolutePath(path.c_str()), '/' + bytes(f[1]));
    checkedBytes.insert(f[0]);
}

TEST(MacRoman, EveryByteIsTheCharacterOfThePythonCodec) {
    for (Operation const& operation : vector_files::present({{"mac_roman.txt", 2, checkByte}})) {
        vector_files::run(operation);
        EXPECT_EQ(checkedBytes.size(), 255U);
    }
}

TEST(MacRoman, TheMappingIsTheOneOfToday) {
    checkByte({"db", "e282ac"});  // euro sign, not the old currency sign
    checkByte({"bd", "cea9"});    // Greek capital omega, not the sign for ohm
    checkByte({"c6", "e28886"});  // increment, not Greek capital delta
    checkByte({"f0", "efa3bf"});  // the private character U+F8FF
}

}  // namespace
