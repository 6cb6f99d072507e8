// Each double notes the call, and fails or passes it on to the function that it stands before.
#include "FailingCalls.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <ctime>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool counting = false;
int failing = 0;
int failure = 0;
std::vector<std::string> called;

/// Of the doubles, to their caller: `failed`, or what the next function of that name says.
template <typename Result, typename... Arguments>
Result passOn(char const* name, Result failed, Arguments... arguments) {
    if (counting) {
        called.emplace_back(name);
        if (static_cast<int>(called.size()) == failing) {
            errno = failure;
            return failed;
        }
    }
    using Function = Result (*)(Arguments...);
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name))(arguments...);
}

}  // namespace

void faults::failCall(int n, int error) {
    called.clear();
    failing = n;
    failure = error;
    counting = true;
}

std::vector<std::string> faults::stopCalls() {
    counting = false;
    return called;
}

extern "C" {

int access(char const* path, int mode) noexcept {
    return passOn("access", -1, path, mode);
}

int stat(char const* path, struct stat* status) noexcept {
    return passOn("stat", -1, path, status);
}

int remove(char const* path) noexcept {
    return passOn("remove", -1, path);
}

int mkdir(char const* path, mode_t mode) noexcept {
    return passOn("mkdir", -1, path, mode);
}

int chdir(char const* path) noexcept {
    return passOn("chdir", -1, path);
}

char* getcwd(char* buffer, std::size_t size) noexcept {
    return passOn("getcwd", static_cast<char*>(nullptr), buffer, size);
}

char* realpath(char const* path, char* resolved) noexcept {
    return passOn("realpath", static_cast<char*>(nullptr), path, resolved);
}

int open(char const* path, int flags, ...) {
    std::va_list rest;
    va_start(rest, flags);
    mode_t const mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return passOn("open", -1, path, flags, mode);
}

/// A file that does not close well is closed all the same.
int close(int file) {
    int const closed = passOn("close", -1, file);
    if (closed == -1 && counting && static_cast<int>(called.size()) == failing) {
        counting = false;
        passOn("close", -1, file);
        counting = true;
    }
    return closed;
}

/// One that fails may have written some fields already: here a month that has no name.
tm* localtime_r(time_t const* time, tm* fields) noexcept {
    tm* const result = passOn("localtime_r", static_cast<tm*>(nullptr), time, fields);
    if (result == nullptr)
        fields->tm_mon = 12;
    return result;
}

ssize_t read(int descriptor, void* buffer, std::size_t size) {
    return passOn("read", ssize_t{-1}, descriptor, buffer, size);
}

ssize_t write(int descriptor, void const* buffer, std::size_t size) {
    return passOn("write", ssize_t{-1}, descriptor, buffer, size);
}
}
