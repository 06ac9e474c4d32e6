#pragma once

#include "controls/TitleMenuButton.h"
#include "media/Compression.h"
#include "media/VectorExt.h"
#include "media/VideoCompressionInfo.h"

/// A titled drop-down of the video compressions valid for a file type and a video
/// format, as the installed FFmpeg can write them. When the file type or format
/// changes it keeps the user's compression if that is still valid, and otherwise
/// falls back: for pictures up to 720 pixels wide to "MMES" (at 50 Mb/s), then
/// "M101"; for wider ones to "M701" (at 250 Mb/s), then "M102"; then to the first
/// compression offered. With none valid it is inactive.
///
/// Only the user's choice of a row sends CompressionFormatChangedMsg to the owner,
/// from this widget; changes made by calls send nothing.
class CompressionFormatButton : public TitleMenuButton {
public:
    /// What a CompressionFormatButton is made from: a drop-down's record and the use of the compressions it offers.
    struct InitArgs : TitleMenuButton::InitArgs {
        Compression::eUsage usage = Compression::eExport;
        InitArgs() = default;
        // Titled "Compression"; a buttonWidth of 0 fits the button to its rows.
        InitArgs(Compression::eUsage usage, unsigned short buttonWidth, unsigned short width, unsigned short height);
    };

    static constexpr const char* CompressionFormatChangedMsg = "CFBChangedMsg";
    static constexpr ResId kTitle = 611;

    explicit CompressionFormatButton(const InitArgs& args);
    const char* idstring() const override { return "CompressionFormatButton"; }

    // Offers the compressions valid for the file type (FileWriterInfo's identifier)
    // and format, keeping or falling back as above.
    void setOutputFormat(const LightweightString<char>& fileType, const ShotVideoMetadata& format);
    // Offers `validFormats`, one row each, and selects the row of `info`'s compression.
    void setCompressionFormat(const VideoCompressionInfo& info, const VectorExt<Zn::Image::Format>& validFormats);
    // Selects the row of `info`'s compression, found by its text; nothing when there is none.
    virtual void setCompressionFormat(const VideoCompressionInfo& info);
    // Selects `format` if it is offered, otherwise falls back by the width of `video`.
    // No compression (all bits set) changes nothing.
    void setSelected(const CompressionFormat& format, const ShotVideoMetadata& video);
    // The selected compression, its code only; none when nothing is selected.
    CompressionFormat getCompressionFormat() const;
    // VideoCompressionInfo::DisplayFlags of the row texts, from the next rebuild on.
    void setDisplayFlags(unsigned long flags) { displayFlags_ = flags; }
    unsigned long getDisplayFlags() const { return displayFlags_; }
    const std::vector<Zn::Image::Format>& getValidFormats() const { return validFormats_; }
    Compression::eUsage getUsage() const { return usage_; }

private:
    void init(const InitArgs& args);
    // With active following formats, active when there are `any`.
    void followFormats(bool any);

    std::vector<Zn::Image::Format> validFormats_;
    unsigned long displayFlags_ = VideoCompressionInfo::kShowName;
    bool activeFollowsFormats_ = true;
    Compression::eUsage usage_ = Compression::eExport;
};
