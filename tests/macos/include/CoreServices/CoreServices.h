// What the library uses of CoreServices, declared by hand.
#pragma once

#include "MacTypes.h"

extern "C" {

struct FSRef {
    UInt8 hidden[80];
};

OSStatus FSPathMakeRef(UInt8 const* path, FSRef* reference, Boolean* isFolder);
OSErr FSResolveAliasFile(FSRef* reference, Boolean resolveAliasChains, Boolean* targetIsFolder,
                         Boolean* wasAliased);
OSStatus FSRefMakePath(FSRef const* reference, UInt8* path, UInt32 pathBufferSize);

void Microseconds(UnsignedWide* counter);
}
