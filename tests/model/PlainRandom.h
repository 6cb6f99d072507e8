// The plain generator: its steps and the order in which it fills bits, as documented.
#pragma once

namespace plain {

class Random {
  public:
    explicit Random(long long seed) : state_(static_cast<unsigned long long>(seed)) {}

    int nextInt() { return static_cast<int>(static_cast<unsigned int>(step() >> 16)); }
    bool nextBool() { return step() >> 47 != 0; }

    template <typename Integer>
    void fillBitsRandomly(Integer& value, int firstBit, int bitCount) {
        long long position = firstBit;
        long long left = bitCount;
        setBit(value, position + left - 1, true);
        for (; position % 32 != 0 && left > 0; ++position, --left)
            setBit(value, position, nextBool());
        for (; left > 31; position += 32, left -= 32) {
            auto const word = static_cast<unsigned int>(nextInt());
            for (int i = 0; i < 32; ++i)
                setBit(value, position + i, (word >> i & 1) != 0);
        }
        for (; left > 0; --left)
            setBit(value, position + left - 1, nextBool());
    }

  private:
    unsigned long long step() {
        return state_ = (state_ * 0x5DEECE66DULL + 11) & 0xFFFFFFFFFFFFULL;
    }

    template <typename Integer>
    static void setBit(Integer& value, long long position, bool bit) {
        if (position >= 0)
            value.setBit(static_cast<int>(position), bit);
    }

    unsigned long long state_;
};

}  // namespace plain
