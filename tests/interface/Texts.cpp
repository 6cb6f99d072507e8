#include "Texts.h"

namespace interface_test {

namespace {

/// Without byte 0, which ends a text.
std::string allBytes() {
    return {allCharacters.begin() + 1, allCharacters.end()};
}

std::string longText() {
    std::string text(5000, 'x');
    for (std::size_t i = 0; i < text.size(); i += 500)
        text.replace(i, 8, "Abc.\xC9\xE9/ ");
    return text;
}

}  // namespace

std::vector<std::string> const& texts() {
    static std::vector<std::string> const all = {
        "",
        "a",
        allBytes(),
        longText(),
        "\xC9",
        "\xE9",
        "R\xC9SUM\xC9.\xC9",
        "r\xE9sum\xE9.\xE9",
        "MiXed Case",
        "mIxED cASE",
        "TITLE.GIF",
        "title.gif",
        "\xDD\xFD",
        "0123456789",
        "1,234.5",
        "1.5",
        "1.5e3",
        "-12",
        "0x1F",
        "414243",
        " \t\n\v\f\r",
        "  in between\t",
        "\xA0",
        "\xA0word\xA0",
        "true",
        ".",
        "dir/file.txt",
        "dir\\file.TXT",
        "/",
        "~",
        "~/x",
        ":",
        "Disk:/x",
    };
    return all;
}

std::vector<std::string> const& fewTexts() {
    static std::vector<std::string> const all = {
        "", "a", "A", "ab", "aab", "abab a", "\xE9\xC9", "\xE9", "\xC9", allBytes(), longText(),
    };
    return all;
}

std::vector<std::string> const& numberTexts() {
    static std::vector<std::string> const all = {
        "0",
        "-0",
        "1e2",
        "0.3",
        "0.1e1",
        ".1e1",
        "3e-5",
        "12-",
        "1-2",
        "1e5.3",
        "0x",
        "0xFFFFFFFF",
        "0x123456789abcdef01",
        "1e400",
        "-1e400",
        "0e400",
        "4294967295",
        "4294967296",
        "-2147483648",
        "2147483647",
        "2147483648",
        "-2147483649",
        "1e-400",
        "1.7976931348623157e308",
        "4.9e-324",
        "0.1",
        "123456789.123456789",
        "1,5",
        " 5",
        "\t-5 apples",
        "+7",
        "1e",
        "inf",
        "nan",
        "16777217",
        "3.4028235677973366e38",
    };
    return all;
}

}  // namespace interface_test
