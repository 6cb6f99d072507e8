// What the examples of the pages stand on: each runs in a folder of its own.
#pragma once

#include "fs/TemporaryFolder.h"

#include "qel/CharFunctions.h"
#include "qel/Date.h"
#include "qel/File.h"
#include "qel/Folder.h"
#include "qel/LargeInteger.h"
#include "qel/LargeIntegerStream.h"
#include "qel/PrimesNumber.h"
#include "qel/RSAKey.h"
#include "qel/Random.h"
#include "qel/Version.h"

#include <climits>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numeric>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace qel;

class Examples : public TemporaryFolder {};

/// The value that a page states, in the type of what it is stated of.
template <typename Type, typename Value>
std::decay_t<Type> valueLike(Value const& value) {
    return static_cast<std::decay_t<Type>>(value);
}

/// Gives the call a tenth of a second of its own. With asserts, such calls are refused by one.
template <typename Call>
bool doesNotReturn(Call call) {
    pid_t const child = fork();
    if (child == 0) {
        std::freopen("/dev/null", "w", stderr);
        itimerval const tenth = {{0, 0}, {0, 100000}};
        setitimer(ITIMER_VIRTUAL, &tenth, nullptr);
        call();
        std::_Exit(0);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFSIGNALED(status) && (WTERMSIG(status) == SIGVTALRM || WTERMSIG(status) == SIGABRT);
}
