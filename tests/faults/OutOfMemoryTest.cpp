// The allocations of the operations fail one at a time, each in a process of its own, the first 40
// and of more than that a sample: the process ends there and then, by abort, and what was not to be
// changed is as it was. Integers say so in one line of the library's own; texts are the standard
// library's, whose exception ends the process with the run-time library's words.
#include "Ending.h"
#include "FailingAllocations.h"

#include "Thoroughness.h"
#include "fs/TemporaryFolder.h"

#include "qel/CharFunctions.h"
#include "qel/Date.h"
#include "qel/File.h"
#include "qel/Folder.h"
#include "qel/LargeInteger.h"
#include "qel/PrimesNumber.h"
#include "qel/RSAKey.h"
#include "qel/Random.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

namespace {

using namespace qel;

/// What an operation may say last.
enum class LastWords { ownLine, runTimeLibrary, either };

void expectPromisedWords(std::string const& words, LastWords promised) {
    bool const isOwnLine = words == "qel: out of memory\n";
    // "terminate called ..." in GNU's run-time library, "libc++abi: terminating ..." in LLVM's.
    bool const isRunTimeLibrary = words.find("terminat") != std::string::npos
                                  && words.find("qel") == std::string::npos
                                  && words.find("damaged") == std::string::npos;
    EXPECT_TRUE((isOwnLine && promised != LastWords::runTimeLibrary)
                || (isRunTimeLibrary && promised != LastWords::ownLine))
        << words;
}

/// All of a few failures, and of many the first and some of the rest.
int next(int n) {
    constexpr int first = thoroughness::cases(40, 8);
    return n < first ? n + 1 : n + n / 4;
}

/// `operation` gets fresh operands from `make`, each time in a process of its own.
template <typename Make, typename Operation>
void expectTheEnd(char const* name, LastWords promised, Make make, Operation operation) {
    auto operands = make();
    faults::failAllocation(0);
    operation(operands);
    int const count = faults::allocations();
    EXPECT_GT(count, 0) << name;
    for (int n = 1; n <= count; n = next(n)) {
        SCOPED_TRACE(std::string(name) + ", allocation " + std::to_string(n) + " of "
                     + std::to_string(count));
        auto fresh = make();
        auto const steps = [&] {
            faults::failAllocation(n);
            operation(fresh);
        };
        faults::Ending const ending = faults::endingOf(steps, [&] { return fresh.isIntact(); });
        EXPECT_TRUE(ending.aborted) << "it went on";
        if (ending.aborted)
            expectPromisedWords(ending.lastWords, promised);
    }
}

// --- integers ----------------------------------------------------------------------------------

/// A number of exactly that many bits, random but odd.
LargeInteger oddNumber(int bits, int seed) {
    LargeInteger v;
    Random(seed).fillBitsRandomly(v, 0, bits);
    v.setBit(bits - 1);
    v.setBit(0);
    return v;
}

/// One number to change and two that stay.
struct Integers {
    LargeInteger a;
    LargeInteger b;
    LargeInteger m;
    LargeInteger sameAsB;
    LargeInteger sameAsM;

    explicit Integers(int bits)
        : a(oddNumber(bits, 1)), b(oddNumber(bits * 2 / 3 + 3, 2)), m(oddNumber(bits, 3)),
          sameAsB(b), sameAsM(m) {}

