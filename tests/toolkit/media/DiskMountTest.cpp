// A real mount: a file system image loop-mounted in a mount namespace of the test's
// own, seen by the watcher through the kernel's table. Mounting needs the rights to
// make a namespace and a loop device; without them the test says so and stops.
#include "media/DiskWatcher.h"

#include <gtest/gtest.h>

#include <condition_variable>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kCannotMount = 77;

// The volumes lists the watcher delivers, and a wait for one that passes a check.
class Lists {
public:
    void add(const std::vector<MediaDrive>& volumes) {
        const std::lock_guard<std::mutex> hold(lock_);
        lists_.push_back(volumes);
        arrived_.notify_all();
    }
    bool waitFor(const std::function<bool(const std::vector<MediaDrive>&)>& check) {
        std::unique_lock<std::mutex> hold(lock_);
        // The bound only keeps a broken watcher from hanging the run.
        return arrived_.wait_for(hold, std::chrono::seconds(60), [&] { return !lists_.empty() && check(lists_.back()); });
    }

private:
    std::mutex lock_;
    std::condition_variable arrived_;
    std::vector<std::vector<MediaDrive>> lists_;
};

bool has(const std::vector<MediaDrive>& volumes, const std::string& at) {
    return std::any_of(volumes.begin(), volumes.end(), [&](const MediaDrive& d) { return d.mountPoint == at.c_str(); });
}

// Runs in a child of its own: 0 when the mount came and went as it should.
int mountAndWatch(const std::filesystem::path& dir) {
    if (unshare(CLONE_NEWNS) != 0 || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) return kCannotMount;
    const std::filesystem::path image = dir / "volume.img", at = dir / "Card B";
    std::filesystem::create_directories(at);
    if (std::system(("mke2fs -q -F -t ext4 '" + image.string() + "' 4M >/dev/null 2>&1").c_str()) != 0) return kCannotMount;
    Lists lists;
    DiskSources sources;
    sources.freeSpaceMs = 600000;
    DiskWatcher watcher(sources, [&lists](const std::vector<MediaDrive>& v) { lists.add(v); });
    if (!lists.waitFor([](const auto&) { return true; })) return 1;
    if (std::system(("mount -o loop '" + image.string() + "' '" + at.string() + "' >/dev/null 2>&1").c_str()) != 0) return kCannotMount;
    const bool appeared = lists.waitFor([&](const auto& v) { return has(v, at.string()); });
    const bool unmounted = umount(at.c_str()) == 0;
    const bool went = unmounted && lists.waitFor([&](const auto& v) { return !has(v, at.string()); });
    return appeared && went ? 0 : 2;
}

} // namespace

TEST(DiskMount, ALoopMountedVolumeAppearsAndGoesThroughTheKernelsTable) {
    const std::filesystem::path dir = std::filesystem::temp_directory_path() / ("mosaic-mount-" + std::to_string(getpid()));
    std::filesystem::create_directories(dir);
    const pid_t child = fork();
    if (child == 0) _exit(mountAndWatch(dir));
    int status = -1;
    waitpid(child, &status, 0);
    std::filesystem::remove_all(dir);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == kCannotMount) GTEST_SKIP() << "this machine does not let the test mount a file system";
    EXPECT_EQ(WEXITSTATUS(status), 0) << "1: no first list, 2: the mount was not seen to come and go";
}
