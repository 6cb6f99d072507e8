// A line on the terminal that counts the seconds while its object lives.
#ifndef QEL_EXAMPLES_ELAPSEDLINE_H
#define QEL_EXAMPLES_ELAPSEDLINE_H

#include <chrono>
#include <condition_variable>
#include <iostream>
#include <mutex>
#include <string>
#include <thread>

#include <unistd.h>

/// Writes "TEXT N s" to the standard error, anew each second, and erases it at the end. Where the
/// standard error is no terminal, nothing is written. It runs beside what it counts for, which need
/// not know of it.
class ElapsedLine {
  public:
    explicit ElapsedLine(std::string line) : text(std::move(line)) {
        if (isatty(STDERR_FILENO) != 0)
            writer = std::thread([this] { writeUntilEnd(); });
    }

    ~ElapsedLine() {
        if (!writer.joinable())
            return;
        {
            std::lock_guard const lock(guard);
            ended = true;
        }
        end.notify_one();
        writer.join();
    }

    ElapsedLine(ElapsedLine const&) = delete;
    ElapsedLine& operator=(ElapsedLine const&) = delete;

  private:
    void writeUntilEnd() {
        constexpr char const* eraseLine = "\r\x1b[K";
        std::unique_lock lock(guard);
        auto const isOver = [this] { return ended; };
        auto const begin = std::chrono::steady_clock::now();
        int seconds = 0;
        do
            std::cerr << eraseLine << text << ' ' << seconds++ << " s" << std::flush;
        while (!end.wait_until(lock, begin + std::chrono::seconds(seconds), isOver));
        std::cerr << eraseLine << std::flush;
    }

    std::string text;
    std::thread writer;
    std::mutex guard;
    std::condition_variable end;
    bool ended = false;
};

#endif
