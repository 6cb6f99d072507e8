// Whatever state an application gives its process, results stay as they are, except where the table
// of public functions says that a function follows that state; and there they change.
#include "Settings.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <sstream>

namespace {

using namespace interface_test;

std::string resultsOf(Function const& function, int errorNumber) {
    Results results;
    results.setErrorNumber(errorNumber);
    function.exercise(results);
    return results.text();
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
        std::string const ordinary = resultsOf(function, 0);
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

INSTANTIATE_TEST_SUITE_P(PublicFunctions, ProcessState, testing::ValuesIn(allStates), testName);

}  // namespace
