/// @file
/// The version of the library that a program was linked with.
#ifndef QEL_VERSION_H
#define QEL_VERSION_H

/// The whole library; only `lastMSCounterValue` stands outside.
namespace qel {

/// The first number of the version.
[[nodiscard]] int GetVersionMajor() noexcept;
/// The second number of the version.
[[nodiscard]] int GetVersionMinor() noexcept;
/// The third number of the version.
[[nodiscard]] int GetVersionRelease() noexcept;

/// One line without an end: "qel version 1.4.0, build " and the day of the library's build in the
/// form of `__DATE__`, as "Nov 21 2012".
///
/// The library keeps the memory: the pointer is good until the end of the program. The first call
/// builds the text, so the calls are to be made from one thread at a time, and not from a
/// destructor that runs after the library's own objects are destroyed.
[[nodiscard]] char const* GetVersion() noexcept;

}  // namespace qel

#endif
