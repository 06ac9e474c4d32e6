#pragma once

#include "Compression.h"

#include <vector>

/// One kind of file that can be offered, by the name of FFmpeg's muxer.
struct FileType {
    const char* id;
    // Upper case, and no two file types share one.
    const wchar_t* extension;
    // Bits 1 << Compression::eUsage.
    unsigned usages;
    // FFmpeg's names of the codecs the container holds, parted by spaces, for when
    // FFmpeg's own tables cannot say (muxers without codec tags, such as MXF).
    const char* codecsWhenUnknown;
};

// Our file types, in the order menus offer them.
namespace FileTypeTable {
const std::vector<FileType>& fileTypes();
const FileType* find(const LightweightString<char>& id);
// Regardless of case.
const FileType* findByExtension(const LightweightString<wchar_t>& extension);
} // namespace FileTypeTable
