#pragma once

#include "media/DiskManager.h"
#include "testkit/TestKit.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <unistd.h>

namespace DiskTest {

// One line of a mount table for a volume mounted at `at`.
inline std::string mountLine(int id, const std::string& device, const std::string& at, const std::string& type = "ext4",
                             const std::string& root = "/") {
    return std::to_string(id) + " 1 " + device + " " + root + " " + at + " rw,relatime shared:1 - " + type + " /dev/sd" + std::to_string(id) +
           " rw\n";
}

// A mount table file that a test rewrites as volumes come and go.
class TableFile {
public:
    TableFile() : path_(std::filesystem::temp_directory_path() / ("mosaic-mounts-" + std::to_string(getpid()) + "-" + std::to_string(++count()))) {
        write("");
    }
    ~TableFile() {
        std::error_code ec;
        std::filesystem::remove(path_, ec);
    }
    TableFile(const TableFile&) = delete;
    TableFile& operator=(const TableFile&) = delete;

    // Whole or not at all, as a reader polling it must see it.
    void write(const std::string& text) const {
        const std::filesystem::path tmp = path_.string() + ".tmp";
        std::ofstream(tmp, std::ios::binary) << text;
        std::filesystem::rename(tmp, path_);
    }
    std::string path() const { return path_.string(); }

private:
    static int& count() {
        static int n = 0;
        return n;
    }
    std::filesystem::path path_;
};

// Sources that read `table` often and answer space from `space`.
inline DiskSources sources(const TableFile& table, DiskSources::SpaceFunction space) {
    DiskSources s;
    s.mountTable = table.path().c_str();
    s.space = std::move(space);
    s.tablePollMs = 5;
    s.freeSpaceMs = 20;
    return s;
}

// Goes back to watching the machine when it goes out of scope: declared after what a
// test's space function refers to, it stops that function's watcher first.
struct WatchGuard {
    WatchGuard() = default;
    WatchGuard(const WatchGuard&) = delete;
    WatchGuard& operator=(const WatchGuard&) = delete;
    ~WatchGuard() { DiskManager::watch(DiskSources{}); }
};

inline std::optional<DiskSources::Space> gigabytes(double free) { return DiskSources::Space{free * 4096, free * 1024}; }

// Runs the loop until `done` holds, or a generous number of rounds has passed.
inline bool pumpUntil(const std::function<bool()>& done) {
    for (int i = 0; i < 2000; ++i) {
        TestKit::pump();
        if (done()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return false;
}

} // namespace DiskTest
