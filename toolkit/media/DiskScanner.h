#pragma once

#include "DiskSources.h"
#include "MediaDrive.h"

#include <map>
#include <string>
#include <vector>

/// Turns the mount table into the list of volumes, giving each mount point one
/// DriveId for as long as the scanner lives, so that a volume keeps its id across
/// rescans and across being unmounted and mounted again. Used on one thread at a
/// time: the watcher's, or a benchmark's.
class DiskScanner {
public:
    explicit DiskScanner(DiskSources sources);

    // The volumes of this text of the table, with ids, without space.
    std::vector<MediaDrive> volumesOf(const std::string& tableText);
    // The same, with each volume's space asked.
    std::vector<MediaDrive> scan(const std::string& tableText);
    // The table's text now; empty when it cannot be read.
    std::string readTable() const;
    const DiskSources& sources() const { return sources_; }

private:
    // Ids of volumes that have gone are given up only when new ones need them.
    static constexpr std::size_t kMaxIds = 254;
    void forgetAbsent(const std::vector<MediaDrive>& present);
    DriveId idFor(const LightweightString<char>& mountPoint);

    DiskSources sources_;
    std::map<std::string, char> ids_;
};
