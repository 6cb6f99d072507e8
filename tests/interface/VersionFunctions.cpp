#include "Function.h"

#include "qel/Version.h"

#include <gtest/gtest.h>

namespace interface_test {

std::vector<Function> versionFunctions() {
    return {
        {"GetVersionMajor()", [](Results& results) { results.add("", qel::GetVersionMajor()); }},
        {"GetVersionMinor()", [](Results& results) { results.add("", qel::GetVersionMinor()); }},
        {"GetVersionRelease()",
         [](Results& results) { results.add("", qel::GetVersionRelease()); }},
        {"GetVersion()",
         [](Results& results) {
             // The text of an earlier call stays readable.
             char const* const first = qel::GetVersion();
             char const* const second = qel::GetVersion();
             EXPECT_STREQ(first, second);
             results.add("", first);
         }},
    };
}

}  // namespace interface_test
