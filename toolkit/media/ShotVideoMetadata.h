#pragma once

#include "DigitalVideoFormats.h"
#include "Format.h"
#include "image/AspectRatio.h"

namespace Zn {
namespace Image {
namespace Core {
/// What every picture has: its size and how its pixels are laid out.
struct Data {
    int width = 0;
    int height = 0;
    Format dataFormat;
    unsigned short bitsPerPixel = 0;
    unsigned short bitsPerComponent = 0;
};
} // namespace Core
namespace Video {
/// What a picture of video adds: its place in the format table, scan and shape.
struct Data {
    FormatUID videoFormatUID;
    ScanMode scanMode = kScanUnknown;
    AspectRatio aspectRatio = kAspectUnknown;
};
} // namespace Video
namespace VideoSequence {
/// What a run of pictures adds.
struct Data {
    FrameRate frameRate = kFrameRateNone;
};
} // namespace VideoSequence
} // namespace Image
} // namespace Zn

/// One video format as a value: size and pixel layout, the format's UID, scan and
/// aspect, and frame rate. The default value, of width 0, is no format. Formats are
/// ordered and compared by every field, so that a std::set of them holds each once.
class ShotVideoMetadata : public Zn::Image::Core::Data, public Zn::Image::Video::Data, public Zn::Image::VideoSequence::Data {
public:
    ShotVideoMetadata() = default;
    // A format of the table in `dataFormat` at `bitsPerComponent`. With
    // `rateFromFormat` the frame rate is the table's and `rate` is not used.
    ShotVideoMetadata(const Zn::DigitalVideoFormats::DigitalVideoFormatInfo& info, Zn::Image::Format dataFormat, Zn::FrameRate rate,
                      Zn::Image::AspectRatio aspect, bool rateFromFormat, Zn::Image::ScanMode scanMode, unsigned short bitsPerComponent);

    int getWidth() const { return width; }
    int getHeight() const { return height; }
    Zn::Image::Format getDataFormat() const { return dataFormat; }
    unsigned short getBitsPerPixel() const { return bitsPerPixel; }
    unsigned short getBitsPerComponent() const { return bitsPerComponent; }
    Zn::Image::FormatUID getVideoFormatUID() const { return videoFormatUID; }
    Zn::Image::ScanMode getScanMode() const { return scanMode; }
    Zn::Image::AspectRatio getAspectRatio() const { return aspectRatio; }
    Zn::FrameRate getFrameRate() const { return frameRate; }

    // The table's name of the format ("1080i 50"); for a format outside the table,
    // its size, scan and rate ("1000x500p 25"); empty for no format.
    LightweightString<wchar_t> getDisplayString() const;
    // The table's entry for the format's UID.
    Zn::DigitalVideoFormats::DigitalVideoFormatInfo getVideoFormatInfo() const;

    bool operator==(const ShotVideoMetadata& o) const;
    bool operator<(const ShotVideoMetadata& o) const;
};
