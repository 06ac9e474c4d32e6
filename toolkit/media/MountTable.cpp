#include "MountTable.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>

namespace {

std::vector<std::string_view> fieldsOf(std::string_view line) {
    std::vector<std::string_view> fields;
    std::size_t at = 0;
    while (at < line.size()) {
        const std::size_t start = line.find_first_not_of(" \t", at);
        if (start == std::string_view::npos) break;
        const std::size_t end = std::min(line.find_first_of(" \t", start), line.size());
        fields.push_back(line.substr(start, end - start));
        at = end;
    }
    return fields;
}

bool isOctal(char c) { return c >= '0' && c <= '7'; }

// Fields of one line: id, parent, major:minor, root, mount point, options, optional
// fields up to "-", then type, source and the super block's options.
struct Line {
    std::string_view device, root, mountPoint, fsType, source;
};

bool readLine(std::string_view text, Line& out) {
    const std::vector<std::string_view> f = fieldsOf(text);
    if (f.size() < 9) return false;
    const auto dash = std::find(f.begin() + 6, f.end(), std::string_view("-"));
    if (dash == f.end() || f.end() - dash < 3) return false;
    out = Line{f[2], f[3], f[4], dash[1], dash[2]};
    return true;
}

} // namespace

LightweightString<char> MountTable::decode(std::string_view field) {
    std::string out;
    out.reserve(field.size());
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && i + 3 < field.size() && isOctal(field[i + 1]) && isOctal(field[i + 2]) && isOctal(field[i + 3])) {
            const int value = (field[i + 1] - '0') * 64 + (field[i + 2] - '0') * 8 + (field[i + 3] - '0');
            if (value > 0 && value < 256) {
                out += static_cast<char>(value);
                i += 3;
                continue;
            }
        }
        out += field[i];
    }
    return LightweightString<char>(out.c_str());
}

bool MountTable::isPseudoFileSystem(std::string_view fsType) {
    static const std::array<std::string_view, 23> kPseudo = {
        "autofs", "binfmt_misc", "bpf",  "cgroup", "cgroup2", "configfs",   "debugfs",    "devpts",   "devtmpfs", "efivarfs", "fusectl", "hugetlbfs",
        "mqueue", "nsfs",        "proc", "pstore", "ramfs",   "rpc_pipefs", "securityfs", "squashfs", "sysfs",    "tmpfs",    "tracefs"};
    return std::find(kPseudo.begin(), kPseudo.end(), fsType) != kPseudo.end();
}

std::vector<MediaDrive> MountTable::parse(std::string_view text) {
    std::vector<MediaDrive> volumes;
    std::set<std::string_view> devices;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        Line line;
        if (readLine(text.substr(at, end - at), line) && line.root == "/") {
            MediaDrive d;
            d.mountPoint = decode(line.mountPoint);
            d.source = decode(line.source);
            d.fsType = decode(line.fsType);
            // A NUL ends a decoded field early: a path that ends before it starts is none.
            if (!d.mountPoint.empty() && !isPseudoFileSystem(d.fsType.view()) && devices.insert(line.device).second) volumes.push_back(d);
        }
        at = end + 1;
    }
    return volumes;
}
