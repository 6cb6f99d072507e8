// Stands in for the system's clocks: the linker finds these two before those of the library.
#include "ScriptedClocks.h"

ScriptedClocks script;

namespace qel::internal {

unsigned long long microsecondsSinceStartup() noexcept {
    ++script.startupReads;
    return script.startup_us;
}

WallClockTime readWallClock() noexcept {
    ++script.wallClockReads;
    return script.wallClock;
}

}  // namespace qel::internal
