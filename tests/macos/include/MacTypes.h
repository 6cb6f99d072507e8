// The integer types of the frameworks, on x86-64.
#pragma once

using UInt8 = unsigned char;
using UInt32 = unsigned int;
using SInt16 = short;
using SInt32 = int;
using Boolean = unsigned char;
using OSErr = SInt16;
using OSStatus = SInt32;

enum { noErr = 0 };

struct UnsignedWide {
    UInt32 lo;
    UInt32 hi;
};
