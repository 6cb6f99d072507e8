// One child for each fault; its standard error comes back through a pipe.
#include "Ending.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstdlib>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::function<bool()> const* askedLast = nullptr;

/// The process aborts by its own call, outside the allocator, so that anything may be called here.
void onAbort(int /*signal*/) {
    constexpr char damaged[] = "an operand is damaged\n";
    if (!(*askedLast)())
        (void)!write(STDERR_FILENO, damaged, sizeof damaged - 1);
}

/// An exception must not bring the child back into the test.
[[noreturn]] void runChild(std::function<void()> const& steps,
                           std::function<bool()> const& witness) noexcept {
    rlimit const noCore = {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    askedLast = &witness;
    std::signal(SIGABRT, onAbort);
    steps();
    std::_Exit(0);
}

std::string readAll(int descriptor) {
    std::string text;
    std::array<char, 512> block;
    for (ssize_t count; (count = read(descriptor, block.data(), block.size())) > 0;)
        text.append(block.data(), static_cast<std::size_t>(count));
    return text;
}

}  // namespace

faults::Ending faults::endingOf(std::function<void()> const& steps,
                                std::function<bool()> const& witness) {
    std::array<int, 2> ends;
    EXPECT_EQ(pipe(ends.data()), 0);
    pid_t const child = fork();
    if (child == 0) {
        dup2(ends[1], STDERR_FILENO);
        runChild(steps, witness);
    }
    close(ends[1]);
    Ending ending = {false, readAll(ends[0])};
    close(ends[0]);
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    ending.aborted = WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT;
    EXPECT_TRUE(ending.aborted || (WIFEXITED(status) && WEXITSTATUS(status) == 0))
        << "status " << status << ": " << ending.lastWords;
    return ending;
}
