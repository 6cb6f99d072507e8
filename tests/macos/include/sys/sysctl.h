// What the sources for macOS use of the system's header of this name.
#pragma once

#include <cstddef>

extern "C" int sysctlbyname(char const* name, void* oldValue, std::size_t* oldSize, void* newValue,
                            std::size_t newSize);
