// A conversion of characters that changes every byte, as an application's locale may have one.
#pragma once

#include <cwchar>
#include <locale>

/// Adds one to each byte written.
class ShiftedBytes : public std::codecvt<char, char, std::mbstate_t> {
  protected:
    [[nodiscard]] bool do_always_noconv() const noexcept override { return false; }
    result do_out(std::mbstate_t& /*state*/, char const* from, char const* fromEnd,
                  char const*& fromNext, char* to, char* toEnd, char*& toNext) const override {
        for (; from != fromEnd && to != toEnd; ++from, ++to)
            *to = static_cast<char>(*from + 1);
        fromNext = from;
        toNext = to;
        return ok;
    }
};
