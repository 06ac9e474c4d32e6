#include "ShotVideoMetadata.h"

#include <string>
#include <tuple>

namespace {

// Components per pixel of the layouts whose size follows from their depth; 0 for others.
int componentsPerPixel(Zn::Image::Format f) {
    using Zn::Image::Format;
    if (f == Format("YUY2") || f == Format("UYVY") || f == Format("2vuy")) return 2;
    if (f == Format("RGBA") || f == Format("BGRA") || f == Format("ARGB")) return 4;
    return 0;
}

// Size, then scan, then speed first, so that a set of formats lists them as a reader expects.
auto key(const ShotVideoMetadata& m) {
    const Zn::FrameRateFraction rate = Zn::getFrameRateFraction(m.frameRate);
    return std::make_tuple(m.width, m.height, static_cast<int>(m.scanMode), static_cast<double>(rate.num) / rate.den, static_cast<int>(m.frameRate),
                           m.dataFormat, m.bitsPerPixel, m.bitsPerComponent, m.videoFormatUID, static_cast<int>(m.aspectRatio));
}

} // namespace

ShotVideoMetadata::ShotVideoMetadata(const Zn::DigitalVideoFormats::DigitalVideoFormatInfo& info, Zn::Image::Format format, Zn::FrameRate rate,
                                     Zn::Image::AspectRatio aspect, bool rateFromFormat, Zn::Image::ScanMode scan, unsigned short bpc) {
    width = info.width;
    height = info.height;
    dataFormat = format;
    bitsPerComponent = bpc;
    bitsPerPixel = static_cast<unsigned short>(componentsPerPixel(format) * bpc);
    videoFormatUID = info.uid;
    scanMode = scan;
    aspectRatio = aspect;
    frameRate = rateFromFormat ? info.frameRate : rate;
}

Zn::DigitalVideoFormats::DigitalVideoFormatInfo ShotVideoMetadata::getVideoFormatInfo() const {
    return Zn::DigitalVideoFormats::findByUID(videoFormatUID);
}

LightweightString<wchar_t> ShotVideoMetadata::getDisplayString() const {
    const auto info = getVideoFormatInfo();
    if (!info.uid.isNull()) return LightweightString<wchar_t>(info.name);
    if (width <= 0 || height <= 0) return {};
    std::wstring text = std::to_wstring(width) + L"x" + std::to_wstring(height) + (Zn::Image::isInterlaced(scanMode) ? L"i" : L"p");
    if (frameRate != Zn::kFrameRateNone) text += L" " + Zn::getDisplayString(frameRate).str();
    return LightweightString<wchar_t>(text);
}

bool ShotVideoMetadata::operator==(const ShotVideoMetadata& o) const { return key(*this) == key(o); }

bool ShotVideoMetadata::operator<(const ShotVideoMetadata& o) const { return key(*this) < key(o); }
