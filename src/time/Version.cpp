// The version's numbers and the banner with the day of the build.
#include "qel/Version.h"

#include "VersionNumbers.h"

#include <string>

// A reproducible build passes its day in, in the form of __DATE__.
#ifndef QEL_BUILD_DATE
#define QEL_BUILD_DATE __DATE__
#endif

namespace qel {

using namespace internal;

namespace {

/// Built once, so that the text of an earlier call stays readable.
std::string qelVersion;

}  // namespace

int GetVersionMajor() noexcept {
    return versionMajor;
}

int GetVersionMinor() noexcept {
    return versionMinor;
}

int GetVersionRelease() noexcept {
    return versionRelease;
}

char const* GetVersion() noexcept {
    if (qelVersion.empty())
        qelVersion = "qel version " + std::to_string(versionMajor) + '.'
                     + std::to_string(versionMinor) + '.' + std::to_string(versionRelease)
                     + ", build " QEL_BUILD_DATE;
    return qelVersion.c_str();
}

}  // namespace qel
