// What the calls of a public function gave, written down so that two runs can be compared.
#pragma once

#include "bigint/LargeIntegerPeer.h"

#include "qel/Date.h"
#include "qel/RSAKey.h"

#include <bit>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>

namespace interface_test {

/// One line for each call. No line depends on a locale or a rounding mode of its own.
class Results {
  public:
    Results() { out_.imbue(std::locale::classic()); }

    /// Adds a line: what was called, and all that came out of it.
    template <typename... Values>
    void add(std::string_view call, Values const&... values) {
        out_ << call << ':';
        ((out_ << ' ', write(values)), ...);
        out_ << '\n';
    }

    [[nodiscard]] std::string text() const { return out_.str(); }

  private:
    template <typename Number>
    requires std::is_integral_v<Number>
    void write(Number value) { out_ << +value; }
    /// The bits: a text would follow the rounding mode.
    void write(double value) {
        out_ << std::hex << std::bit_cast<std::uint64_t>(value) << std::dec;
    }
    void write(float value) { write(static_cast<double>(value)); }
    void write(std::string const& text) { out_ << text.size() << '"' << text << '"'; }
    void write(char const* text) { write(std::string(text)); }
    void write(qel::Date const& date) { out_ << date.GetMillisecondsSinceEpoch(); }
    void write(qel::RSAKey const& key) { write(key.toString()); }
    void write(qel::LargeInteger const& value) {
        bigint_test::Books const books = bigint_test::books(value);
        if (books.size <= wordsInFull)
            out_ << "0x" << value.toString(16) << ' ' << books;
        else
            out_ << std::hex << sumOf(value) << std::dec << ' ' << books;
    }
    /// Wider values are written as a sum of their words.
    static constexpr int wordsInFull = 100;
    static std::uint64_t sumOf(qel::LargeInteger const& value) {
        std::uint64_t sum = 0;
        for (int i = bigint_test::LargeIntegerPeer::size(value) - 1; i >= 0; --i)
            sum = sum * 0x9E3779B97F4A7C15U + bigint_test::LargeIntegerPeer::word(value, i);
        return sum;
    }

    std::ostringstream out_;
};

}  // namespace interface_test
