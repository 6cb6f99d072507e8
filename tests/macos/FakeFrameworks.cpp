// Every fake notes its call, checks the arguments that never vary, and answers as the test says.
#include "FakeFrameworks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

FakeFrameworks frameworks;

namespace {

/// What a reference refers to, in its first byte: a call with another one than it needs fails.
enum Referent : UInt8 { originalFile = 1, resolvedFile = 2 };

int allocator;
int string;

}  // namespace

CFAllocatorRef const kCFAllocatorDefault = reinterpret_cast<CFAllocatorRef>(&allocator);

static CFStringRef theString() {
    return reinterpret_cast<CFStringRef>(&string);
}

OSStatus FSPathMakeRef(UInt8 const* path, FSRef* reference, Boolean* isFolder) {
    frameworks.calls.emplace_back("FSPathMakeRef");
    frameworks.path = reinterpret_cast<char const*>(path);
    EXPECT_EQ(isFolder, nullptr);
    reference->hidden[0] = originalFile;
    return frameworks.referenceStatus;
}

OSErr FSResolveAliasFile(FSRef* reference, Boolean resolveAliasChains, Boolean* targetIsFolder,
                         Boolean* wasAliased) {
    frameworks.calls.emplace_back("FSResolveAliasFile");
    EXPECT_EQ(reference->hidden[0], originalFile);
    EXPECT_EQ(resolveAliasChains, 1);
    reference->hidden[0] = resolvedFile;
    *targetIsFolder = false;
    *wasAliased = frameworks.isAlias;
    return frameworks.aliasStatus;
}

OSStatus FSRefMakePath(FSRef const* reference, UInt8* path, UInt32 pathBufferSize) {
    frameworks.calls.emplace_back("FSRefMakePath");
    frameworks.pathBufferSize = pathBufferSize;
    EXPECT_EQ(reference->hidden[0], resolvedFile);
    std::size_t const size = frameworks.target.size() + 1;
    std::memcpy(path, frameworks.target.c_str(), std::min<std::size_t>(size, pathBufferSize));
    return frameworks.pathStatus;
}

CFStringRef CFStringCreateWithCString(CFAllocatorRef givenAllocator, char const* text,
                                      CFStringEncoding encoding) {
    frameworks.calls.emplace_back("CFStringCreateWithCString");
    frameworks.text = text;
    EXPECT_EQ(givenAllocator, kCFAllocatorDefault);
    EXPECT_EQ(encoding, kCFStringEncodingMacRoman);
    if (!frameworks.makesString)
        return nullptr;
    ++frameworks.stringsAlive;
    return theString();
}

Boolean CFStringGetCString(CFStringRef given, char* buffer, CFIndex bufferSize,
                           CFStringEncoding encoding) {
    frameworks.calls.emplace_back("CFStringGetCString");
    frameworks.textBufferSize = bufferSize;
    EXPECT_EQ(given, theString());
    EXPECT_EQ(frameworks.stringsAlive, 1);
    EXPECT_EQ(encoding, kCFStringEncodingUTF8);
    // Where the text does not fit, what it leaves in the buffer is not to be used.
    std::string const left = frameworks.stringFits ? frameworks.utf8 : "not to be used";
    std::memcpy(buffer, left.c_str(), left.size() + 1);
    return frameworks.stringFits;
}

void CFRelease(CFTypeRef object) {
    frameworks.calls.emplace_back("CFRelease");
    EXPECT_EQ(object, theString());
    --frameworks.stringsAlive;
}

void Microseconds(UnsignedWide* counter) {
    frameworks.calls.emplace_back("Microseconds");
    *counter = frameworks.counter;
}

int sysctlbyname(char const* name, void* oldValue, std::size_t* oldSize, void* newValue,
                 std::size_t newSize) {
    frameworks.calls.push_back(std::string("sysctlbyname ") + name);
    EXPECT_EQ(*oldSize, sizeof frameworks.feature);
    EXPECT_EQ(newValue, nullptr);
    EXPECT_EQ(newSize, 0U);
    if (frameworks.featureStatus == 0)
        std::memcpy(oldValue, &frameworks.feature, sizeof frameworks.feature);
    return frameworks.featureStatus;
}
