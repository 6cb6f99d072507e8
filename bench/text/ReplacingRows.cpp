// Replace against the loop that everyone writes with find and replace, up to 1 MB: with few
// and many occurrences, and with texts and parts that nearly match everywhere. Where the loop is
// quadratic it is measured up to 64 KB only.
#include "Texts.h"

#include "qel/CharFunctions.h"

#include <random>
#include <string_view>

namespace qel::bench {
namespace {

std::vector<int> const sizes = {1 << 8, 1 << 12, 1 << 16, 1 << 20};
constexpr int largestForTheLoop = 1 << 16;

struct Case {
    std::string text;
    std::string old;
    std::string replacement;
};

std::string letters(std::size_t size) {
    std::mt19937 random(1);
    std::string text(size, ' ');
    for (char& c : text)
        c = static_cast<char>('a' + random() % 26);
    return text;
}

/// Random lower-case letters with `word` at every `distance` bytes.
std::string sprinkled(std::size_t size, std::size_t distance, std::string const& word) {
    std::string text = letters(size);
    for (std::size_t i = distance / 2; i + word.size() <= size; i += distance)
        text.replace(i, word.size(), word);
    return text;
}

// One text each: its length gives the branch predictor enough to do.

std::vector<Case> few(int size) {
    auto const length = static_cast<std::size_t>(size);
    return {{sprinkled(length, length / 4, "[needle]"), "[needle]", "<pin>"}};
}

std::vector<Case> fewLetters(int size) {
    auto const length = static_cast<std::size_t>(size);
    return {{sprinkled(length, length / 4, "needle"), "needle", "pin"}};
}

std::vector<Case> manySameLength(int size) {
    return {{sprinkled(static_cast<std::size_t>(size), 6, " "), " ", "_"}};
}

std::vector<Case> manyShrinking(int size) {
    return {{sprinkled(static_cast<std::size_t>(size), 12, "&amp;"), "&amp;", "+"}};
}

std::vector<Case> manyGrowing(int size) {
    return {{sprinkled(static_cast<std::size_t>(size), 12, "&"), "&", "+amp;"}};
}

std::vector<Case> doubledLetters(int size) {
    return {{std::string(static_cast<std::size_t>(size), 'a'), "aa", "a"}};
}

/// Every place of the text matches half of the part before it fails.
std::vector<Case> longPartThatNearlyMatches(int size) {
    std::size_t const half = static_cast<std::size_t>(size) / 8;
    return {{std::string(static_cast<std::size_t>(size), 'a'),
             std::string(half, 'a') + 'b' + std::string(half, 'a'), "c"}};
}

std::string loopOverFind(Case const& c) {
    std::string text(c.text.c_str());
    for (std::size_t i = 0; (i = text.find(c.old, i)) != std::string::npos;
         i += c.replacement.size())
        text.replace(i, c.old.size(), c.replacement);
    return text;
}

/// Replaces what replacements bring about too, as Replace does.
std::string loopUntilNothingIsFound(Case const& c) {
    Case rest = c;
    while (rest.text.find(rest.old) != std::string::npos)
        rest.text = loopOverFind(rest);
    return rest.text;
}

void addReplacingRow(Row const& row, Make<Case> make, int largest,
                     std::string (*loop)(Case const&) = loopOverFind) {
    addRows(
        row, sizes, make,
        [](Case const& c) {
            return CharFunctions::Replace(c.text.c_str(), c.old.c_str(), c.replacement.c_str());
        },
        Peer{"loop", loop, largest});
}

void addReplacingRows() {
    addReplacingRow(
        {"replace, few", {"CharFunctions::Replace(char const*, char const*, char const*)"}}, few,
        INT_MAX);
    addReplacingRow({"replace, fewLetters"}, fewLetters, INT_MAX);
    addReplacingRow({"replace, manySameLength"}, manySameLength, INT_MAX);
    addReplacingRow({"replace, manyShrinking"}, manyShrinking, largestForTheLoop);
    addReplacingRow({"replace, manyGrowing"}, manyGrowing, largestForTheLoop);
    addReplacingRow({"replace, doubledLetters"}, doubledLetters, largestForTheLoop,
                    loopUntilNothingIsFound);
    addReplacingRow({"replace, nearlyMatching"}, longPartThatNearlyMatches, largestForTheLoop);
}

// --- one occurrence ------------------------------------------------------------------------------

constexpr std::string_view mark = "[x]";

std::string replaced(std::string text, std::size_t position, char const* replacement) {
    return position == std::string::npos ? text : text.replace(position, mark.size(), replacement);
}

void addSingleRows() {
    addRows(
        {"ReplaceFirstOccurence",
         {"CharFunctions::ReplaceFirstOccurence(char const*, char const*, char const*)"}},
        textSizes, textsWithMarks,
        [](auto& x) { return CharFunctions::ReplaceFirstOccurence(x.s(), mark.data(), "<yz>"); },
        Peer{"find", [](auto& x) {
                 std::string text(x.s());
                 std::size_t const position = text.find(mark);
                 return replaced(std::move(text), position, "<yz>");
             }});
    addRows(
        {"ReplaceLastOccurence",
         {"CharFunctions::ReplaceLastOccurence(char const*, char const*, char const*)"}},
        textSizes, textsWithMarks,
        [](auto& x) { return CharFunctions::ReplaceLastOccurence(x.s(), mark.data(), "<yz>"); },
        Peer{"rfind", [](auto& x) {
                 std::string text(x.s());
                 std::size_t const position = text.rfind(mark);
                 return replaced(std::move(text), position, "<yz>");
             }});
}

void addRemovingRows() {
    addRows(
        {"RemoveAllOccurence", {"CharFunctions::RemoveAllOccurence(char const*, char const*)"}},
        textSizes, textsWithMarks,
        [](auto& x) { return CharFunctions::RemoveAllOccurence(x.s(), mark.data()); },
        Peer{"loop", [](auto& x) {
                 return loopOverFind({x.text, std::string(mark), std::string()});
             }});
    addRows(
        {"RemoveFirstOccurence", {"CharFunctions::RemoveFirstOccurence(char const*, char const*)"}},
        textSizes, textsWithMarks,
        [](auto& x) { return CharFunctions::RemoveFirstOccurence(x.s(), mark.data()); },
        Peer{"find", [](auto& x) {
                 std::string_view const s(x.s());
                 return std::string(s.substr(s.find(mark) + mark.size()));
             }});
    addRows(
        {"RemoveLastOccurence", {"CharFunctions::RemoveLastOccurence(char const*, char const*)"}},
        textSizes, textsWithMarks,
        [](auto& x) { return CharFunctions::RemoveLastOccurence(x.s(), mark.data()); },
        Peer{"rfind", [](auto& x) {
                 std::string text(x.s());
                 return text.erase(text.rfind(mark), mark.size());
             }});
}

[[maybe_unused]] bool const registered =
    (addReplacingRows(), addSingleRows(), addRemovingRows(), true);

}  // namespace
}  // namespace qel::bench
