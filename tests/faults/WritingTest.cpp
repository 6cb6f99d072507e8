// Disks that fill up, and signals that interrupt a long write.
#include "fs/TemporaryFolder.h"

#include "qel/File.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <string>
#include <thread>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

using qel::File;

class Writing : public TemporaryFolder {};

constexpr std::size_t room = 10000;

/// No file of this process grows beyond `room` bytes.
void limitFiles() {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit const limit = {room, room};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
}

TEST_F(Writing, AFullDiskIsNoFailureAndTakesWhatFits) {
    std::string const text(10 * room, 't');
    auto const run = [&text] {
        limitFiles();
        EXPECT_TRUE(File::WriteStringToFile(text, "./f", false));
        EXPECT_EQ(File::GetSize("f"), static_cast<long long>(room));
        EXPECT_TRUE(File::WriteStringToFile("more", "./f", true));
        EXPECT_EQ(File::GetSize("f"), static_cast<long long>(room));
        EXPECT_TRUE(File::WriteStringToFile("short", "./f", false));
        EXPECT_EQ(contentOf("f"), "short");
        leaveChild();
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

TEST_F(Writing, AFullDeviceIsNoFailure) {
    if (!File::ExistsAsFile("/dev/full"))
        GTEST_SKIP() << "no such device here";
    // Appending, and without the rights to delete it: a fault must not cost the device.
    asOrdinaryUser([] {
        EXPECT_TRUE(File::WriteStringToFile("lost", "/dev/full", true));
        EXPECT_TRUE(File::WriteStringToFile(std::string(100000, 'l'), "/dev/full", true));
    });
}

int interruptions = 0;

/// Interrupts this thread, and no other, a thousand times a second.
class Interruptions {
  public:
    Interruptions() {
        interruptions = 0;
        struct sigaction action = {};
        action.sa_handler = [](int) { ++interruptions; };  // no SA_RESTART: calls are cut short
        sigaction(SIGALRM, &action, &previous_);
        set(1000);
    }

    ~Interruptions() {
        set(0);
        sigaction(SIGALRM, &previous_, nullptr);
    }

    Interruptions(Interruptions const&) = delete;
    Interruptions& operator=(Interruptions const&) = delete;

  private:
    static void set(int microseconds) {
        itimerval const interval = {{0, microseconds}, {0, microseconds}};
        setitimer(ITIMER_REAL, &interval, nullptr);
    }

    struct sigaction previous_ = {};
};

/// Reads slowly, so that the writer waits.
std::string readSlowly(int descriptor, std::size_t size) {
    std::string text;
    std::array<char, 4096> block;
    while (text.size() < size) {
        ssize_t const count = read(descriptor, block.data(), block.size());
        if (count <= 0)
            break;
        text.append(block.data(), static_cast<std::size_t>(count));
        usleep(200);
    }
    return text;
}

TEST_F(Writing, SignalsDuringALongWriteLoseNothing) {
    std::string text(3000000, ' ');
    for (std::size_t i = 0; i < text.size(); ++i)
        text[i] = static_cast<char>('a' + i * i % 23);
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    int const end = open("pipe", O_RDWR);
    std::string received;
    sigset_t alarms;
    sigemptyset(&alarms);
    sigaddset(&alarms, SIGALRM);
    pthread_sigmask(SIG_BLOCK, &alarms, nullptr);  // inherited by the reader
    std::thread reader([&] { received = readSlowly(end, text.size()); });
    pthread_sigmask(SIG_UNBLOCK, &alarms, nullptr);
    {
        Interruptions const interrupted;
        EXPECT_TRUE(File::WriteStringToFile(text, "./pipe", true));
    }
    reader.join();
    close(end);
    EXPECT_GT(interruptions, 10);
    EXPECT_TRUE(received == text);
}

}  // namespace
