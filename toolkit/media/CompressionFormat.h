#pragma once

#include "Format.h"
#include "platform/configb.h"

/// A compression, by its four-character code, with its own settings (bit rate and
/// the like, by the ids that Compression::getSettings gives). The default is none.
struct CompressionFormat {
    static constexpr const char* kBitRate = "bitrate";

    Zn::Image::Format code;
    configb settings;

    CompressionFormat() = default;
    explicit CompressionFormat(Zn::Image::Format c, const configb& s = configb()) : code(c), settings(s) {}

    // Megabits per second.
    void setBitRate(double megabitsPerSecond);
    // 0 when the settings hold none.
    double getBitRate() const;
};
