// A variable of the environment, put back at the end of its life.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace interface_test {

class Variable {
  public:
    /// Null takes it away.
    Variable(char const* name, char const* value) : name_(name), previous_(current(name)) {
        set(value);
    }
    Variable(Variable const&) = delete;
    Variable& operator=(Variable const&) = delete;
    ~Variable() { set(previous_ ? previous_->c_str() : nullptr); }

  private:
    static std::optional<std::string> current(char const* name) {
        char const* const value = std::getenv(name);
        return value == nullptr ? std::nullopt : std::optional<std::string>(value);
    }

    void set(char const* value) {
        if (value == nullptr) {
            unsetenv(name_.c_str());
        } else {
            setenv(name_.c_str(), value, 1);
        }
    }

    std::string name_;
    std::optional<std::string> previous_;
};

}  // namespace interface_test
