// Every public function is in the table, and does what is documented with every row's arguments.
#include "Function.h"
#include "Surroundings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>

namespace {

using interface_test::Function;
using interface_test::publicFunctions;

/// The functions that the headers declare, listed when the tests are built.
std::set<std::string> declaredFunctions() {
    std::ifstream file(QEL_PUBLIC_FUNCTIONS);
    std::set<std::string> declared;
    for (std::string line; std::getline(file, line);)
        declared.insert(line);
    return declared;
}

TEST(PublicFunctions, EachOneThatAHeaderDeclaresHasOneRow) {
    std::set<std::string> const declared = declaredFunctions();
    ASSERT_GT(declared.size(), 200U);
    std::multiset<std::string> rows;
    for (Function const& function : publicFunctions())
        rows.insert(function.name);
    for (std::string const& name : declared)
        EXPECT_EQ(rows.count(name), 1U) << name;
    for (std::string const& name : rows)
        EXPECT_EQ(declared.count(name), 1U) << name << " is not declared";
}

class EveryArgument : public testing::TestWithParam<Function> {};

TEST_P(EveryArgument, GivesWhatIsDocumented) {
    interface_test::Surroundings const surroundings;
    interface_test::Results results;
    GetParam().exercise(results);
    EXPECT_FALSE(results.text().empty());
}

/// GoogleTest takes letters and digits only: the rest is left out, and the row's number makes the
/// name unique.
std::string testName(testing::TestParamInfo<Function> const& info) {
    std::string name = info.param.name;
    std::erase_if(name, [](unsigned char c) { return std::isalnum(c) == 0; });
    return name + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(PublicFunctions, EveryArgument, testing::ValuesIn(publicFunctions()),
                         testName);

}  // namespace
