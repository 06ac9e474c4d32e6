#pragma once

#include "CompressionFormat.h"
#include "ShotVideoMetadata.h"
#include "platform/UIString.h"

#include <vector>

// The video compressions that the installed FFmpeg can write: which are valid for
// a file type and a video format, their names and settings, and how to set up the
// encoder of one. What FFmpeg can say it decides; our own rules add only what it
// cannot (codecs of muxers without codec tables, frame sizes). Encoders that only
// drive hardware are never offered.
namespace Compression {

// What a file is written for: delivery, the editor's own rendered media, or
// recording from hardware.
enum eUsage : int { eExport = 0, eRender = 1, eCapture = 2 };

/// One setting of a compression, kept in CompressionFormat::settings under `id`.
struct Setting {
    LightweightString<char> id;
    UIString legend;
    double defaultValue = 0.0;
    double min = 0.0;
    double max = 0.0;
    // A whole number rather than a real one.
    bool whole = false;
};

/// How to open FFmpeg's encoder for a compression: its name, pixel format and
/// options ("key=value" parted by ':', as av_dict_parse_string reads them), and the
/// scan to code in.
struct EncoderSettings {
    LightweightString<char> encoder;
    LightweightString<char> pixelFormat;
    LightweightString<char> options;
    Zn::Image::ScanMode scanMode = Zn::Image::kProgressive;
};

// The formats of the table that `fileType` (a muxer's name, as FileWriterInfo gives
// it) can hold in some compression, and the codes, in menu order, of the
// compressions in which it can hold `format`. An unknown file type, or a format that
// no compression fits, gives empty lists. Answers are kept, so asking again for a
// file type and format costs a look-up. Safe from any thread.
void getValidFormats(const LightweightString<char>& fileType, const ShotVideoMetadata& format,
                     std::vector<Zn::DigitalVideoFormats::DigitalVideoFormatInfo>& formats, std::vector<Zn::Image::Format>& codes);
// The compression's name ("MPEG-2 I-frame SD"); for a code that is not ours, its characters.
LightweightString<wchar_t> getName(Zn::Image::Format code);
// Its settings, with their defaults; none for a code that is not ours.
std::vector<Setting> getSettings(Zn::Image::Format code);
// With the compression's own settings where it has them, the defaults otherwise.
// An empty encoder for a code that is not ours.
EncoderSettings getEncoderSettings(const CompressionFormat& compression, const ShotVideoMetadata& format);
// Forgets every answer, FFmpeg's too, so that the next question asks afresh.
void forgetAnswers();

} // namespace Compression
