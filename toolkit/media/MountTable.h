#pragma once

#include "MediaDrive.h"

#include <string_view>
#include <vector>

/// Reads the kernel's table of mounts (the text of /proc/self/mountinfo) into the
/// volumes a user keeps media on, in the table's order. Pseudo file systems (proc,
/// sysfs, tmpfs, cgroups, ...) are left out, and so are bind mounts: a subtree
/// mounted again, or a device mounted a second time, keeps only its first place.
/// Lines that are not of the table's form are skipped. Ids and space are not set.
class MountTable {
public:
    static std::vector<MediaDrive> parse(std::string_view text);
    // A field with the table's octal escapes ("\040" for a space) decoded; an
    // escape that is not three octal digits stays as it is.
    static LightweightString<char> decode(std::string_view field);
    static bool isPseudoFileSystem(std::string_view fsType);
};
