// How a process ended that was made for one fault.
#pragma once

#include <functional>
#include <string>

namespace faults {

struct Ending {
    bool aborted;  // by SIGABRT; otherwise it came to the end of its steps
    std::string lastWords;
};

/// Runs `steps` in a process of its own. Where it aborts, `witness` is asked last: what it finds
/// damaged belongs to the last words.
Ending endingOf(std::function<void()> const& steps, std::function<bool()> const& witness);

}  // namespace faults
