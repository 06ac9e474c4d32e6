#include "DiskWatcher.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <fcntl.h>
#include <mutex>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

struct DiskWatcher::State {
    State(const DiskSources& sources, Delivery d) : scanner(sources), deliver(std::move(d)), wakeFd(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}
    ~State() {
        if (wakeFd >= 0) close(wakeFd);
    }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    DiskScanner scanner;
    Delivery deliver;
    int wakeFd;
    std::atomic<bool> stop{false};
    std::mutex lock;
    std::condition_variable finished;
    bool done = false;
};

namespace {

using Clock = std::chrono::steady_clock;
constexpr auto kStopWait = std::chrono::seconds(2);

// The kernel's table signals a change as POLLPRI on an open descriptor, until that
// descriptor has read the table again.
void rearm(int fd) {
    std::array<char, 4096> buffer{};
    if (lseek(fd, 0, SEEK_SET) != 0) return;
    while (read(fd, buffer.data(), buffer.size()) > 0) {}
}

} // namespace

DiskWatcher::DiskWatcher(const DiskSources& sources, Delivery deliver) : state_(std::make_shared<State>(sources, std::move(deliver))) {
    initial_ = state_->scanner.volumesOf(state_->scanner.readTable());
    thread_ = std::thread(&DiskWatcher::run, state_);
}

DiskWatcher::~DiskWatcher() {
    state_->stop = true;
    const std::uint64_t one = 1;
    if (state_->wakeFd >= 0 && write(state_->wakeFd, &one, sizeof one) < 0) {
        // The thread still sees the flag at its next wake.
    }
    std::unique_lock<std::mutex> hold(state_->lock);
    const bool finished = state_->finished.wait_for(hold, kStopWait, [this] { return state_->done; });
    hold.unlock();
    if (finished)
        thread_.join();
    else
        thread_.detach();
}

void DiskWatcher::run(const std::shared_ptr<State>& state) {
    const DiskSources& sources = state->scanner.sources();
    const int tableFd = open(sources.mountTable.c_str(), O_RDONLY | O_CLOEXEC);
    // The kernel's tables wake poll when they change; a plain file is read again every tablePollMs.
    const bool kernelTable = tableFd >= 0 && sources.mountTable.view().starts_with("/proc/");
    const bool plainTable = !kernelTable;
    std::string last;
    bool first = true;
    Clock::time_point spaceAsked;
    while (!state->stop) {
        std::string text = state->scanner.readTable();
        const auto now = Clock::now();
        if (first || text != last || now - spaceAsked >= std::chrono::milliseconds(sources.freeSpaceMs)) {
            const std::vector<MediaDrive> volumes = state->scanner.scan(text);
            if (state->stop) break;
            state->deliver(volumes);
            last = std::move(text);
            spaceAsked = Clock::now();
            first = false;
        }
        const auto untilSpace =
            std::chrono::duration_cast<std::chrono::milliseconds>(spaceAsked + std::chrono::milliseconds(sources.freeSpaceMs) - Clock::now());
        int timeout = static_cast<int>(std::max<std::int64_t>(0, untilSpace.count()));
        if (plainTable) timeout = std::min(timeout, std::max(1, sources.tablePollMs));
        std::array<pollfd, 2> fds{pollfd{kernelTable ? tableFd : -1, POLLPRI, 0}, pollfd{state->wakeFd, POLLIN, 0}};
        if (poll(fds.data(), fds.size(), timeout) > 0 && (fds[0].revents & (POLLPRI | POLLERR)) != 0) rearm(tableFd);
    }
    if (tableFd >= 0) close(tableFd);
    const std::lock_guard<std::mutex> hold(state->lock);
    state->done = true;
    state->finished.notify_all();
}
