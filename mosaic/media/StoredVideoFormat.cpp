#include "StoredVideoFormat.h"

#include "platform/JSON.h"

namespace {

constexpr int kDefaultBitsPerComponent = 8, kMaxBitsPerComponent = 32;
constexpr Zn::Image::ScanMode kDefaultScanMode = Zn::Image::kProgressive;

// A stored number as an int within [min, max], or the fallback: NaN and numbers
// out of reach would not convert.
int storedInt(const JSON::Element& e, const char* key, int min, int max, int fallback) {
    const double v = e.getNumber(key, fallback);
    return v >= min && v < max + 1.0 ? static_cast<int>(v) : fallback;
}

} // namespace

LightweightString<char> StoredVideoFormat::write(const ShotVideoMetadata& format) {
    JSON::Builder b(2);
    b.startChild(nullptr);
    b.add("uid", format.getVideoFormatUID().toString());
    b.add("bpc", static_cast<int>(format.getBitsPerComponent()));
    b.add("sm", static_cast<int>(format.getScanMode()));
    if (format.getAspectRatio() == Zn::Image::kAspect4x3) b.add("ar", "4:3");
    if (format.getAspectRatio() == Zn::Image::kAspect16x9) b.add("ar", "16:9");
    b.endChild();
    return b.getOutput();
}

ShotVideoMetadata StoredVideoFormat::read(const LightweightString<char>& text) {
    const Zn::Ptr<JSON::Element> root = JSON::parse(text);
    if (!root) return {};
    const Zn::Image::FormatUID uid(root->getString("uid"));
    if (!Zn::DigitalVideoFormats::isValidFormat(uid)) return {};
    const int bpc = storedInt(*root, "bpc", 1, kMaxBitsPerComponent, kDefaultBitsPerComponent);
    const auto scan =
        static_cast<Zn::Image::ScanMode>(storedInt(*root, "sm", Zn::Image::kScanUnknown, Zn::Image::kProgressiveSegmentedFrame, kDefaultScanMode));
    const LightweightString<char> ar = root->getString("ar");
    const Zn::Image::AspectRatio aspect = ar == "16:9" ? Zn::Image::kAspect16x9 : ar == "4:3" ? Zn::Image::kAspect4x3 : Zn::Image::kAspectUnknown;
    return ShotVideoMetadata(Zn::DigitalVideoFormats::findByUID(uid), Zn::Image::Format("YUY2"), Zn::kFrameRateNone, aspect, true, scan,
                             static_cast<unsigned short>(bpc));
}
