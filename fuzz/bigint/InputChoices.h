// The choices of a sequence of operations, as the bytes of an input.
#pragma once

#include "Input.h"

#include "bigint/TwinSequence.h"

#include <cstdlib>
#include <iostream>
#include <vector>

namespace fuzz {

class InputChoices : public bigint_test::Choices {
  public:
    InputChoices(std::uint8_t const* data, std::size_t size) : input_(data, size) {}

    int below(int end) override { return input_.below(end); }
    unsigned int word() override { return input_.number<unsigned int>(); }
    long long wide() override { return input_.number<long long>(); }
    [[nodiscard]] bool ended() const override { return input_.ended(); }
    [[nodiscard]] int widest() const override { return 1200; }

  private:
    Input input_;
};

/// Steps of these kinds, as many as the input has; ends the process where one differs.
inline void runSequence(std::uint8_t const* data, std::size_t size,
                        std::vector<bigint_test::Family> const& kinds) {
    constexpr int mostSteps = 100;
    InputChoices choices(data, size);
    std::string const fault = bigint_test::Sequence(choices, kinds).run(mostSteps);
    if (fault.empty())
        return;
    std::cerr << fault << '\n';
    std::abort();
}

}  // namespace fuzz
