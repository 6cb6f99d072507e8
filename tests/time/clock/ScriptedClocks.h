// Clocks of the system that say what a test tells them to.
#pragma once

#include "time/SystemClocks.h"

struct ScriptedClocks {
    unsigned long long startup_us = 0;
    qel::internal::WallClockTime wallClock = {0, 0};
    int startupReads = 0;
    int wallClockReads = 0;
};

extern ScriptedClocks script;
