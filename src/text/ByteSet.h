// A set of bytes as a table of 256 bits.
#pragma once

#include <bitset>
#include <string_view>

namespace qel::internal {

class ByteSet {
  public:
    explicit ByteSet(std::string_view members) noexcept {
        for (char const c : members)
            bits_[static_cast<unsigned char>(c)] = true;
    }

    [[nodiscard]] bool contains(char c) const noexcept {
        return bits_[static_cast<unsigned char>(c)];
    }

    /// The position behind the last member in `text`; 0 when there is none.
    [[nodiscard]] std::size_t behindLastIn(std::string_view text) const noexcept {
        std::size_t end = text.size();
        while (end > 0 && !contains(text[end - 1]))
            --end;
        return end;
    }

  private:
    std::bitset<256> bits_;
};

}  // namespace qel::internal
