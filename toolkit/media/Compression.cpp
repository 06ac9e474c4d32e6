#include "Compression.h"

#include "FFmpegWriters.h"
#include "core/Utf8.h"
#include "value/DataConvert.h"

#include <map>
#include <mutex>
#include <string>
#include <tuple>

using Zn::DigitalVideoFormats;
using Info = DigitalVideoFormats::DigitalVideoFormatInfo;

namespace {

constexpr ResId kBitRateLegend = 614, kKeyFrameLegend = 615;
constexpr const char* kKeyFrameInterval = "keyframes";

// A picture as the rules see it.
struct Picture {
    int width = 0;
    int height = 0;
    Zn::FrameRate rate = Zn::kFrameRateNone;
    bool interlaced = false;
    auto operator<=>(const Picture&) const = default;
};

Picture pictureOf(const ShotVideoMetadata& f) {
    Zn::FrameRate rate = f.getFrameRate();
    if (rate == Zn::kFrameRateNone) rate = f.getVideoFormatInfo().frameRate;
    return {f.getWidth(), f.getHeight(), rate, Zn::Image::isInterlaced(f.getScanMode())};
}

Picture pictureOf(const Info& i) { return {i.width, i.height, i.frameRate, Zn::Image::isInterlaced(i.scanMode)}; }

bool rulesAllow(const CompressionCodec& c, const Picture& p) {
    if (p.width <= 0 || p.height <= 0) return false;
    if ((c.rules & CompressionCodec::kStandardDefinition) && p.width > 720) return false;
    if ((c.rules & CompressionCodec::kHighDefinition) && (p.width <= 720 || p.width > 1920)) return false;
    if ((c.rules & CompressionCodec::kProgressiveOnly) && p.interlaced) return false;
    return true;
}

bool writable(const FileType& type, const CompressionCodec& c, const Picture& p) {
    FFmpegWriters& ffmpeg = FFmpegWriters::instance();
    return rulesAllow(c, p) && ffmpeg.encoderUsable(c) && ffmpeg.containerTakes(type, c) && ffmpeg.encoderTakesPicture(c, p.width, p.height, p.rate);
}

// Answers kept per file type, and per file type and picture.
class Answers {
public:
    std::vector<Zn::Image::Format> codes(const FileType& type, const Picture& p) {
        std::lock_guard<std::mutex> hold(lock_);
        auto [it, fresh] = codes_.try_emplace({type.id, p});
        if (fresh)
            for (const CompressionCodec& c : CompressionTable::codecs())
                if (writable(type, c, p)) it->second.push_back(c.code);
        return it->second;
    }
    std::vector<Info> formats(const FileType& type) {
        std::lock_guard<std::mutex> hold(lock_);
        auto [it, fresh] = formats_.try_emplace(type.id);
        if (fresh)
            for (const Info& info : DigitalVideoFormats::getFormats())
                for (const CompressionCodec& c : CompressionTable::codecs())
                    if (writable(type, c, pictureOf(info))) {
                        it->second.push_back(info);
                        break;
                    }
        return it->second;
    }
    void forget() {
        std::lock_guard<std::mutex> hold(lock_);
        codes_.clear();
        formats_.clear();
    }

private:
    std::mutex lock_;
    std::map<std::pair<std::string, Picture>, std::vector<Zn::Image::Format>> codes_;
    std::map<std::string, std::vector<Info>> formats_;
};

Answers& answers() {
    static Answers a;
    return a;
}

constexpr double kMaxBitRate = 800.0, kMaxKeyFrameInterval = 300.0;

// A stored setting held to the setting's bounds; `fallback` when there is none.
double settingOr(const CompressionFormat& c, const char* id, double fallback, double max) {
    if (!c.settings.has(id)) return fallback;
    return DataConvert::constrain(DataConvert::doubleFromText(fromUTF8(c.settings.get(id))), 1.0, max);
}

} // namespace

void Compression::getValidFormats(const LightweightString<char>& fileType, const ShotVideoMetadata& format, std::vector<Info>& formats,
                                  std::vector<Zn::Image::Format>& codes) {
    formats.clear();
    codes.clear();
    const FileType* type = FileTypeTable::find(fileType);
    if (!type || !FFmpegWriters::instance().hasMuxer(type->id)) return;
    formats = answers().formats(*type);
    codes = answers().codes(*type, pictureOf(format));
}

LightweightString<wchar_t> Compression::getName(Zn::Image::Format code) {
    const CompressionCodec* c = CompressionTable::find(code);
    return c ? LightweightString<wchar_t>(c->name) : fromUTF8(code.toString());
}

std::vector<Compression::Setting> Compression::getSettings(Zn::Image::Format code) {
    std::vector<Setting> settings;
    const CompressionCodec* c = CompressionTable::find(code);
    if (c && c->bitRate > 0) settings.push_back({CompressionFormat::kBitRate, UIString(kBitRateLegend), c->bitRate, 1.0, kMaxBitRate, false});
    if (c && c->keyFrameInterval > 0)
        settings.push_back({kKeyFrameInterval, UIString(kKeyFrameLegend), double(c->keyFrameInterval), 1.0, kMaxKeyFrameInterval, true});
    return settings;
}

Compression::EncoderSettings Compression::getEncoderSettings(const CompressionFormat& compression, const ShotVideoMetadata& format) {
    EncoderSettings out;
    const CompressionCodec* c = CompressionTable::find(compression.code);
    if (!c) return out;
    const Picture p = pictureOf(format);
    out.encoder = c->encoder;
    out.pixelFormat = (c->rules & CompressionCodec::kDVProfiles) ? FFmpegWriters::instance().dvPixelFormat(p.width, p.height, p.rate)
                                                                 : LightweightString<char>(c->pixelFormat);
    out.scanMode = p.interlaced ? format.getScanMode() : Zn::Image::kProgressive;
    std::string options = c->options;
    auto add = [&options](const std::string& option) { options += (options.empty() ? "" : ":") + option; };
    if (c->bitRate > 0)
        add("b=" + std::to_string(static_cast<long long>(settingOr(compression, CompressionFormat::kBitRate, c->bitRate, kMaxBitRate) * 1e6)));
    if (c->keyFrameInterval > 0)
        add("g=" + std::to_string(static_cast<int>(settingOr(compression, kKeyFrameInterval, c->keyFrameInterval, kMaxKeyFrameInterval))));
    out.options = LightweightString<char>(options);
    return out;
}

void Compression::forgetAnswers() {
    answers().forget();
    FFmpegWriters::instance().forget();
}