    [[nodiscard]] bool isIntact() const { return b == sameAsB && m == sameAsM; }
};

struct IntegerRow {
    char const* name;
    void (*operation)(Integers&);
    LastWords promised = LastWords::ownLine;
};

template <typename Value>
void drop(Value const& /*result*/) {}

std::string const manyLetters(60000, 'a');
std::string const manyDigits(60000, '7');
std::string const digitsApart = "1 2" + std::string(600, '7');

IntegerRow const integerRows[] = {
    {"copy", [](Integers& v) { drop(LargeInteger(v.m)); }},
    {"assign", [](Integers& v) { v.a = v.m * v.m; }},
    {"reserve", [](Integers& v) { v.a.ensureSize(100000); }},
    {"set a bit", [](Integers& v) { v.a.setBit(200000); }},
    {"set a range", [](Integers& v) { v.a.setRange(199000, 3000, true); }},
    {"set an int", [](Integers& v) { v.a.setBitRangeAsInt(200000, 32, 7); }},
    {"get a range", [](Integers& v) { drop(v.m.getBitRange(1, 380)); }},
    {"insert a bit", [](Integers& v) { v.a.insertBit(200000, true); }},
    {"fill", [](Integers& v) { Random(7).fillBitsRandomly(v.a, 0, 200000); }},
    {"negation", [](Integers& v) { drop(-v.b); }},
    {"++", [](Integers& v) { ++(v.a = v.m * v.m); }},  // a tight value grows
    {"postfix ++", [](Integers& v) { v.a++; }},
    {"postfix --", [](Integers& v) { v.a--; }},
    {"+", [](Integers& v) { drop(v.b + v.m); }},
    {"-", [](Integers& v) { drop(v.b - v.m); }},
    {"*", [](Integers& v) { drop(v.b * v.m); }},
    {"/", [](Integers& v) { drop(v.m * v.m / v.b); }},
    {"%", [](Integers& v) { drop(v.m % v.b); }},
    {"&", [](Integers& v) { drop(v.b & v.m); }},
    {"|", [](Integers& v) { drop(v.b | v.m); }},
    {"^", [](Integers& v) { drop(v.b ^ v.m); }},
    {"<<", [](Integers& v) { drop(v.b << 100); }},
    {">>", [](Integers& v) { drop(v.b >> 3); }},
    {"*=", [](Integers& v) { v.a *= v.b; }},
    {"-= of a smaller", [](Integers& v) { v.a -= v.a + v.b; }},
    {"+= of another sign",
     [](Integers& v) {
         v.a.setNegative(true);
         v.a += v.a * v.b;
     }},
    {"<<=", [](Integers& v) { v.a <<= 100000; }},
    {"divideBy",
     [](Integers& v) {
         LargeInteger remainder;
         v.a *= v.m;
         v.a.divideBy(v.b, remainder);
     }},
    {"gcd", [](Integers& v) { drop(v.m.findGreatestCommonDivisor(v.b)); }},
    {"subtractive gcd",
     [](Integers& v) {
         LargeInteger x(v.b);
         drop(LargeInteger::simpleGCD(&v.a, &x));
     }},
    {"text in radix 16", [](Integers& v) { drop(v.b.toString(16)); }, LastWords::either},
    {"text in radix 10", [](Integers& v) { drop(v.b.toString(10)); }, LastWords::either},
    {"parse in radix 16", [](Integers& v) { v.a.parseString(manyLetters, 16); }, LastWords::either},
    {"parse in radix 10", [](Integers& v) { v.a.parseString(manyDigits, 10); }, LastWords::either},
    {"parse other characters", [](Integers& v) { v.a.parseString(digitsApart, 10); },
     LastWords::either},
};

/// Operands of the first width need memory, the workspace of the second does not fit on the stack.
TEST(OutOfMemory, EveryIntegerOperationEndsTheProcess) {
    for (int const bits : {450, 60000}) {
        for (IntegerRow const& row : integerRows)
            expectTheEnd(
                row.name, row.promised, [bits] { return Integers(bits); }, row.operation);
    }
}

/// Those whose results have a capacity of at most nine words.
IntegerRow const shortRows[] = {
    {"zero", [](Integers&) { drop(LargeInteger()); }},
    {"from an int", [](Integers&) { drop(LargeInteger(-5)); }},
    {"from an unsigned int", [](Integers&) { drop(LargeInteger(5U)); }},
    {"from a long long", [](Integers&) { drop(LargeInteger(1LL << 40)); }},
    {"copy", [](Integers& v) { drop(LargeInteger(v.b)); }},
    {"assign", [](Integers& v) { v.a = v.b; }},
    {"move",
     [](Integers& v) {
         LargeInteger moved(std::move(v.a));
         v.a = std::move(moved);
     }},
    {"swap", [](Integers& v) { v.a.swapWith(v.sameAsM); }},
    {"clear", [](Integers& v) { v.a.clear(); }},
    {"+", [](Integers& v) { drop(v.b + v.m); }},
    {"-", [](Integers& v) { drop(v.b - v.m); }},
    {"*", [](Integers& v) { drop(v.b * v.m); }},
    {"/", [](Integers& v) { drop(v.m / v.b); }},
    {"%", [](Integers& v) { drop(v.m % v.b); }},
    {"<<", [](Integers& v) { drop(v.b << 60); }},
    {"gcd", [](Integers& v) { drop(v.m.findGreatestCommonDivisor(v.b)); }},
    {"inverse", [](Integers& v) { (v.a = v.m - LargeInteger(2)).inverseModulo(v.m); }},
    {"verdict", [](Integers& v) { drop(PrimesNumber::isProbablyPrime(v.m, 5)); }},
};

TEST(OutOfMemory, ShortIntegersNeedNone) {
    for (IntegerRow const& row : shortRows) {
        Integers operands(110);
        faults::failAllocation(0);
        row.operation(operands);
        EXPECT_EQ(faults::allocations(), 0) << row.name;
    }
}

/// Powers, inverses, verdicts, searches and keys, at widths that they are made for.
IntegerRow const heavyRows[] = {
    {"power", [](Integers& v) { v.a.exponentModulo(v.b, v.m); }},
    {"power of an even modulus", [](Integers& v) { v.a.exponentModulo(v.b, v.m + v.m); }},
    {"inverse", [](Integers& v) { (v.a = v.m - LargeInteger(2)).inverseModulo(v.m); }},
    {"verdict", [](Integers& v) { drop(PrimesNumber::isProbablyPrime(v.m * v.m, 5)); }},
    {"search",
     [](Integers&) {
         int const seeds[] = {1, 2};
         drop(PrimesNumber::createProbablePrime(320, 30, seeds, 2));
     }},
    {"best divisor", [](Integers& v) { drop(RSAKey::findBestCommonDivisor(v.b * v.b, v.m)); }},
    {"keys",
     [](Integers&) {
         int const seeds[] = {1, 2};
         RSAKey first;
         RSAKey second;
         RSAKey::createKeyPair(first, second, 640, seeds, 2);
     }},
    {"key from text", [](Integers&) { drop(RSAKey("3,12345678901234567890123456789012345")); },
     LastWords::either},
    {"key to text and applied",
     [](Integers& v) {
         RSAKey const key("11,123456789012345678901234567890123456789");
         drop(key.toString());
         drop(key.applyToValue(v.a));
     },
     LastWords::either},
};

TEST(OutOfMemory, EveryOperationOfPrimesAndKeysEndsTheProcess) {
    for (int const bits : {450, 2100}) {
        for (IntegerRow const& row : heavyRows)
            expectTheEnd(
                row.name, row.promised, [bits] { return Integers(bits); }, row.operation);
    }
}

// --- texts, dates, files -----------------------------------------------------------------------

constexpr char const* longText = "  a text that is longer than a string holds in place, 12345678  ";

/// Nothing is changed in place.
struct Nothing {
    [[nodiscard]] static bool isIntact() { return true; }
};

struct TextRow {
    char const* name;
    void (*operation)(Nothing&);
};

template <std::size_t count>
void expectTheEndOfEach(TextRow const (&rows)[count]) {
    for (TextRow const& row : rows)
        expectTheEnd(
            row.name, LastWords::runTimeLibrary, [] { return Nothing(); }, row.operation);
}

TEST(OutOfMemory, EveryTextFunctionEndsTheProcess) {
    using Text = CharFunctions;
    static constexpr TextRow rows[] = {
        {"upper case", [](Nothing&) { drop(Text::ToUpperCase(longText)); }},
        {"lower case", [](Nothing&) { drop(Text::ToLowerCase(longText)); }},
        {"concatenate", [](Nothing&) { drop(Text::Concatenate(longText, longText)); }},
        {"cut", [](Nothing&) { drop(Text::SubStr(longText, 1, 50)); }},
        {"pad left", [](Nothing&) { drop(Text::PadLeftWith(longText, 200, 'x')); }},
        {"pad", [](Nothing&) { drop(Text::PadWith(longText, 200, 'x')); }},
        {"reverse", [](Nothing&) { drop(Text::Reverse(longText)); }},
        {"trim left", [](Nothing&) { drop(Text::RemoveLeadingSpaces(longText)); }},
        {"trim right", [](Nothing&) { drop(Text::RemoveTrailingSpaces(longText)); }},
        {"trim", [](Nothing&) { drop(Text::RemoveLeadingAndTrailingSpaces(longText)); }},
        {"replace", [](Nothing&) { drop(Text::Replace(longText, "t", "<long>")); }},
        {"replace a character", [](Nothing&) { drop(Text::Replace(longText, "t", "x")); }},
        {"replace nothing", [](Nothing&) { drop(Text::Replace(longText, "", "x")); }},
        {"replace first",
         [](Nothing&) { drop(Text::ReplaceFirstOccurence(longText, "text", longText)); }},
        {"replace last",
         [](Nothing&) { drop(Text::ReplaceLastOccurence(longText, "text", longText)); }},
        {"remove all", [](Nothing&) { drop(Text::RemoveAllOccurence(longText, "t")); }},
        {"remove first", [](Nothing&) { drop(Text::RemoveFirstOccurence(longText, "t")); }},
        {"remove last", [](Nothing&) { drop(Text::RemoveLastOccurence(longText, "t")); }},
        {"to hexadecimal", [](Nothing&) { drop(Text::AsciiToHexaString(longText, true)); }},
        {"from hexadecimal",
         [](Nothing&) { drop(Text::HexaStringToAscii("61626364656667686162636465666768")); }},
        {"long number", [](Nothing&) { drop(Text::Long2String(-9000000000000000000)); }},
        {"float", [](Nothing&) { drop(Text::Float2String(1e90, "%.3f")); }},
    };
    expectTheEndOfEach(rows);
}

TEST(OutOfMemory, EveryTextOfADateEndsTheProcess) {
    static constexpr TextRow rows[] = {
        {"full text",
         [](Nothing&) { drop(Date().ConvertToString(true, true, true, true, false)); }},
        {"current", [](Nothing&) { drop(Date::GetCurrentDate(true, true, true, true, false)); }},
        {"with separator", [](Nothing&) { drop(Date().GetDDMMYYYY(longText)); }},
    };
    expectTheEndOfEach(rows);
}

TEST(OutOfMemory, EveryFileNameEndsTheProcess) {
    static constexpr char const* name = "/a/folder/that/is.long/a file name that is long.text";
    static constexpr TextRow rows[] = {
        {"Unix", [](Nothing&) { drop(File::ConvertFileNameToUnixStyle(name)); }},
        {"Windows", [](Nothing&) { drop(File::ConvertFileNameToWindowsStyle(name)); }},
        {"native", [](Nothing&) { drop(File::ConvertFileNameToNativeStyle(name)); }},
        {"parent", [](Nothing&) { drop(File::GetParentFolder(name)); }},
        {"name", [](Nothing&) { drop(File::GetFileName(name)); }},
        {"extension",
         [](Nothing&) { drop(File::GetExtension("a.very long extension of a name")); }},
        {"bare name", [](Nothing&) { drop(File::GetFileNameWithoutExtension(name)); }},
        {"bare path", [](Nothing&) { drop(File::GetFullFileNameWithoutExtension(name)); }},
        {"in front of the extension",
         [](Nothing&) { drop(File::AppendStringBeforeExtension(name, longText)); }},
        {"append", [](Nothing&) { drop(File::AppendExtension(name, longText)); }},
        {"full path", [](Nothing&) { drop(File::MakeFullPath(name, name)); }},
        {"clean", [](Nothing&) { drop(File::CleanFileName(name)); }},
        {"join", [](Nothing&) { drop(Folder::ConcatenatePaths(name, name)); }},
        {"absolute", [](Nothing&) { drop(Folder::TranslateAbsolutePath("Disk of mine:/folder")); }},
        {"real", [](Nothing&) { drop(Folder::GetRealPath("~/missing/missing/missing")); }},
        {"write access", [](Nothing&) { drop(File::HasWriteAccess(name)); }},
    };
    expectTheEndOfEach(rows);
}

class OutOfMemoryWithFiles : public TemporaryFolder {};

TEST_F(OutOfMemoryWithFiles, EveryOperationOnFilesAndFoldersEndsTheProcess) {
    static constexpr TextRow rows[] = {
        {"read",
         [](Nothing&) {
             std::string text;
             drop(File::ReadStringFromFile(text, "word"));
         }},
        {"make",
         [](Nothing&) {
             drop(Folder::MakeDirectory("a folder with a long name/another folder in it"));
         }},
        {"working", [](Nothing&) { drop(Folder::GetCurrentWorkingDirectory()); }},
    };
    makeFile("word", std::string(100000, 'w') + " end");
    for (TextRow const& row : rows) {
        auto const make = [] {
            std::filesystem::remove_all("a folder with a long name");
            return Nothing();
        };
        expectTheEnd(row.name, LastWords::runTimeLibrary, make, row.operation);
    }
}

}  // namespace
