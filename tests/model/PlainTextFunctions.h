// Search, comparison, editing and hexadecimal text as documented, taken literally, on standard
// strings. Slow and plain on purpose.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <string>

namespace model {

constexpr std::size_t npos = std::string::npos;

// --- case --------------------------------------------------------------------------------------

inline char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

inline char upperCase(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
}

inline std::string lowerCase(std::string s) {
    for (char& c : s)
        c = lowerCase(c);
    return s;
}

inline std::string upperCase(std::string s) {
    for (char& c : s)
        c = upperCase(c);
    return s;
}

// --- search ------------------------------------------------------------------------------------

inline bool contains(std::string const& s, std::string const& part) {
    return !part.empty() && s.find(part) != npos;
}

inline bool startsWith(std::string const& s, std::string const& prefix) {
    return s.find(prefix) == 0;
}

/// The position of the first byte of `s` that is in `set`, counted from 0; -1 for none.
inline int indexOfFirst(std::string const& s, std::string const& set) {
    for (std::size_t i = 0; i < s.size(); ++i) {
        if (set.find(s[i]) != npos)
            return static_cast<int>(i);
    }
    return -1;
}

inline int indexOfLast(std::string const& s, std::string const& set) {
    int last = -1;
    for (std::size_t i = 0; i < s.size(); ++i) {
        if (set.find(s[i]) != npos)
            last = static_cast<int>(i);
    }
    return last;
}

/// Also where `s` is empty: both sides are -1 then.
inline bool endsWith(std::string const& s, std::string const& set) {
    return indexOfLast(s, set) == static_cast<int>(s.size()) - 1;
}

inline unsigned int count(std::string const& s, char c) {
    unsigned int found = 0;
    for (char const each : s)
        found += each == c ? 1 : 0;
    return found;
}

inline bool isBoolean(std::string const& s) {
    return s == "True" || s == "true" || s == "TRUE" || s == "False" || s == "false" || s == "FALSE"
           || s == "0" || s == "1";
}

// --- comparison --------------------------------------------------------------------------------

/// -1, 0 or 1, by bytes as unsigned numbers; a text that ends is below one that goes on.
inline int compare(std::string const& a, std::string const& b) {
    for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
        int const left = i < a.size() ? static_cast<unsigned char>(a[i]) : 0;
        int const right = i < b.size() ? static_cast<unsigned char>(b[i]) : 0;
        if (left != right)
            return left < right ? -1 : 1;
    }
    return 0;
}

// --- editing -----------------------------------------------------------------------------------

inline std::string padLeft(std::string s, std::size_t width, char fill) {
    while (s.size() < width)
        s = fill + s;
    return s;
}

inline std::string padRight(std::string s, std::size_t width, char fill) {
    while (s.size() < width)
        s += fill;
    return s;
}

inline std::string reverse(std::string const& s) {
    std::string reversed;
    for (char const c : s)
        reversed = c + reversed;
    return reversed;
}

inline bool isSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

inline std::string trimLeft(std::string s) {
    while (!s.empty() && isSpace(s.front()))
        s.erase(0, 1);
    return s;
}

inline std::string trimRight(std::string s) {
    while (!s.empty() && isSpace(s.back()))
        s.pop_back();
    return s;
}

// --- replacing once ----------------------------------------------------------------------------

/// What one occurrence of `old`, at `position`, becomes; nothing where there is none.
inline std::string replacedAt(std::string s, std::size_t position, std::string const& old,
                              std::string const& replacement) {
    return position == npos || old.empty() ? s : s.replace(position, old.size(), replacement);
}

inline std::string replaceFirst(std::string const& s, std::string const& old,
                                std::string const& replacement) {
    return replacedAt(s, s.find(old), old, replacement);
}

inline std::string replaceLast(std::string const& s, std::string const& old,
                               std::string const& replacement) {
    return replacedAt(s, s.rfind(old), old, replacement);
}

/// Keeps only what follows.
inline std::string removeFirst(std::string const& s, std::string const& part) {
    std::size_t const position = s.find(part);
    return part.empty() || position == npos ? s : s.substr(position + part.size());
}

inline std::string removeLast(std::string const& s, std::string const& part) {
    return replaceLast(s, part, "");
}

// --- hexadecimal text --------------------------------------------------------------------------

/// Each byte as the C library writes a signed one.
inline std::string hexText(std::string const& s, bool inUpperCase) {
    std::string text;
    for (char const c : s) {
        char digits[16];
        std::snprintf(digits, sizeof digits, inUpperCase ? "%X" : "%x",
                      static_cast<unsigned int>(static_cast<signed char>(c)));
        text += digits;
    }
    return text;
}

inline int hexDigit(char c) {
    std::size_t const value = std::string("0123456789abcdef").find(lowerCase(c));
    return value == npos ? -1 : static_cast<int>(value);
}

inline std::string bytesOfHexText(std::string const& hex) {
    std::string bytes;
    if (hex.size() % 2 != 0)
        return bytes;
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        int const high = hexDigit(hex[i]);
        int const low = hexDigit(hex[i + 1]);
        if (high < 0 || low < 0)
            return {};
        bytes += static_cast<char>(16 * high + low);
    }
    return bytes;
}

}  // namespace model
