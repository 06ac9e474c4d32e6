#pragma once

#include "CompressionTable.h"
#include "FileTypeTable.h"
#include "FrameRate.h"

#include <map>
#include <mutex>
#include <string>
#include <utility>

/// What the installed FFmpeg says it can write, asked once per question and kept.
/// Its answers count wherever it gives one: its encoders, their pixel formats and
/// frame rates, its DV profiles, its muxers' codec tables and their own set-up.
/// Where a muxer's table cannot say, the file type's list of codecs decides, and
/// the muxer's set-up must still accept the stream. Safe from any thread.
class FFmpegWriters {
public:
    static FFmpegWriters& instance();

    bool hasMuxer(const char* id);
    // The encoder is there, is not a hardware encoder, and takes the codec's pixel format.
    bool encoderUsable(const CompressionCodec& codec);
    bool containerTakes(const FileType& type, const CompressionCodec& codec);
    // The encoder's own tables allow the picture: its frame rates, and for DV a profile.
    bool encoderTakesPicture(const CompressionCodec& codec, int width, int height, Zn::FrameRate rate);
    // The pixel format of FFmpeg's DV profile for the picture, empty when there is none.
    LightweightString<char> dvPixelFormat(int width, int height, Zn::FrameRate rate);
    void forget();

private:
    FFmpegWriters();
    bool askContainer(const FileType& type, const CompressionCodec& codec) const;

    std::mutex lock_;
    std::map<std::string, bool> muxers_;
    std::map<std::string, bool> encoders_;
    std::map<std::pair<std::string, std::string>, bool> containers_;
};
