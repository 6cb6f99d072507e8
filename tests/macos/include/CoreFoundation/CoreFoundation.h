// What the library uses of CoreFoundation, declared by hand.
#pragma once

#include "MacTypes.h"

extern "C" {

using CFIndex = long;
using CFStringEncoding = UInt32;
using CFTypeRef = void const*;
using CFAllocatorRef = struct CFAllocator const*;
using CFStringRef = struct CFString const*;

enum : CFStringEncoding { kCFStringEncodingMacRoman = 0, kCFStringEncodingUTF8 = 0x08000100 };

extern CFAllocatorRef const kCFAllocatorDefault;

CFStringRef CFStringCreateWithCString(CFAllocatorRef allocator, char const* text,
                                      CFStringEncoding encoding);
Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex bufferSize,
                           CFStringEncoding encoding);
void CFRelease(CFTypeRef object);
}
