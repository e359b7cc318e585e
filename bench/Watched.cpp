#include "bench/Watched.h"

#include <cstdlib>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <thread>

#include <signal.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace bench {

namespace {

using namespace std::chrono_literals;

constexpr auto kQuiet = 300ms; // longer than any pause in a start
constexpr auto kPatience = 20s;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <class T>
using Reply = std::unique_ptr<T, Free>;

xcb_connection_t* display() {
    static xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    return connection;
}

xcb_atom_t pidAtom() {
    static const xcb_atom_t atom = [] {
        const std::string name = "_NET_WM_PID";
        const auto cookie =
            xcb_intern_atom(display(), 0, static_cast<std::uint16_t>(name.size()), name.c_str());
        const Reply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(display(), cookie, nullptr));
        return reply->atom;
    }();
    return atom;
}

bool belongsTo(xcb_window_t window, pid_t pid) {
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        display(), xcb_get_property(display(), 0, window, pidAtom(), XCB_ATOM_CARDINAL, 0, 1),
        nullptr));
    return reply && xcb_get_property_value_length(reply.get()) == 4 &&
           *static_cast<std::uint32_t*>(xcb_get_property_value(reply.get())) ==
               static_cast<std::uint32_t>(pid);
}

bool isOnScreen(xcb_window_t window) {
    const Reply<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
        display(), xcb_get_window_attributes(display(), window), nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

// The window manager puts a frame of its own around a window: two levels down at most.
void collect(xcb_window_t above, pid_t pid, int levels, std::vector<std::uint32_t>& found) {
    const Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(display(), xcb_query_tree(display(), above), nullptr));
    if (!tree || levels == 0)
        return;
    const xcb_window_t* const children = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i)
        if (belongsTo(children[i], pid) && isOnScreen(children[i]))
            found.push_back(children[i]);
        else
            collect(children[i], pid, levels - 1, found);
}

double statusLine(pid_t pid, const std::string& key) {
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(key + ":"))
            return std::stod(line.substr(key.size() + 1)) / 1024;
    throw std::runtime_error("the program has ended");
}

double milliseconds(std::chrono::steady_clock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

} // namespace

Watched::Watched(const std::string& program) {
    char* const arguments[] = {const_cast<char*>(program.c_str()), nullptr};
    if (posix_spawn(&pid_, program.c_str(), nullptr, nullptr, arguments, environ) != 0)
        throw std::runtime_error("can't start " + program);
}

Watched::~Watched() {
    if (pid_ < 0)
        return;
    kill(pid_, SIGTERM);
    waitpid(pid_, nullptr, 0);
}

double Watched::processorTime() const {
    clockid_t clock{};
    timespec time{};
    if (clock_getcpuclockid(pid_, &clock) != 0 || clock_gettime(clock, &time) != 0)
        throw std::runtime_error("the program has ended");
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double Watched::resident() const {
    return statusLine(pid_, "VmRSS");
}

std::uint32_t Watched::waitUntilShown(std::uint32_t before) {
    const auto begin = Clock::now();
    for (;;) {
        const auto shown = windows();
        if (!shown.empty() && shown.front() != before) {
            waitUntilQuiet();
            return shown.front();
        }
        if (Clock::now() - begin > kPatience)
            throw std::runtime_error("no window came up");
        std::this_thread::sleep_for(1ms);
    }
}

void Watched::waitUntilQuiet() {
    const auto begin = Clock::now();
    lastWork_ = begin;
    for (double before = processorTime(); Clock::now() - lastWork_ < kQuiet;) {
        std::this_thread::sleep_for(1ms);
        if (const double now = processorTime(); now != before) {
            before = now;
            lastWork_ = Clock::now();
        }
        if (Clock::now() - begin > kPatience)
            throw std::runtime_error("the program doesn't come to rest");
    }
}

double Watched::wallTime() const {
    return milliseconds(lastWork_ - start_);
}

std::vector<std::uint32_t> Watched::windows() const {
    std::vector<std::uint32_t> found;
    collect(xcb_setup_roots_iterator(xcb_get_setup(display())).data->root, pid_, 3, found);
    return found;
}

int Watched::whitePoints(std::uint32_t window) {
    const Reply<xcb_get_geometry_reply_t> size(
        xcb_get_geometry_reply(display(), xcb_get_geometry(display(), window), nullptr));
    const Reply<xcb_get_image_reply_t> image(
        xcb_get_image_reply(display(),
                            xcb_get_image(display(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0,
                                          size->width, size->height, ~0U),
                            nullptr));
    if (!image)
        return 0;
    const auto* const points =
        reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get()));
    int white = 0;
    for (int i = 0; i < size->width * size->height; ++i)
        white += (points[i] & 0xFFFFFFU) == 0xFFFFFFU ? 1 : 0;
    return white;
}

Watched::End Watched::waitUntilEnded() {
    rusage taken{};
    int status = 0;
    wait4(pid_, &status, 0, &taken);
    pid_ = -1;
    const auto time = [](const timeval& it) {
        return static_cast<double>(it.tv_sec) * 1e3 + static_cast<double>(it.tv_usec) / 1e3;
    };
    return {time(taken.ru_utime) + time(taken.ru_stime), milliseconds(Clock::now() - start_),
            status};
}

} // namespace bench
