#pragma once

#include "DiskScanner.h"

#include <functional>
#include <memory>
#include <thread>

/// Watches the mount table and the volumes' free space on a thread of its own, so
/// that a volume whose statvfs hangs (a dead network mount can for minutes) holds
/// up only this thread. It wakes when the kernel's table changes (poll), every
/// tablePollMs for a table that is a plain file, and every freeSpaceMs; after each
/// wake that finds a new table or is due for space, it hands the whole list to
/// `deliver`, on its own thread. The first list, without space, is read in the
/// constructor.
class DiskWatcher {
public:
    using Delivery = std::function<void(const std::vector<MediaDrive>&)>;

    DiskWatcher(const DiskSources& sources, Delivery deliver);
    // Stops the thread. One still blocked in a volume's statvfs is let go to finish
    // alone, and delivers nothing more.
    ~DiskWatcher();
    DiskWatcher(const DiskWatcher&) = delete;
    DiskWatcher& operator=(const DiskWatcher&) = delete;

    const std::vector<MediaDrive>& initialVolumes() const { return initial_; }

private:
    struct State;
    static void run(const std::shared_ptr<State>& state);

    std::shared_ptr<State> state_;
    std::vector<MediaDrive> initial_;
    std::thread thread_;
};
