// One input of a fuzzer, taken apart from the front.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace fuzz {

class Input {
  public:
    Input(std::uint8_t const* data, std::size_t size)
        : bytes_(reinterpret_cast<char const*>(data), size) {}

    [[nodiscard]] bool ended() const { return bytes_.empty(); }

    /// Behind the end 0, 1, 2 and so on, so that nobody waits for a certain byte for ever.
    unsigned char byte() {
        if (ended())
            return static_cast<unsigned char>(behindTheEnd_++);
        auto const first = static_cast<unsigned char>(bytes_.front());
        bytes_.remove_prefix(1);
        return first;
    }

    /// 0 to `end` - 1; of one byte, where that is enough.
    int below(int end) {
        std::uint32_t const choice = end <= 0x100     ? byte()
                                     : end <= 0x10000 ? number<std::uint16_t>()
                                                      : number<std::uint32_t>();
        return static_cast<int>(choice % static_cast<std::uint32_t>(end));
    }

    bool flag() { return (byte() & 1) != 0; }

    /// All bytes of an integer, the lowest first.
    template <typename Integer>
    Integer number() {
        std::uint64_t bits = 0;
        for (std::size_t i = 0; i < sizeof(Integer); ++i)
            bits |= std::uint64_t{byte()} << (8 * i);
        return static_cast<Integer>(bits);
    }

    /// The bytes up to the next zero byte, or all that are left; and the zero byte is passed.
    std::string text() {
        std::string const taken(bytes_.substr(0, bytes_.find('\0')));
        bytes_.remove_prefix(taken.size() < bytes_.size() ? taken.size() + 1 : taken.size());
        return taken;
    }

  private:
    std::string_view bytes_;
    unsigned int behindTheEnd_ = 0;
};

}  // namespace fuzz
