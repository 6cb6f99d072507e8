// A global locale of C++ that differs in all that streams and character functions take from one.
#pragma once

#include "ShiftedBytes.h"

#include <locale>
#include <string>
#include <vector>

namespace interface_test {

class StrangeNumbers : public std::numpunct<char> {
  protected:
    [[nodiscard]] char do_decimal_point() const override { return ','; }
    [[nodiscard]] char do_thousands_sep() const override { return '.'; }
    [[nodiscard]] std::string do_grouping() const override { return "\1"; }
    [[nodiscard]] std::string do_truename() const override { return "oui"; }
    [[nodiscard]] std::string do_falsename() const override { return "non"; }
};

/// 0 and a are white space, and a space is not; every byte's other case is the next byte.
class StrangeCharacters : public std::ctype<char> {
  public:
    StrangeCharacters() : std::ctype<char>(table()) {}

  protected:
    [[nodiscard]] char do_toupper(char c) const override { return static_cast<char>(c + 1); }
    [[nodiscard]] char do_tolower(char c) const override { return static_cast<char>(c + 1); }

  private:
    static mask const* table() {
        static std::vector<mask> const masks = [] {
            std::vector<mask> changed(classic_table(), classic_table() + table_size);
            changed['0'] = changed['a'] = space;
            changed[' '] = punct;
            return changed;
        }();
        return masks.data();
    }
};

class StrangeLocale {
  public:
    StrangeLocale() {
        std::locale::global(std::locale(std::locale(std::locale(previous_, new StrangeNumbers),  //
                                                    new StrangeCharacters),
                                        new ShiftedBytes));
    }
    StrangeLocale(StrangeLocale const&) = delete;
    StrangeLocale& operator=(StrangeLocale const&) = delete;
    ~StrangeLocale() { std::locale::global(previous_); }

  private:
    std::locale previous_;
};

}  // namespace interface_test
