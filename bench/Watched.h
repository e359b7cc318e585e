// A program watched from outside, with no help of its own: its processor time and memory as the
// system counts them, its windows as the X server knows them.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include <sys/types.h>

namespace bench {

class Watched {
public:
    // Starts the program.
    explicit Watched(const std::string& program);
    // Ends it with SIGTERM, if it hasn't ended.
    ~Watched();
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;

    double processorTime() const; // milliseconds, all threads, also those that have ended
    double resident() const;      // megabytes

    // Waits until a window of the program, other than `before`, is on the screen and the program
    // has nothing more to do. Gives the window. Raises std::runtime_error after 20 seconds.
    std::uint32_t waitUntilShown(std::uint32_t before = 0);
    // Waits until the program has had nothing to do for a while.
    void waitUntilQuiet();
    // Milliseconds from the start to the last work that a wait has seen.
    double wallTime() const;

    // How many points of the window are quite white.
    static int whitePoints(std::uint32_t window);

    // Waits for its end by itself.
    struct End {
        double processorTime, wallTime; // milliseconds
        int status;
    };
    End waitUntilEnded();

private:
    // Those on the screen.
    std::vector<std::uint32_t> windows() const;

    using Clock = std::chrono::steady_clock;

    pid_t pid_ = -1;
    Clock::time_point start_ = Clock::now();
    Clock::time_point lastWork_ = start_;
};

} // namespace bench
