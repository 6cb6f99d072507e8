// The time zone of the process, put back at the end of its life.
#pragma once

#include "Variable.h"

#include <ctime>

namespace interface_test {

class TimeZone {
  public:
    explicit TimeZone(char const* zone) : variable_("TZ", zone) { tzset(); }

  private:
    struct ReadAgain {
        ReadAgain() = default;
        ReadAgain(ReadAgain const&) = delete;
        ReadAgain& operator=(ReadAgain const&) = delete;
        ~ReadAgain() { tzset(); }
    };

    /// Behind the variable, which goes before it.
    ReadAgain atTheEnd_;
    Variable variable_;
};

}  // namespace interface_test
