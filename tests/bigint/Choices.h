// Where a sequence of operations takes its next turn from.
#pragma once

#include <climits>
#include <random>

namespace bigint_test {

class Choices {
  public:
    Choices() = default;
    Choices(Choices const&) = delete;
    Choices& operator=(Choices const&) = delete;
    virtual ~Choices() = default;

    /// 0 to `end` - 1.
    virtual int below(int end) = 0;
    virtual unsigned int word() = 0;
    virtual long long wide() = 0;
    /// True when every further choice would be the same.
    [[nodiscard]] virtual bool ended() const = 0;
    /// Numbers of more bits are not wanted: the plain model is slow.
    [[nodiscard]] virtual int widest() const = 0;

    virtual bool oneIn(int n) { return below(n) == 0; }
};

class SeededChoices : public Choices {
  public:
    explicit SeededChoices(unsigned int seed) : random_(seed) {}

    int below(int end) override {
        return static_cast<int>(random_() % static_cast<unsigned int>(end));
    }
    unsigned int word() override { return static_cast<unsigned int>(random_()); }
    long long wide() override { return static_cast<long long>((random_() << 32) ^ random_()); }
    [[nodiscard]] bool ended() const override { return false; }
    [[nodiscard]] int widest() const override { return 3100 * 32; }

  private:
    std::mt19937_64 random_;
};

}  // namespace bigint_test
