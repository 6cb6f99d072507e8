// The plain large integer: every operation written step by step, bit by bit, as documented. The
// model that the library's LargeInteger must agree with, in value, sign flag, bound and capacity.
#pragma once

#include <cstdint>
#include <string>

namespace plain {

struct LargeInteger {
    LargeInteger() noexcept;
    LargeInteger(int v) noexcept;
    LargeInteger(unsigned int v) noexcept;
    LargeInteger(long long v) noexcept;
    LargeInteger(LargeInteger const& source) noexcept;
    ~LargeInteger() noexcept;
    LargeInteger& operator=(LargeInteger const& source) noexcept;
    void swapWith(LargeInteger& other) noexcept;
    void clear() noexcept;
    void ensureSize(int w) noexcept;
    void setNegative(bool flag) noexcept;
    bool isZero() const noexcept;
    bool isOne() const noexcept;
    bool isNegative() const noexcept;
    bool negate() noexcept;
    int toInteger() const noexcept;
    int getHighestBit() const noexcept;
    int operator[](int i) const noexcept;
    void setBit(int i) noexcept;
    void setBit(int i, bool value) noexcept;
    void clearBit(int i) noexcept;
    void setRange(int start, int count, bool value) noexcept;
    int getBitRangeAsInt(int start, int count) const noexcept;
    void setBitRangeAsInt(int start, int count, unsigned int value) noexcept;
    LargeInteger getBitRange(int start, int count) const noexcept;
    int findNextSetBit(int start) const noexcept;
    int findNextClearBit(int start) const noexcept;
    int countNumberOfSetBits() const noexcept;
    int compareAbsolute(LargeInteger const& other) const noexcept;
    int compare(LargeInteger const& other) const noexcept;
    bool operator==(LargeInteger const& other) const noexcept;
    bool operator!=(LargeInteger const& other) const noexcept;
    bool operator<(LargeInteger const& other) const noexcept;
    bool operator<=(LargeInteger const& other) const noexcept;
    bool operator>(LargeInteger const& other) const noexcept;
    bool operator>=(LargeInteger const& other) const noexcept;

    LargeInteger& operator&=(LargeInteger const& b) noexcept;
    LargeInteger& operator|=(LargeInteger const& b) noexcept;
    LargeInteger& operator^=(LargeInteger const& b) noexcept;
    LargeInteger operator&(LargeInteger const& b) const noexcept;
    LargeInteger operator|(LargeInteger const& b) const noexcept;
    LargeInteger operator^(LargeInteger const& b) const noexcept;
    LargeInteger& operator+=(LargeInteger const& b) noexcept;
    LargeInteger& operator-=(LargeInteger const& b) noexcept;
    LargeInteger& operator*=(LargeInteger const& b) noexcept;
    LargeInteger operator+(LargeInteger const& b) const noexcept;
    LargeInteger operator-(LargeInteger const& b) const noexcept;
    LargeInteger operator*(LargeInteger const& b) const noexcept;
    LargeInteger operator-() const noexcept;
    LargeInteger& operator++() noexcept;
    LargeInteger& operator--() noexcept;
    LargeInteger operator++(int) noexcept;
    LargeInteger operator--(int) noexcept;
    void shiftBits(int count, int from) noexcept;
    LargeInteger& operator<<=(int n) noexcept;
    LargeInteger& operator>>=(int n) noexcept;
    LargeInteger operator<<(int n) const noexcept;
    LargeInteger operator>>(int n) const noexcept;
    void insertBit(int pos, bool value) noexcept;
    void divideBy(LargeInteger const& divisor, LargeInteger& remainder) noexcept;
    LargeInteger& operator/=(LargeInteger const& divisor) noexcept;
    LargeInteger& operator%=(LargeInteger const& divisor) noexcept;
    LargeInteger operator/(LargeInteger const& divisor) const noexcept;
    LargeInteger operator%(LargeInteger const& divisor) const noexcept;
    static LargeInteger simpleGCD(LargeInteger* a, LargeInteger* b) noexcept;
    LargeInteger findGreatestCommonDivisor(LargeInteger other) const noexcept;
    void inverseModulo(LargeInteger const& m) noexcept;
    void exponentModulo(LargeInteger const& e, LargeInteger const& m) noexcept;
    std::string toString(int radix) const noexcept;
    void parseString(std::string const& text, int radix) noexcept;

    void refreshHighestBit(long long bound) noexcept;
    void addMagnitude(LargeInteger const& b) noexcept;
    void subtractMagnitude(LargeInteger const& b) noexcept;
    void shiftBy(long long distance, int from) noexcept;
    void shiftLeft(long long count) noexcept;
    void shiftRight(long long count) noexcept;
    void shiftLeftFrom(int from, long long count) noexcept;
    void shiftRightFrom(int from, long long count) noexcept;
    std::string digitsByShifting(int bits) const noexcept;
    std::string digitsByDividing() const noexcept;
    std::uint32_t* data;
    std::int32_t size;
    std::int32_t highestBit;
    bool negative;
};

}  // namespace plain
