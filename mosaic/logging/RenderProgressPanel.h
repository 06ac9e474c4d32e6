#pragma once

#include "controls/Gauge.h"
#include "controls/StandardPanel.h"
#include "draw/VideoWindow.h"
#include "image/AspectRatio.h"
#include "tasks/LoggerBase.h"

#include <cstdint>

/// The progress of a render: a live preview of the frames being made, in a video
/// window of the picture's shape, above a gauge with the time left. Text written
/// to it is dropped. The 11 ms limit on gauge redraws is shared by all such panels.
class RenderProgressPanel : public StandardPanel, public LoggerBase {
public:
    RenderProgressPanel(unsigned short width, Zn::Image::AspectRatio ratio, const Colour& colour);

    // Made 14 rows wide where new windows go, realized and painted.
    static RenderProgressPanel* make(Zn::Image::AspectRatio ratio);
    // The preview's size in a panel `width` wide, and the panel's height for it.
    static XY<int> calcImageSize(int width, Zn::Image::AspectRatio ratio);
    static int calcHeightFromWidth(int width, Zn::Image::AspectRatio ratio);

    const char* idstring() const override { return "RenderProgressPanel"; }

    // The preview's box in this panel's coordinates, and on its canvas.
    BoxInt getAreaForImage() const;
    BoxInt getAreaForImageLW() const;

    // The panel, the preview put back over it, and a frame around the preview.
    void draw() override;
    void resize(double width, double height) override;
    void handleProgressUpdate(const ProgressSnapshot& snapshot) override;

    using LoggerBase::setFilename;
    void write(const LightweightString<wchar_t>&, eOutputType) override {}
    void setFilename(const LightweightString<wchar_t>&) override {}

    Gauge* gauge() const { return gauge_; }
    const Glib::VideoWindow& videoWindow() const { return video_; }

private:
    void showTimeLeft(std::uint32_t now, float fraction);

    Glib::VideoWindow video_;
    Gauge* gauge_ = nullptr;
    XY<int> imageSize_;
    std::uint32_t start_ = 0;
};
