#include "DiskScanner.h"

#include "MountTable.h"

#include <fstream>
#include <iterator>
#include <set>

DiskScanner::DiskScanner(DiskSources sources) : sources_(std::move(sources)) {
    if (!sources_.space) sources_.space = &DiskSources::statvfsSpace;
}

std::string DiskScanner::readTable() const {
    std::ifstream in(sources_.mountTable.c_str(), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

DriveId DiskScanner::idFor(const LightweightString<char>& mountPoint) {
    const std::string key = mountPoint.c_str();
    const auto known = ids_.find(key);
    if (known != ids_.end()) return DriveId(known->second);
    std::set<char> used;
    for (const auto& [path, id] : ids_) used.insert(id);
    // Every byte but the automatic choice's and 0 names a drive; when all are
    // taken, a volume shares the last one rather than being left out.
    char id = static_cast<char>(-1);
    for (int c = 1; c < 256; ++c) {
        const char candidate = static_cast<char>(c);
        if (candidate != DriveId::kAuto && used.count(candidate) == 0) {
            id = candidate;
            break;
        }
    }
    ids_.emplace(key, id);
    return DriveId(id);
}

std::vector<MediaDrive> DiskScanner::volumesOf(const std::string& tableText) {
    std::vector<MediaDrive> volumes = MountTable::parse(tableText);
    if (ids_.size() + volumes.size() >= kMaxIds) forgetAbsent(volumes);
    for (MediaDrive& v : volumes) v.id = idFor(v.mountPoint);
    return volumes;
}

void DiskScanner::forgetAbsent(const std::vector<MediaDrive>& present) {
    std::set<std::string> keep;
    for (const MediaDrive& v : present) keep.insert(v.mountPoint.c_str());
    std::erase_if(ids_, [&keep](const auto& entry) { return keep.count(entry.first) == 0; });
}

std::vector<MediaDrive> DiskScanner::scan(const std::string& tableText) {
    std::vector<MediaDrive> volumes = volumesOf(tableText);
    for (MediaDrive& v : volumes) {
        if (const std::optional<DiskSources::Space> space = sources_.space(v.mountPoint)) {
            v.totalMegabytes = space->totalMegabytes;
            v.freeMegabytes = space->freeMegabytes;
        }
    }
    return volumes;
}
