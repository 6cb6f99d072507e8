// A variable of the environment, put back at the end of its life.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

class Variable {
  public:
    Variable(char const* name, char const* value) : name_(name), previous_(current(name)) {
        set(name, value);
    }
    Variable(Variable const&) = delete;
    Variable& operator=(Variable const&) = delete;
    ~Variable() { set(name_.c_str(), previous_ ? previous_->c_str() : nullptr); }

    /// Null takes it away.
    static void set(char const* name, char const* value) {
        EXPECT_EQ(value == nullptr ? unsetenv(name) : setenv(name, value, 1), 0);
    }

  private:
    static std::optional<std::string> current(char const* name) {
        char const* const value = std::getenv(name);
        return value == nullptr ? std::nullopt : std::optional<std::string>(value);
    }

    std::string name_;
    std::optional<std::string> previous_;
};
