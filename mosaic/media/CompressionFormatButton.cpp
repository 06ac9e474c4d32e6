#include "CompressionFormatButton.h"

namespace {

// The fallbacks, best first, and the bit rate a fallback to the first one forces.
struct Fallback {
    Zn::Image::Format first;
    double firstBitRate;
    Zn::Image::Format second;
};
constexpr int kStandardDefinitionWidth = 720;
const Fallback kStandardDefinition{Zn::Image::Format("MMES"), 50.0, Zn::Image::Format("M101")};
const Fallback kHighDefinition{Zn::Image::Format("M701"), 250.0, Zn::Image::Format("M102")};

} // namespace

CompressionFormatButton::InitArgs::InitArgs(Compression::eUsage u, unsigned short buttonWidth, unsigned short width, unsigned short height)
    : TitleMenuButton::InitArgs(UIString(kTitle), {}, buttonWidth, width, height), usage(u) {}

CompressionFormatButton::CompressionFormatButton(const InitArgs& args) : TitleMenuButton(args) { init(args); }

void CompressionFormatButton::init(const InitArgs& args) {
    displayFlags_ = VideoCompressionInfo::kShowName;
    activeFollowsFormats_ = true;
    usage_ = args.usage;
    getBtn()->setCallback(WidgetCallback(CompressionFormatChangedMsg));
}

void CompressionFormatButton::setOutputFormat(const LightweightString<char>& fileType, const ShotVideoMetadata& format) {
    std::vector<Zn::DigitalVideoFormats::DigitalVideoFormatInfo> formats;
    std::vector<Zn::Image::Format> codes;
    Compression::getValidFormats(fileType, format, formats, codes);
    // One painting for the whole change rather than one a step.
    Drawable::disableRedraws();
    if (codes.empty()) {
        // The old list is kept; with no row selected, the selection reads as none.
        getBtn()->setStrings(std::vector<MenuItem>(), MenuItemIndex());
        followFormats(false);
    } else {
        const CompressionFormat current = getCompressionFormat();
        setCompressionFormat(VideoCompressionInfo(format, CompressionFormat(codes.front())), codes);
        setSelected(current, format);
    }
    Drawable::enableRedraws();
}

void CompressionFormatButton::setCompressionFormat(const VideoCompressionInfo& info, const VectorExt<Zn::Image::Format>& validFormats) {
    validFormats_ = validFormats;
    std::vector<MenuItem> rows;
    rows.reserve(validFormats.size());
    for (Zn::Image::Format code : validFormats) {
        const VideoCompressionInfo row(info, CompressionFormat(code, info.getCompressionFormat().settings));
        rows.emplace_back(UIString(row.getDisplayString(displayFlags_)), WidgetCallback(), getPalette().text(kTextNormal), getCol());
    }
    setStrings(rows, MenuItemIndex(info.getDisplayString(displayFlags_)));
    followFormats(!validFormats.empty());
}

void CompressionFormatButton::setCompressionFormat(const VideoCompressionInfo& info) {
    setSelectedItem(MenuItemIndex(info.getDisplayString(displayFlags_)));
}

void CompressionFormatButton::setSelected(const CompressionFormat& format, const ShotVideoMetadata& video) {
    if (format.code.isNone()) return;
    const VectorExt<Zn::Image::Format> valid(validFormats_);
    if (valid.contains(format.code)) {
        setCompressionFormat(VideoCompressionInfo(video, format));
        Drawable::update();
        return;
    }
    if (!valid.empty()) {
        const Fallback& rule = video.getWidth() <= kStandardDefinitionWidth ? kStandardDefinition : kHighDefinition;
        // A fallback starts from the compression's own defaults, never the old choice's settings.
        CompressionFormat choice(valid.front());
        if (valid.contains(rule.first)) {
            choice = CompressionFormat(rule.first);
            choice.setBitRate(rule.firstBitRate);
        } else if (valid.contains(rule.second)) {
            choice = CompressionFormat(rule.second);
        }
        setCompressionFormat(VideoCompressionInfo(video, choice));
    }
    Drawable::update();
}

void CompressionFormatButton::followFormats(bool any) {
    // Painting the whole row again for an unchanged state would cost more than the rest of a change.
    if (activeFollowsFormats_ && isActive() != any) setActive(any, kRedraw);
}

CompressionFormat CompressionFormatButton::getCompressionFormat() const {
    const int i = getSelectedItem();
    return i >= 0 && i < static_cast<int>(validFormats_.size()) ? CompressionFormat(validFormats_[i]) : CompressionFormat();
}
