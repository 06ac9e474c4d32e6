#pragma once

#include "DriveId.h"
#include "core/LightweightString.h"

#include <optional>

/// One mounted volume as DiskManager found it: where it is mounted, what is mounted
/// there, its file system, and its space in megabytes once statvfs has answered.
/// A plain value, copied between the watcher thread and the user-interface thread.
class MediaDrive {
public:
    DriveId id;
    // UTF-8, with the mount table's escapes decoded.
    LightweightString<char> mountPoint;
    LightweightString<char> source;
    LightweightString<char> fsType;
    std::optional<double> totalMegabytes;
    std::optional<double> freeMegabytes;

    // The name a user knows the volume by: the last folder of its mount point ("/"
    // for the root). With `withLocation`, the mount point follows in brackets when
    // it says more than the name.
    LightweightString<wchar_t> getUserName(bool withLocation) const;

    // Same volume, same place, same name: free space aside.
    bool sameVolume(const MediaDrive& o) const { return id == o.id && mountPoint == o.mountPoint && source == o.source; }
};
