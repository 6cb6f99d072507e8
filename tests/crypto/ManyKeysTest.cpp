// Key pairs by the thousand against pairs put together from the plain search; and, on request, one
// of the widest.
#include "qel/RSAKey.h"

#include "Thoroughness.h"
#include "model/PlainKeys.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

using qel::LargeInteger;
using qel::RSAKey;

std::string plainPair(int bitCount, std::vector<int> const& seeds) {
    plain::Key first;
    plain::Key second;
    plain::createKeyPair(first, second, bitCount, seeds.data(), static_cast<int>(seeds.size()));
    return first.toString() + ' ' + second.toString();
}

constexpr int shards = 4;

class ManyKeys : public testing::TestWithParam<int> {};

/// 2,000 pairs in all; 100,000 for QEL_DEEP.
TEST_P(ManyKeys, Of128BitsAreThoseOfThePlainSearch) {
    int const pairs = thoroughness::isDeep() ? 100000 : thoroughness::cases(2000, 100);
    std::mt19937 random(128U + static_cast<unsigned>(GetParam()));
    for (int i = 0; i < pairs / shards; ++i) {
        std::vector<int> seeds(2 + random() % 4);
        for (int& seed : seeds)
            seed = static_cast<int>(random());
        RSAKey first;
        RSAKey second;
        RSAKey::createKeyPair(first, second, 128, seeds.data(), static_cast<int>(seeds.size()));
        ASSERT_EQ(first.toString() + ' ' + second.toString(), plainPair(128, seeds))
            << "seeds " << testing::PrintToString(seeds);
    }
}

INSTANTIATE_TEST_SUITE_P(Shard, ManyKeys, testing::Range(0, shards));

TEST(WidestKeys, Of16384BitsUndoEachOther) {
    if (!thoroughness::isDeep())
        GTEST_SKIP() << "QEL_DEEP is not set";
    int const seeds[] = {16, 38, 4, -1};
    RSAKey first;
    RSAKey second;
    RSAKey::createKeyPair(first, second, 16384, seeds, 4);
    EXPECT_NE(first, second);
    LargeInteger message;
    message.parseString(std::string(4000, 'a') + "5", 16);
    LargeInteger const original = message;
    for (auto const& [one, other] : {std::pair(&first, &second), {&second, &first}}) {
        EXPECT_TRUE(one->applyToValue(message));
        EXPECT_NE(message, original);
        EXPECT_TRUE(other->applyToValue(message));
        EXPECT_EQ(message, original);
    }
}

}  // namespace
