#pragma once

#include "Format.h"

#include <vector>

/// One compression that can be offered, and how FFmpeg writes it.
struct CompressionCodec {
    // Rules that FFmpeg's own tables do not give.
    enum Rules : unsigned {
        kAnySize = 0,
        // Up to 720 pixels wide.
        kStandardDefinition = 1,
        // Above 720 and up to 1920 pixels wide.
        kHighDefinition = 2,
        // The encoder, or FFmpeg's muxers with its stream, cannot do interlaced pictures.
        kProgressiveOnly = 4,
        // Only the sizes and rates of FFmpeg's DV profiles, whose pixel format it takes.
        kDVProfiles = 8,
    };

    Zn::Image::Format code;
    const wchar_t* name;
    const char* encoder;
    // Empty for a codec whose pixel format comes with its DV profile.
    const char* pixelFormat;
    const char* options;
    unsigned rules;
    // The default bit rate in Mb/s, 0 for a compression that takes none.
    double bitRate;
    // The default number of frames between key frames, 0 for intra-only compressions.
    int keyFrameInterval;
};

// Our compressions, in the order menus offer them.
namespace CompressionTable {
const std::vector<CompressionCodec>& codecs();
const CompressionCodec* find(Zn::Image::Format code);
} // namespace CompressionTable
