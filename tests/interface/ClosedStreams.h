// The standard streams closed, so that the next files get their numbers; open again at the end of
// its life.
#pragma once

#include <array>
#include <cstdio>
#include <iostream>

#include <fcntl.h>
#include <unistd.h>

namespace interface_test {

class ClosedStreams {
  public:
    ClosedStreams() {
        std::fflush(nullptr);
        std::cout.flush();
        for (int stream = 0; stream < static_cast<int>(kept_.size()); ++stream) {
            kept_[static_cast<std::size_t>(stream)] = fcntl(stream, F_DUPFD_CLOEXEC, firstOfOthers);
            close(stream);
        }
    }
    ClosedStreams(ClosedStreams const&) = delete;
    ClosedStreams& operator=(ClosedStreams const&) = delete;
    ~ClosedStreams() {
        for (int stream = 0; stream < static_cast<int>(kept_.size()); ++stream) {
            int const kept = kept_[static_cast<std::size_t>(stream)];
            if (kept < 0)
                continue;
            dup2(kept, stream);
            close(kept);
        }
    }

  private:
    static constexpr int firstOfOthers = 100;

    /// -1 for one that was closed already.
    std::array<int, 3> kept_{};
};

}  // namespace interface_test
