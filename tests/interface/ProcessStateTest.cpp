// Whatever state an application gives its process, results stay as they are, except where the table
// of public functions says that a function follows that state; and there they change.
#include "Settings.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <map>
#include <sstream>

namespace {

using namespace interface_test;
using qel::Date;

std::string resultsOf(Function const& function, int errorNumber) {
    Results results;
    results.setErrorNumber(errorNumber);
    function.exercise(results);
    return results.text();
}

/// In the surroundings alone; kept, for they are the same in each test.
std::string const& ordinaryResultsOf(Function const& function) {
    static std::map<std::string, std::string> kept;
    auto const [entry, isNew] = kept.try_emplace(function.name);
    if (isNew)
        entry->second = resultsOf(function, 0);
    return entry->second;
}

/// Failures come when the state is gone: there may be no stream for them to be seen on.
std::string resultsIn(Setting const& setting, Function const& function) {
    testing::TestPartResultArray failures;
    std::string text;
    {
        testing::ScopedFakeTestPartResultReporter const reporter(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &failures);
        std::shared_ptr<void> const state = setting.enter();
        text = resultsOf(function, setting.errorNumber);
    }
    if (failures.size() > 0)
        ADD_FAILURE() << function.name << " with " << setting.name << ": " << failures.size()
                      << " failures, the first of which is\n"
                      << failures.GetTestPartResult(0).message();
    return text;
}

/// The first lines that are not the same; "" for equal texts.
std::string difference(std::string const& ordinary, std::string const& other) {
    std::istringstream left(ordinary);
    std::istringstream right(other);
    for (std::string a, b; ordinary != other;) {
        bool const isLeft = static_cast<bool>(std::getline(left, a));
        bool const isRight = static_cast<bool>(std::getline(right, b));
        if (!isLeft || !isRight || a != b)
            return "\n" + (isRight ? b : "nothing") + "\nordinary:\n" + (isLeft ? a : "nothing");
    }
    return "";
}

class ProcessState : public testing::TestWithParam<State> {};

TEST_P(ProcessState, IsFollowedByTheFunctionsThatSaySoAndByNoOther) {
    Surroundings const surroundings;
    EightBitLocales const locales;
    std::vector<Setting> const settings = settingsOf(GetParam(), surroundings, locales);
    if (settings.empty())
        GTEST_SKIP() << "no 8-bit locale: neither the system has one nor can localedef make one";
    for (Function const& function : publicFunctions()) {
        std::string const& ordinary = ordinaryResultsOf(function);
        std::string differences;
        for (Setting const& setting : settings) {
            std::string const found = difference(ordinary, resultsIn(setting, function));
            if (!found.empty())
                differences += setting.name + found + '\n';
        }
        if (function.follows.contains(GetParam())) {
            EXPECT_NE(differences, "") << function.name << " does not follow it";
        } else {
            EXPECT_EQ(differences, "") << function.name << " follows it";
        }
    }
}

std::string testName(testing::TestParamInfo<State> const& info) {
    return nameOf(info.param);
}

/// Paris of today, without the system's data.
constexpr char const* centralEurope = "CET-1CEST,M3.5.0,M10.5.0/3";

TEST(TimeZoneVariable, IsSeenAtOnceWhenADateIsBuiltFromFields) {
    Surroundings const surroundings;
    EXPECT_EQ(Date(2012, 11, 21, 12, 0, 0, 0).GetMillisecondsSinceEpoch(), 1353499200000);
    Variable const changed("TZ", "XYZ-13");
    EXPECT_EQ(Date(2012, 11, 21, 12, 0, 0, 0).GetMillisecondsSinceEpoch(), 1353452400000);
}

TEST(TimeZoneVariable, IsSeenByTheFieldsOnceTheCLibraryHasReadIt) {
    Surroundings const surroundings;
    Date const date(1353499200000);
    EXPECT_EQ(date.GetHours(), 12U);
    Variable const changed("TZ", "XYZ-13");
    tzset();
    EXPECT_EQ(date.GetHours(), 1U);
    EXPECT_EQ(date.GetDay(), 22U);
}

TEST(TimeZoneVariable, LeavesAnHourThatComesTwiceToTheCLibrary) {
    Surroundings const surroundings;
    TimeZone const zone(centralEurope);
    // The C library may take the one that suits the date that it was asked for before.
    for (unsigned int const month : {7U, 12U}) {
        EXPECT_EQ(Date(2012, month, 1, 12, 0, 0, 0).GetHours(), 12U);
        Date const twice(2012, 10, 28, 2, 30, 0, 0);
        EXPECT_EQ(twice.GetHours(), 2U);
        EXPECT_EQ(twice.GetMinutes(), 30U);
        EXPECT_TRUE(twice == Date(1351384200000) || twice == Date(1351387800000))
            << twice.GetMillisecondsSinceEpoch();
    }
}

INSTANTIATE_TEST_SUITE_P(PublicFunctions, ProcessState, testing::ValuesIn(allStates), testName);

}  // namespace
