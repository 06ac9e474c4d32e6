#pragma once

#include "CompressionFormat.h"
#include "ShotVideoMetadata.h"

/// A video format with the compression it is written in.
class VideoCompressionInfo : public ShotVideoMetadata {
public:
    // Bits of getDisplayString's flags. Without kShowName or kShowCode the name is shown.
    enum DisplayFlags : unsigned long { kShowName = 1, kShowCode = 2, kShowVideoFormat = 4 };

    VideoCompressionInfo() = default;
    VideoCompressionInfo(const ShotVideoMetadata& format, const CompressionFormat& compression);

    const CompressionFormat& getCompressionFormat() const { return compression_; }
    void setCompressionFormat(const CompressionFormat& c) { compression_ = c; }
    void setVideoFormatUID(Zn::Image::FormatUID uid) { videoFormatUID = uid; }

    using ShotVideoMetadata::getDisplayString;
    // The compression's name, with its code in brackets and the video format after
    // a comma as the flags ask; empty for no compression.
    LightweightString<wchar_t> getDisplayString(unsigned long flags) const;

private:
    CompressionFormat compression_;
};
