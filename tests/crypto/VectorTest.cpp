// The generator, primes and keys against files that a model in another language wrote.
#include "KernelVariants.h"
#include "VectorFiles.h"

#include "qel/LargeInteger.h"
#include "qel/PrimesNumber.h"
#include "qel/RSAKey.h"
#include "qel/Random.h"

namespace {

using qel::LargeInteger;
using qel::PrimesNumber;
using qel::Random;
using qel::RSAKey;
using vector_files::Fields;
using vector_files::Operation;

LargeInteger number(std::string const& text) {
    LargeInteger v;
    v.parseString(text, 16);
    return v;
}

/// A text as toString(16) writes it: zero is empty there and "0" in the files.
std::string asWritten(std::string const& text) {
    return text == "0" ? "" : text;
}

std::vector<int> seedTable(std::string const& text) {
    std::vector<int> seeds;
    std::istringstream stream(text == "none" ? "" : text);
    for (std::string seed; std::getline(stream, seed, ',');)
        seeds.push_back(std::stoi(seed));
    return seeds;
}

void checkInts(Fields const& f) {
    Random random(std::stoll(f[0]));
    for (std::size_t i = 1; i < f.size(); ++i)
        EXPECT_EQ(random.nextInt(), std::stoi(f[i]));
}

void checkBools(Fields const& f) {
    Random random(std::stoll(f[0]));
    for (char const bit : f[1])
        EXPECT_EQ(random.nextBool(), bit == '1');
}

void checkFill(Fields const& f) {
    LargeInteger v = number(f[3]);
    Random(std::stoll(f[0])).fillBitsRandomly(v, std::stoi(f[1]), std::stoi(f[2]));
    EXPECT_EQ(v, number(f[4]));
}

void checkVerdict(Fields const& f) {
    EXPECT_EQ(PrimesNumber::isProbablyPrime(number(f[0]), std::stoi(f[1])), f[2] == "1");
}

void checkPrime(Fields const& f) {
    std::vector<int> const seeds = seedTable(f[2]);
    LargeInteger const prime = PrimesNumber::createProbablePrime(
        std::stoi(f[0]), std::stoi(f[1]), seeds.data(), static_cast<int>(seeds.size()));
    EXPECT_EQ(prime.toString(16), asWritten(f[3]));
}

void checkKeys(Fields const& f) {
    std::vector<int> const seeds = seedTable(f[1]);
    RSAKey first("1,1");
    RSAKey second("1,1");
    RSAKey::createKeyPair(first, second, std::stoi(f[0]), seeds.data(),
                          static_cast<int>(seeds.size()));
    EXPECT_EQ(first.toString(), asWritten(f[2]) + ',' + asWritten(f[4]));
    EXPECT_EQ(second.toString(), asWritten(f[3]) + ',' + asWritten(f[4]));
}

/// P: passes with every witness count. C: refused from the given count on, passed below it.
void checkPrimality(Fields const& f) {
    LargeInteger const n = number(f[0]);
    for (limb_test::Variant const& path : limb_test::paths()) {
        limb_test::Using const use(path);
        if (f[1] == "P") {
            for (int const witnesses : {0, 1, 97})
                EXPECT_TRUE(PrimesNumber::isProbablyPrime(n, witnesses)) << path.name;
            continue;
        }
        int const refusedFrom = std::stoi(f[2]);
        // With long numbers only the counts around the change, which costs minutes otherwise.
        int const spread = n.getHighestBit() < 512 ? 97 : 1;
        for (int witnesses = std::max(0, refusedFrom - spread);
             witnesses <= std::min(97, refusedFrom + spread); ++witnesses)
            EXPECT_EQ(PrimesNumber::isProbablyPrime(n, witnesses), witnesses < refusedFrom)
                << path.name << ' ' << witnesses;
    }
}

/// n e d m s: each key takes the message m to s, or s to m.
void checkApplication(Fields const& f) {
    LargeInteger value = number(f[3]);
    EXPECT_TRUE(RSAKey((f[2] + ',' + f[0]).c_str()).applyToValue(value));
    EXPECT_EQ(value, number(f[4]));
    EXPECT_TRUE(RSAKey((f[1] + ',' + f[0]).c_str()).applyToValue(value));
    EXPECT_EQ(value, number(f[3]));
}

std::vector<Operation> const ownOperations = {
    {"random_int.txt", 9, checkInts}, {"random_bool.txt", 2, checkBools},
    {"fill.txt", 5, checkFill},       {"pseudoprimes.txt", 3, checkVerdict},
    {"primes.txt", 4, checkPrime},    {"keys.txt", 5, checkKeys},
    {"keys_512.txt", 5, checkKeys},   {"keys_1024.txt", 5, checkKeys},
    {"keys_2048.txt", 5, checkKeys},
};

/// Files that only other folders have.
std::vector<Operation> const foreignOperations = {
    {"primality.txt", 3, checkPrimality},
    {"primality-long.txt", 3, checkPrimality},
    {"rsa.txt", 5, checkApplication},
};

std::vector<Operation> operations() {
    return vector_files::present(std::getenv("QEL_VECTORS") != nullptr ? foreignOperations
                                                                       : ownOperations);
}

class Vectors : public testing::TestWithParam<Operation> {};

TEST_P(Vectors, Agree) {
    vector_files::run(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Crypto, Vectors, testing::ValuesIn(operations()), vector_files::nameOf);

TEST(SmallVerdicts, OfEveryNumberBelowTwentyThousand) {
    std::ifstream file(std::filesystem::path(QEL_TEST_DATA) / "small_verdicts.txt");
    std::string verdicts;
    for (std::string line; std::getline(file, line);)
        verdicts += line;
    ASSERT_EQ(verdicts.size(), 20000U);
    for (int n = 0; n < 20000; ++n)
        ASSERT_EQ(PrimesNumber::isProbablyPrime(LargeInteger(n), 30),
                  verdicts[static_cast<std::size_t>(n)] == '1')
            << n;
}

}  // namespace
