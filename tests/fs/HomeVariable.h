// The environment variable HOME, put back at the end of the test.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

class HomeVariable {
  public:
    explicit HomeVariable(char const* value) : previous_(current()) { set(value); }
    HomeVariable(HomeVariable const&) = delete;
    HomeVariable& operator=(HomeVariable const&) = delete;
    ~HomeVariable() { set(previous_ ? previous_->c_str() : nullptr); }

    /// Null takes it away.
    static void set(char const* value) {
        EXPECT_EQ(value == nullptr ? unsetenv("HOME") : setenv("HOME", value, 1), 0);
    }

  private:
    static std::optional<std::string> current() {
        char const* const value = std::getenv("HOME");
        return value == nullptr ? std::nullopt : std::optional<std::string>(value);
    }

    std::optional<std::string> previous_;
};
