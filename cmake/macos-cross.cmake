# Builds for x86-64 macOS on Linux with the compiler that tests/macos/cross-build installs, which
# has libc++ and the system's C headers with it. For the frameworks there are declarations and
# stubs in tests/macos.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

get_filename_component(root "${CMAKE_CURRENT_LIST_DIR}" DIRECTORY)
set(CMAKE_CXX_COMPILER "${root}/build/zig/node_modules/.bin/zig" c++)
set(CMAKE_CXX_COMPILER_TARGET x86_64-macos)
# Of C there is nothing here, but GoogleTest's own build asks for it.
set(CMAKE_C_COMPILER "${root}/build/zig/node_modules/.bin/zig" cc)
set(CMAKE_C_COMPILER_TARGET x86_64-macos)

# The declarations come last, so that the system's own MacTypes.h is taken before ours. And this
# compiler refuses __DATE__, which the version's banner wants, unless told otherwise. It also rules
# out registers of 512 bits by name (evex512), which a function's own target then cannot bring back;
# without AVX-512 the feature means nothing.
set(CMAKE_CXX_FLAGS_INIT
    "-mcpu=x86_64+evex512 -idirafter ${root}/tests/macos/include -Wno-date-time")

# A program gets the whole library, used or not, so that its link shows that nothing is missing.
set(CMAKE_EXE_LINKER_FLAGS_INIT
    "-F${root}/tests/macos/frameworks -Wl,--whole-archive -Wl,--no-gc-sections")

# A build asks no program for the names of its tests: it would have to run here.
set(CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE PRE_TEST)
