// The environment variable HOME, put back at the end of the test.
#pragma once

#include "Variable.h"

class HomeVariable {
  public:
    explicit HomeVariable(char const* value) : variable_("HOME", value) {}

    /// Null takes it away.
    static void set(char const* value) { Variable::set("HOME", value); }

  private:
    Variable variable_;
};
