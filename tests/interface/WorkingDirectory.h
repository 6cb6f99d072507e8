// The working directory, put back at the end of its life.
#pragma once

#include <filesystem>

namespace interface_test {

class WorkingDirectory {
  public:
    WorkingDirectory() = default;
    explicit WorkingDirectory(std::filesystem::path const& path) {
        std::filesystem::current_path(path);
    }
    WorkingDirectory(WorkingDirectory const&) = delete;
    WorkingDirectory& operator=(WorkingDirectory const&) = delete;
    ~WorkingDirectory() { std::filesystem::current_path(previous_); }

  private:
    std::filesystem::path previous_ = std::filesystem::current_path();
};

}  // namespace interface_test
