// Aliases from CoreServices, text encodings from CoreFoundation.
#ifdef __APPLE__

#include "PathServices.h"

#include <CoreFoundation/CoreFoundation.h>
#include <CoreServices/CoreServices.h>

// These calls are deprecated, and still there: when an alias resolves is defined by them.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace qel::internal {

bool findAliasTarget(char const* path, char* target, unsigned int size, bool& isAlias) noexcept {
    isAlias = false;
    FSRef reference;
    if (FSPathMakeRef(reinterpret_cast<UInt8 const*>(path), &reference, nullptr) != noErr)
        return false;
    Boolean targetIsFolder = false;
    Boolean wasAliased = false;
    OSErr const status = FSResolveAliasFile(&reference, true, &targetIsFolder, &wasAliased);
    isAlias = wasAliased != 0;
    if (status != noErr || !isAlias)
        return false;
    return FSRefMakePath(&reference, reinterpret_cast<UInt8*>(target), size) == noErr;
}

std::string utf8FromMacRoman(std::string const& text) noexcept {
    CFStringRef const string =
        CFStringCreateWithCString(kCFAllocatorDefault, text.c_str(), kCFStringEncodingMacRoman);
    if (string == nullptr)
        return {};
    char buffer[textCapacity];
    bool const fits = CFStringGetCString(string, buffer, sizeof buffer, kCFStringEncodingUTF8) != 0;
    CFRelease(string);
    return fits ? buffer : "";
}

}  // namespace qel::internal

#endif
