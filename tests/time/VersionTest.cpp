// The version numbers and the banner.
#include "qel/Version.h"
#include "qel/Date.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(Version, Is140) {
    EXPECT_EQ(qel::GetVersionMajor(), 1);
    EXPECT_EQ(qel::GetVersionMinor(), 4);
    EXPECT_EQ(qel::GetVersionRelease(), 0);
}

TEST(Version, BannerNamesTheVersionAndEndsWithTheBuildDate) {
    std::string const banner = qel::GetVersion();
    std::string const front = "qel version 1.4.0, build ";
    ASSERT_EQ(banner.size(), front.size() + 11);
    EXPECT_EQ(banner.substr(0, front.size()), front);
    std::string const digits = qel::Date::DATEMacroToDDMMYYYY(banner.substr(front.size()).c_str());
    EXPECT_TRUE(qel::Date::IsValidDate(digits.c_str())) << banner;
}

TEST(Version, TheTextOfAnEarlierCallStaysReadable) {
    char const* const first = qel::GetVersion();
    std::string const copy = first;
    char const* const second = qel::GetVersion();
    EXPECT_EQ(copy, first);
    EXPECT_EQ(copy, second);
}

}  // namespace
