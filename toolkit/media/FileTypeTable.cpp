#include "FileTypeTable.h"

#include <cwchar>

namespace {
constexpr unsigned kExport = 1u << Compression::eExport, kRender = 1u << Compression::eRender, kCapture = 1u << Compression::eCapture;
} // namespace

const std::vector<FileType>& FileTypeTable::fileTypes() {
    static const std::vector<FileType> table = {
        {"avi", L"AVI", kExport | kCapture, ""},
        {"mov", L"MOV", kExport | kRender | kCapture, ""},
        {"mp4", L"MP4", kExport, ""},
        {"mxf", L"MXF", kExport | kRender | kCapture, "mpeg2video dvvideo dnxhd h264"},
        {"matroska", L"MKV", kExport, ""},
        {"webm", L"WEBM", kExport, ""},
        {"mpegts", L"TS", kExport, "mpeg2video h264 hevc"},
        {"mpeg", L"MPG", kExport, "mpeg1video mpeg2video"},
        {"dv", L"DV", kExport | kCapture, "dvvideo"},
    };
    return table;
}

const FileType* FileTypeTable::find(const LightweightString<char>& id) {
    for (const FileType& t : fileTypes())
        if (id == t.id) return &t;
    return nullptr;
}

const FileType* FileTypeTable::findByExtension(const LightweightString<wchar_t>& extension) {
    if (extension.empty()) return nullptr;
    for (const FileType& t : fileTypes())
        if (wcscasecmp(extension.c_str(), t.extension) == 0) return &t;
    return nullptr;
}
