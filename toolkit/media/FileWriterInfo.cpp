#include "FileWriterInfo.h"

#include "FFmpegWriters.h"

std::vector<LightweightString<char>> Zn::FileWriterInfo::getSupportedFormatTypes(Compression::eUsage usage) {
    std::vector<LightweightString<char>> ids;
    if (usage < 0 || usage >= 32) return ids;
    FFmpegWriters& ffmpeg = FFmpegWriters::instance();
    for (const FileType& type : FileTypeTable::fileTypes()) {
        if (!(type.usages & (1u << usage)) || !ffmpeg.hasMuxer(type.id)) continue;
        for (const CompressionCodec& c : CompressionTable::codecs())
            if (ffmpeg.encoderUsable(c) && ffmpeg.containerTakes(type, c)) {
                ids.emplace_back(type.id);
                break;
            }
    }
    return ids;
}
