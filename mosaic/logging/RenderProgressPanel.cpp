#include "RenderProgressPanel.h"

#include "ProgressTime.h"
#include "core/Colour.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/UpdateDeferrer.h"
#include "glob/glib_getPosForWindow.h"
#include "image/iGPUImage.h"
#include "platform/Clock.h"

#include <cmath>

namespace {
// Below the title bar: an indent, the picture, a widget gap, the gauge's row, an indent.
int contentHeight(int imageHeight) {
    const UifStd& u = UifStd::instance();
    return imageHeight + 2 * u.getIndentWidth() + u.getRowHeight() + u.getWidgetGap();
}

StandardPanel::InitArgs panelArgs(unsigned short width, Zn::Image::AspectRatio ratio) {
    StandardPanel::InitArgs args(width, static_cast<unsigned short>(RenderProgressPanel::calcHeightFromWidth(width, ratio)));
    args.palette = UifStd::instance().getColourScheme();
    return args;
}
} // namespace

RenderProgressPanel::RenderProgressPanel(unsigned short width, Zn::Image::AspectRatio ratio, const Colour& colour)
    : StandardPanel(panelArgs(width, ratio)) {
    const UifStd& u = UifStd::instance();
    setCol(colour, false);
    setBorder(getDefaultBorder());
    setTitle(UIString(ProgressTime::kRenderingTitle), u.getTitleFont(), kNoRedraw);
    imageSize_ = calcImageSize(width, ratio);
    const Palette& p = getPalette();
    Gauge::InitArgs args(static_cast<unsigned short>(std::max(0, imageSize_.x)), static_cast<unsigned short>(u.getRowHeight()));
    gauge_ = createWidget<Gauge>(args, UserBottomLeft(u.getIndentWidth(), u.getIndentWidth()), WidgetSurround(1, 15, 0, 0, 0.2f, false));
    gauge_->setCols(p.selection(kSelectionFocused), p.childWindow(kChildList));
    gauge_->setMeasure(0.0);
    gauge_->setMessageColour(p.text(kTextNormal));
    StandardPanel::resize(width, calcHeightFromWidth(width, ratio));
    start_ = static_cast<std::uint32_t>(msecsNow());
    makeCanvasCurrent();
    StandardPanel::reshape();
    video_.setTarget(canvas(), getAreaForImageLW());
}

RenderProgressPanel* RenderProgressPanel::make(Zn::Image::AspectRatio ratio) {
    int width = 2 * 7 * UifStd::instance().getRowHeight();
    XY<int> at = glib_getPosForWindow(width, calcHeightFromWidth(width, ratio));
    auto* p = new RenderProgressPanel(static_cast<unsigned short>(width), ratio, UifStd::instance().getColourScheme().window(kShadeNormal));
    p->setupRootPos(at);
    GlobManager::instance().realize(p);
    p->reshapeAndDraw({kUnset, kUnset});
    return p;
}

XY<int> RenderProgressPanel::calcImageSize(int width, Zn::Image::AspectRatio ratio) {
    int inset = getDefaultBorder().size() + UifStd::instance().getIndentWidth();
    auto w = static_cast<std::int16_t>(width - 2 * inset);
    return {w, static_cast<int>(w / Zn::getAspectRatio(ratio))};
}

int RenderProgressPanel::calcHeightFromWidth(int width, Zn::Image::AspectRatio ratio) {
    return calcPanelSize({width, contentHeight(calcImageSize(width, ratio).y)}, kTitleBar, getDefaultBorder()).y;
}

BoxInt RenderProgressPanel::getAreaForImage() const {
    const UifStd& u = UifStd::instance();
    BoxInt user = getUserArea();
    int x = user.x1 + u.getIndentWidth(), y = user.y1 + u.getIndentWidth() + u.getRowHeight() + u.getWidgetGap();
    return BoxInt(x, y, x + std::max(0, imageSize_.x), y + std::max(0, imageSize_.y));
}

BoxInt RenderProgressPanel::getAreaForImageLW() const {
    BoxInt a = getAreaForImage();
    XY<int> at = canvasPos();
    return BoxInt(a.x1 + at.x, a.y1 + at.y, a.x2 + at.x, a.y2 + at.y);
}

void RenderProgressPanel::resize(double width, double height) {
    StandardPanel::resize(width, height);
    video_.setTarget(canvas(), getAreaForImageLW());
}

void RenderProgressPanel::draw() {
    Glib::UpdateDeferrer deferred;
    Glob::draw();
    // The panel's background has just covered the preview.
    video_.repaintLastFrame();
    BoxInt a = getAreaForImageLW();
    Colour ink = scale(getCol(), 0.6);
    CanvasRenderer r(canvas());
    r.render(Glib::RectDescription(BoxInt(a.x1 - 1, a.y1 - 1, a.x2 + 1, a.y1), ink));
    r.render(Glib::RectDescription(BoxInt(a.x1 - 1, a.y2, a.x2 + 1, a.y2 + 1), ink));
    r.render(Glib::RectDescription(BoxInt(a.x1 - 1, a.y1, a.x1, a.y2), ink));
    r.render(Glib::RectDescription(BoxInt(a.x2, a.y1, a.x2 + 1, a.y2), ink));
}

void RenderProgressPanel::showTimeLeft(std::uint32_t now, float fraction) {
    if (std::fabs(fraction) < 1e-6f) return;
    int left = ProgressTime::secondsLeft(double(now - start_), fraction);
    gauge_->setMessage(ProgressTime::durationText(ProgressTime::kTimeLeft, left));
    gauge_->setMeasure(fraction);
    gauge_->display();
}

void RenderProgressPanel::handleProgressUpdate(const ProgressSnapshot& snapshot) {
    // One clock for all render panels: a render feeds one panel at a time.
    static std::uint32_t lastUpdate = 0;
    auto now = static_cast<std::uint32_t>(msecsNow());
    if (now - lastUpdate > 10 || snapshot.fraction == 1.0f) {
        lastUpdate = now;
        showTimeLeft(now, snapshot.fraction);
    }
    auto picture = Zn::dynamicCast<iGPUImage>(snapshot.image);
    if (!picture || !video_.hasRenderTarget()) return;
    XY<int> size = video_.getSize();
    Glib::ImageDescription frame(picture, BoxInt(0, 0, size.x, size.y));
    iRootVideoWindow::PrimitivesRenderer(video_).renderMulti(&frame, 1);
}
