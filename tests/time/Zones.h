// What is known about the time zones that the tests run in, and the zone of this process.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <string_view>

struct Zone {
    char const* name = "";     // the value of TZ
    int on1971_s = 0;          // offset from UTC at local midnight of 1 January 1971
    int inJune1970_s = 0;      // on 1 June 1970
    int inNovember2012_s = 0;  // on 21 November 2012
    int inJuly2012_s = 0;      // on 1 July 2012
};

/// Monrovia kept an offset with seconds until 1972; Santiago had daylight saving on the first day
/// of 1971; Apia moved across the date line in 2011.
inline constexpr std::array<Zone, 11> zones = {{
    {"UTC", 0, 0, 0, 0},
    {"Europe/Paris", 3600, 3600, 3600, 7200},
    {"America/New_York", -18000, -14400, -18000, -14400},
    {"Asia/Kolkata", 19800, 19800, 19800, 19800},
    {"Australia/Lord_Howe", 36000, 36000, 39600, 37800},
    {"Pacific/Apia", -39600, -39600, 50400, 46800},
    {"Africa/Monrovia", -2670, -2670, 0, 0},
    {"America/Santiago", -10800, -14400, -10800, -14400},
    {"XYZ-5:30", 19800, 19800, 19800, 19800},
    {"XYZ-13", 46800, 46800, 46800, 46800},
    {"ABC7:15DEF,M3.2.0,M11.1.0", -26100, -22500, -26100, -22500},
}};

/// For tests that need to know the zone: the row of this process's TZ, which becomes UTC where it
/// is not set. The build runs them once in each zone of the table.
class InZone : public testing::Test {
  protected:
    void SetUp() override {
        setenv("TZ", "UTC", 0);
        tzset();
        std::string_view const name = std::getenv("TZ");
        auto const* const row = std::find_if(
            zones.begin(), zones.end(), [name](Zone const& known) { return known.name == name; });
        ASSERT_NE(row, zones.end()) << "TZ is no time zone of Zones.h: " << name;
        zone = *row;
    }

    Zone zone;
};
