#include "Dates.h"

#include "Texts.h"

namespace interface_test {

std::vector<long long> const& extremeCounts() {
    static std::vector<long long> const all = [] {
        std::vector<long long> counts(extremesOf<long long>.begin(), extremesOf<long long>.end());
        counts.insert(counts.end(), {-1000, -999, 86399999, 86400000, 2145916799999, 2145916800000,
                                     1353499205007, 1341100800000, -62135596800000});
        return counts;
    }();
    return all;
}

std::vector<std::string> const& dateTexts() {
    static std::vector<std::string> const all = [] {
        std::vector<std::string> texts = interface_test::texts();
        texts.insert(texts.end(),
                     {"21/11/2012", "21112012",   "21\\11\\2012", "//21112012", "31/02/2012",
                      "21/11/0100", "21/11/0099", "21-11-2012",   "1/11/2012",  "00/11/2012",
                      "21/13/2012", "99/99/9999", "ab/11/2012",   "5./11/2012", "21/11/12",
                      "2111.1e1",   "21111.e3",   "21112.e2",     "0x0x0x0x",   "01/01/1970",
                      "21/11/2040", "01/01/1971", "31/12/2037",   "01/01/2038", "31/12/9999"});
        return texts;
    }();
    return all;
}

}  // namespace interface_test
