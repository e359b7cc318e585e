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
    double residentOwn() const;   // megabytes that aren't pages of files

    // Waits until a window of the program is on the screen and the program has nothing more to do.
    // Raises std::runtime_error if that takes more than 20 seconds.
    void waitUntilShown();
    // Waits until the program has had nothing to do for a while.
    void waitUntilQuiet();
    // Milliseconds from the start to the last work that a wait has seen.
    double wallTime() const;

    // Its windows on the screen.
    std::vector<std::uint32_t> windows() const;
    // How many points of the window are quite white.
    static int whitePoints(std::uint32_t window);

    // Waits for its end by itself.
    struct End {
        double processorTime, wallTime; // milliseconds
        int status;
    };
    End waitUntilEnded();

private:
    using Clock = std::chrono::steady_clock;

    pid_t pid_ = -1;
    Clock::time_point start_ = Clock::now();
    Clock::time_point lastWork_ = start_;
};

} // namespace bench
