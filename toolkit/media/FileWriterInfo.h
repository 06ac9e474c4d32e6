#pragma once

#include "Compression.h"

#include <vector>

namespace Zn {

/// The kinds of file the exporter can write.
class FileWriterInfo {
public:
    // The identifiers (FFmpeg's muxer names) of the file types for `usage` whose
    // muxer the installed FFmpeg has and that can hold at least one compression it
    // can write, in menu order. Safe from any thread.
    static std::vector<LightweightString<char>> getSupportedFormatTypes(Compression::eUsage usage);
};

} // namespace Zn
