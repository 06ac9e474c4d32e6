#include "VideoCompressionInfo.h"

#include "Compression.h"
#include "core/Utf8.h"

VideoCompressionInfo::VideoCompressionInfo(const ShotVideoMetadata& format, const CompressionFormat& compression)
    : ShotVideoMetadata(format), compression_(compression) {}

LightweightString<wchar_t> VideoCompressionInfo::getDisplayString(unsigned long flags) const {
    const Zn::Image::Format code = compression_.code;
    if (code.isNone()) return {};
    LightweightString<wchar_t> text;
    if ((flags & kShowName) || !(flags & kShowCode)) text = Compression::getName(code);
    if (flags & kShowCode) {
        const LightweightString<wchar_t> chars = fromUTF8(code.toString());
        text = text.empty() ? chars : text + L" (" + chars + L")";
    }
    if (flags & kShowVideoFormat) {
        const LightweightString<wchar_t> video = ShotVideoMetadata::getDisplayString();
        if (!video.empty()) text = text + L", " + video;
    }
    return text;
}
