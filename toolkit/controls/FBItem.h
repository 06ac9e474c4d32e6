#pragma once

#include "core/LightweightString.h"

#include <cstdint>

/// One entry of a folder as the file browser lists it. `name` and `path` are wide
/// text for showing and answering; `nativePath` is the path's bytes as the file
/// system has them, which differ from toUTF8(path) when a name is not valid UTF-8.
struct FBItem {
    LightweightString<wchar_t> name;
    LightweightString<wchar_t> path;
    LightweightString<char> nativePath;
    bool isFolder = false;
    std::uint64_t size = 0;
    // Seconds since the epoch; 0 when unknown.
    std::int64_t modified = 0;

    // Whether `path` names the entry exactly, so that it can be handed to others.
    bool hasExactPath() const;
    // The size for a column: "812 B", "14.2 KB", "3.1 GB"; empty for a folder.
    LightweightString<wchar_t> sizeText() const;
    // The local date and time of the last change, "2024-05-01 14:03"; empty when unknown.
    LightweightString<wchar_t> dateText() const;
};
