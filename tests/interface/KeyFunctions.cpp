// Keys, against the plain ones.
#include "CryptoFunctions.h"
#include "IntegerRows.h"
#include "Seeds.h"

#include "model/PlainKeys.h"
#include "qel/RSAKey.h"

namespace interface_test {

namespace {

using qel::LargeInteger;
using qel::RSAKey;

/// Keys with zeros, signs and what is no digit; and two pairs.
std::vector<std::string> const& keyTexts() {
    static std::vector<std::string> const texts = {"",
                                                   "abc",
                                                   ",",
                                                   "3,",
                                                   ",21",
                                                   "0,21",
                                                   "-0,21",
                                                   "3,-0",
                                                   "-3,-21",
                                                   "ff,1,2",
                                                   " x3 , 2 1\n",
                                                   "3,21",
                                                   "5,23",
                                                   "11,fff1",
                                                   "7,7fffffffffffffffffffffffffffffff",
                                                   "-11,10001",
                                                   "ffffffff,fff1",
                                                   "11," + patternOf(200),
                                                   "10001," + patternOf(129),
                                                   "3," + patternOf(520)};
    return texts;
}

/// The same key, as the library and as the model have it.
struct KeyTwin {
    explicit KeyTwin(std::string const& text) : fast(text.c_str()), plain(text) {}

    RSAKey fast;
    plain::Key plain;
};

void read(Results& results) {
    for (std::string const& text : keyTexts()) {
        KeyTwin const key(text);
        EXPECT_EQ(key.fast.toString(), key.plain.toString()) << text;
        results.add(text, key.fast);
    }
}

template <typename Compare>
Function comparison(char const* name, Compare /*compare*/) {
    return {name, [](Results& results) {
                for (std::string const& text : keyTexts()) {
                    KeyTwin const key(text);
                    EXPECT_EQ(Compare{}(key.fast, key.fast), Compare{}(key.plain, key.plain));
                    for (std::string const& otherText : keyTexts()) {
                        KeyTwin const other(otherText);
                        bool const result = Compare{}(key.fast, other.fast);
                        EXPECT_EQ(result, Compare{}(key.plain, other.plain))
                            << text << ' ' << otherText;
                        results.add(text, otherText, result);
                    }
                }
            }};
}

// --- application --------------------------------------------------------------------------------

/// Left out: a negative modulus, of which nothing is documented, and too many digits for the
/// model's time.
bool isApplicable(plain::Key const& key, LargeInteger const& value) {
    return key.exponent.isZero() || key.modulus.isZero()
           || (!key.modulus.isNegative()
               && value.getHighestBit() < 60 * key.modulus.getHighestBit());
}

void apply(Results& results) {
    for (std::string const& text : keyTexts()) {
        KeyTwin const key(text);
        for (Operand const& operand : manyOperands()) {
            Twin value;
            operand.assignTo(value);
            if (!isApplicable(key.plain, value.fast))
                continue;
            bool const applied = key.fast.applyToValue(value.fast);
            EXPECT_EQ(applied, key.plain.applyToValue(value.plain));
            EXPECT_EQ(check(value), "") << text << " to " << operand.description();
            results.add(text, applied, value.fast);
        }
        EXPECT_EQ(key.fast.toString(), key.plain.toString());
    }
}

// --- creation -----------------------------------------------------------------------------------

/// With and without factors from the list of exponents.
Operands const& orders() {
    static Operands const operands = [] {
        Operands list = fewOperands();
        for (char const* digits : {"2", "a", "c", "ff", "80000000", "ffff0001"})
            list.push_back({twinOf(digits), 700});
        list.push_back({twinOf(patternOf(700)), 0, 40});
        return list;
    }();
    return operands;
}

LargeInteger bestDivisor(LargeInteger const& first, LargeInteger const& second) {
    return RSAKey::findBestCommonDivisor(first, second);
}

plain::LargeInteger bestDivisor(plain::LargeInteger const& first,
                                plain::LargeInteger const& second) {
    return plain::findBestCommonDivisor(first, second);
}

void createPair(Results& results, int bitCount, Seeds const& seeds) {
    RSAKey first("3,21");
    RSAKey second("5,23");
    RSAKey::createKeyPair(first, second, bitCount, seeds.first, seeds.count);
    plain::Key expectedFirst;
    plain::Key expectedSecond;
    plain::createKeyPair(expectedFirst, expectedSecond, bitCount, seeds.first, seeds.count);
    EXPECT_EQ(first.toString(), expectedFirst.toString()) << bitCount << ' ' << seeds.count;
    EXPECT_EQ(second.toString(), expectedSecond.toString()) << bitCount << ' ' << seeds.count;
    results.add("", bitCount, seeds.count, first, second);

    // One object for both is the second key in the end.
    RSAKey both("3,21");
    RSAKey::createKeyPair(both, both, bitCount, seeds.first, seeds.count);
    EXPECT_EQ(both, second) << bitCount << ' ' << seeds.count;
}

/// Left out: widths of which a search takes minutes.
void create(Results& results) {
    for (int const bitCount : extremeInts) {
        if (bitCount <= 33)
            createPair(results, bitCount, allSeeds());
    }
    for (Seeds const& seeds : seedLists())
        createPair(results, 33, seeds);
}

}  // namespace

std::vector<Function> keyFunctions() {
    return {
        {"RSAKey::RSAKey()",
         [](Results& results) {
             EXPECT_EQ(RSAKey().toString(), plain::Key().toString());
             results.add("", RSAKey());
         }},
        {"RSAKey::RSAKey(char const*)", read},
        {"RSAKey::toString()", read},
        comparison("RSAKey::operator==(RSAKey const&)",
                   [](auto const& a, auto const& b) { return a == b; }),
        comparison("RSAKey::operator!=(RSAKey const&)",
                   [](auto const& a, auto const& b) { return a != b; }),
        {"RSAKey::applyToValue(LargeInteger&)", apply},
        // Left out: zero, with which nothing is coprime, and negative values, with which the call
        // can run for ever.
        binary<orders>(
            "RSAKey::findBestCommonDivisor(LargeInteger const&, LargeInteger const&)",
            [](auto const& first, auto const& second) { return bestDivisor(first, second); },
            [](auto const& first, auto const& second) {
                return first > LargeInteger(0) && second > LargeInteger(0);
            }),
        {"RSAKey::createKeyPair(RSAKey&, RSAKey&, int, int const*, int)", create},
    };
}

}  // namespace interface_test
