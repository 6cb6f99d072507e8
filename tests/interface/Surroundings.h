// Where the rows work: the state of the process that every row may rely on, and folders with known
// files.
#pragma once

#include "TimeZone.h"
#include "Variable.h"

#include <filesystem>
#include <string>

#include <sys/types.h>

namespace interface_test {

/// The state that counts as ordinary: time zone UTC, home folder /home/ordinary, new files for all
/// to read, and an empty working directory. Until the end of its life; then everything is as it was
/// before.
class Surroundings {
  public:
    Surroundings();
    Surroundings(Surroundings const&) = delete;
    Surroundings& operator=(Surroundings const&) = delete;
    ~Surroundings();

    /// An empty folder deeper than the working directory, where relative paths lead to nothing.
    [[nodiscard]] std::filesystem::path elsewhere() const { return folder_ / "else" / "where"; }

  private:
    std::filesystem::path previousDirectory_;
    mode_t previousMask_;
    std::filesystem::path folder_;
    Variable home_;
    TimeZone zone_;
};

/// A folder of a row's own, for its life.
class Scratch {
  public:
    Scratch();
    Scratch(Scratch const&) = delete;
    Scratch& operator=(Scratch const&) = delete;
    ~Scratch();

    /// The absolute path of something in it.
    [[nodiscard]] std::string path(std::string const& name) const { return folder_ / name; }
    /// The relative path from the working directory of the surroundings.
    [[nodiscard]] std::string relativePath(std::string const& name) const;

  private:
    std::filesystem::path folder_;
};

/// Temporary folders have another name each time: the text with a part of it left out.
[[nodiscard]] std::string withoutTemporaryNames(std::string text);

/// Makes a file that its user can read and write, whatever the mask for new files is.
void makeOrdinaryFile(std::string const& path, std::string const& content);

/// The bytes of a file, read with nothing that a locale could change; "unreadable" without one.
[[nodiscard]] std::string bytesOf(std::string const& path);

/// The permission bits; -1 where there is nothing.
[[nodiscard]] int permissionsOf(std::string const& path);

}  // namespace interface_test
