#include "DiskSources.h"

#include <sys/statvfs.h>

namespace {
constexpr double kMegabyte = 1048576.0;
} // namespace

std::optional<DiskSources::Space> DiskSources::statvfsSpace(const LightweightString<char>& mountPoint) {
    struct statvfs s {};
    if (statvfs(mountPoint.c_str(), &s) != 0) return std::nullopt;
    const double block = static_cast<double>(s.f_frsize ? s.f_frsize : s.f_bsize);
    return Space{static_cast<double>(s.f_blocks) * block / kMegabyte, static_cast<double>(s.f_bavail) * block / kMegabyte};
}
