// What the calls of a public function gave, written down so that two runs can be compared.
#pragma once

#include "bigint/LargeIntegerPeer.h"

#include "qel/Date.h"
#include "qel/RSAKey.h"

#include <bit>
#include <cerrno>
#include <cstdint>
#include <locale>
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
        errno = errorNumber_;
    }

    /// What stands in errno before the first call and behind each line.
    void setErrorNumber(int errorNumber) { errno = errorNumber_ = errorNumber; }

    [[nodiscard]] std::string text() const { return out_.str(); }

    [[nodiscard]] std::string lastLine() const {
        std::string const all = text();
        std::size_t const end =
            all.size() < 2 ? std::string::npos : all.rfind('\n', all.size() - 2);
        return end == std::string::npos ? all : all.substr(end + 1);
    }

  private:
    template <typename Number>
    requires std::is_integral_v<Number>
    void write(Number value) { out_ << +value; }
    /// The bits: a text would follow the rounding mode.
    void write(double value) {
        out_ << std::hex << std::bit_cast<std::uint64_t>(value) << std::dec;
    }
    void write(float value) { write(static_cast<double>(value)); }
    /// Of a long text, its length and a digest by the function of Fowler, Noll and Vo.
    void write(std::string const& text) {
        out_ << text.size();
        if (text.size() <= longestShown) {
            out_ << '"' << text << '"';
            return;
        }
        std::uint64_t digest = 0xCBF29CE484222325;
        for (char const c : text)
            digest = (digest ^ static_cast<unsigned char>(c)) * 0x100000001B3;
        out_ << '#' << digest;
    }
    void write(char const* text) {
        if (text == nullptr) {
            out_ << "null";
        } else {
            write(std::string(text));
        }
    }
    void write(qel::Date const& date) { out_ << date.GetMillisecondsSinceEpoch(); }
    void write(qel::RSAKey const& key) { write(key.toString()); }
    void write(qel::LargeInteger const& value) {
        bigint_test::Representation const shown = bigint_test::representation(value);
        if (shown.size <= wordsInFull)
            out_ << "0x" << value.toString(16) << ' ' << shown;
        else
            out_ << std::hex << sumOf(value) << std::dec << ' ' << shown;
    }
    /// Wider values are written as a sum of their words.
    static constexpr int wordsInFull = 100;
    static std::uint64_t sumOf(qel::LargeInteger const& value) {
        std::uint64_t sum = 0;
        for (int i = bigint_test::LargeIntegerPeer::size(value) - 1; i >= 0; --i)
            sum = sum * 0x9E3779B97F4A7C15U + bigint_test::LargeIntegerPeer::word(value, i);
        return sum;
    }

    static constexpr std::size_t longestShown = 100;

    std::ostringstream out_;
    int errorNumber_ = 0;
};

}  // namespace interface_test
