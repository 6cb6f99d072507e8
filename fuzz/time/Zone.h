// The time zone that an input asks for, of rules that need no files.
#pragma once

#include "Input.h"

#include <cstdlib>
#include <ctime>

namespace fuzz {

inline void takeZone(Input& input) {
    static constexpr char const* zones[] = {
        "UTC0",   "XYZ-5:30",   "ABC7:15DEF,M3.2.0,M11.1.0", "CET-1CEST,M3.5.0,M10.5.0/3",
        "XYZ-13", "QRS11:59:30"};
    static char const* current = nullptr;
    char const* const zone = zones[input.below(6)];
    if (zone == current)
        return;
    current = zone;
    setenv("TZ", zone, 1);
    tzset();
}

}  // namespace fuzz
