// The states of the process that the table of public functions is run in.
#pragma once

#include "EightBitLocales.h"
#include "Function.h"
#include "Surroundings.h"

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace interface_test {

inline constexpr std::array<State, 9> allStates = {
    State::cLocale,          State::cxxLocale,        State::timeZone,
    State::fileCreationMask, State::workingDirectory, State::homeVariable,
    State::roundingMode,     State::errorNumber,      State::closedStreams};

[[nodiscard]] std::string nameOf(State state);

/// One way in which a state may be another one than in the surroundings.
struct Setting {
    std::string name;
    /// Lasts as long as what it returns.
    std::function<std::shared_ptr<void>()> enter;
    /// Stands in errno before each call.
    int errorNumber = 0;
};

/// None where the system has not what they need. The surroundings must stay, and the locales.
[[nodiscard]] std::vector<Setting> settingsOf(State state, Surroundings const& surroundings,
                                              EightBitLocales const& locales);

}  // namespace interface_test
