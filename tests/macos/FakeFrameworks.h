// Frameworks of macOS that do what a test tells them to, and say what was asked of them.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <CoreServices/CoreServices.h>
#include <sys/sysctl.h>

#include <string>
#include <vector>

struct FakeFrameworks {
    // What they answer.
    OSStatus referenceStatus = noErr;
    OSErr aliasStatus = noErr;
    Boolean isAlias = false;
    OSStatus pathStatus = noErr;
    std::string target;  // written as far as it fits, with its terminator if that fits
    bool makesString = true;
    bool stringFits = true;
    std::string utf8;
    UnsignedWide counter = {0, 0};
    int featureStatus = 0;
    int feature = 0;

    // What they were asked.
    std::vector<std::string> calls;
    std::string path;
    UInt32 pathBufferSize = 0;
    std::string text;
    CFIndex textBufferSize = 0;
    int stringsAlive = 0;
};

extern FakeFrameworks frameworks;
