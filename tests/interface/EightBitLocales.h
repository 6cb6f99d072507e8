// Locales of the C library with one byte a letter: in French, letters beyond ASCII have case and a
// decimal comma comes before the fraction; in Turkish, the case of i and I is another one.
#pragma once

#include "Surroundings.h"

#include <string>
#include <vector>

namespace interface_test {

class EightBitLocales {
  public:
    /// Takes the system's own, or has localedef make them for as long as this object lives.
    EightBitLocales();

    /// Empty where there are none, and none can be made.
    [[nodiscard]] std::vector<std::string> const& names() const { return names_; }
    /// Where the C library finds them, for its variable LOCPATH; null for the system's own place.
    [[nodiscard]] char const* folder() const { return isMade_ ? path_.c_str() : nullptr; }

  private:
    Scratch scratch_;
    std::string path_;
    bool isMade_ = false;
    std::vector<std::string> names_;
};

/// The C library's locale, which is "C" before and after.
class CLocale {
  public:
    CLocale(char const* name, char const* folder);
    CLocale(CLocale const&) = delete;
    CLocale& operator=(CLocale const&) = delete;
    ~CLocale();

    [[nodiscard]] bool isSet() const { return isSet_; }

  private:
    Variable folder_;
    bool isSet_;
};

}  // namespace interface_test
