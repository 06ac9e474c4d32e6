#pragma once

#include "core/LightweightString.h"

#include <functional>
#include <optional>

/// Where DiskManager looks: the mount table's path and how a volume's space is
/// asked. Tests and benchmarks give a table file of their own and a space function
/// that answers as they like (or blocks, as a dead network mount does).
struct DiskSources {
    /// The space of one volume in megabytes, total and free.
    struct Space {
        double totalMegabytes = 0;
        double freeMegabytes = 0;
    };
    using SpaceFunction = std::function<std::optional<Space>(const LightweightString<char>& mountPoint)>;

    LightweightString<char> mountTable = "/proc/self/mountinfo";
    // statvfs when empty.
    SpaceFunction space;
    // How often a table that is a plain file is read again, and how often free space
    // is asked; the kernel's own table wakes the watcher when it changes.
    int tablePollMs = 500;
    int freeSpaceMs = 15000;

    static std::optional<Space> statvfsSpace(const LightweightString<char>& mountPoint);
};
