#include "HSColourWheel.h"

#include "core/rad.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "image/HostImage.h"
#include "platform/Configuration.h"
#include "value/DataConvert.h"

#include <cmath>
#include <vector>

Zn::Ptr<iHostImage> HSColourWheel::lastWheelImage_;
NormalisedRGB HSColourWheel::lastBgColour_(0.0f, 0.0f, 0.0f, 1.0f);

namespace {

// With it set the disc is painted with the value of the colour last shown.
const int colourWheelReflectLuma = config_int("colour_wheel_reflect_luma", 0);

// The wheel's fixed turn against the hue circle, in degrees.
constexpr double kHueTurn = 14.0;

int wholePixels(double v) { return DataConvert::truncate<int>(v); }

std::uint8_t byteOf(double c) {
    if (c > 1.0) return 255;
    if (c < 0.0) return 0;
    return static_cast<std::uint8_t>(c * 255.0);
}

// The display angle of a point from the angle a = atan(|x| / |y|) in degrees.
double displayAngle(double x, double y, double a) {
    if (x > 0) return y == 0 ? 90.0 : (y > 0 ? a : 180.0 - a);
    if (x == 0) return y > 0 ? 0.0 : 180.0;
    return y == 0 ? 270.0 : (y > 0 ? 360.0 - a : 180.0 + a);
}

double angleOf(double ax, double ay) { return std::atan(ax / ay) * 180.0 / 3.141592653589793; }

} // namespace

HSColourWheel::HSColourWheel(const InitArgs& args)
    : StandardPanel(args), initialValue_(1.0), lastValue_(1.0), gap_(static_cast<unsigned short>(UifStd::instance().getWidgetGap())),
      chordX2_(args.width), chordY2_(args.height) {
    computeGeometry();
    setVisible(true);
    setMovable(false);
}

HSColourWheel::HSColourWheel(Canvas* canvas, unsigned short size, double value, unsigned short gap)
    : StandardPanel(size, size, UifStd::instance().getColourScheme(), canvas != nullptr, canvas), initialValue_(value), lastValue_(value), gap_(gap),
      chordX2_(size), chordY2_(size) {
    computeGeometry();
    setVisible(true);
    setMovable(false);
}

void HSColourWheel::computeGeometry() {
    radius_ = std::max(0, (static_cast<unsigned short>(width()) >> 1) - gap_);
    centre_ = XY<double>(radius_ + gap_, radius_ + gap_);
}

double HSColourWheel::convertHueToDisplayAngle(double h) { return std::fmod(360.0 - h - kHueTurn, 360.0); }

double HSColourWheel::convertDisplayToHueAngle(double a) { return 360.0 - std::fmod(a + kHueTurn, 360.0); }

int HSColourWheel::convertHStoXY(double h, double s, double& x, double& y) const {
    if (!(h >= 0.0 && h <= 360.0 && s >= 0.0 && s <= 1.0)) return -1;
    const double a = convertHueToDisplayAngle(h), r = s * radius_;
    x = std::sin(rad(a)) * r;
    y = std::cos(rad(a)) * r;
    return 0;
}

int HSColourWheel::convertXYtoHS(double x, double y, double& h, double& s) const {
    const double d = std::sqrt(x * x + y * y);
    // Whole pixels: a point a fraction inside a fractional radius is already out.
    if (!(d == d) || wholePixels(d) >= wholePixels(radius_)) return -1;
    s = d / radius_;
    h = convertDisplayToHueAngle(displayAngle(x, y, angleOf(std::fabs(x), std::fabs(y))));
    return 0;
}

bool HSColourWheel::validColourPoint(double x, double y) const { return std::sqrt(x * x + y * y) <= radius_; }

bool HSColourWheel::pointOfInterest(double x, double y) const { return x >= -radius_ && x <= radius_ && y >= -radius_ && y <= radius_; }

bool HSColourWheel::snapPoint(double& x, double& y, bool) const {
    if (!(std::sqrt(x * x + y * y) > radius_)) return false;
    const double t = std::atan(std::fabs(x) / std::fabs(y));
    const double nx = std::sin(t) * radius_, ny = std::cos(t) * radius_;
    x = x < 0 ? -nx : nx;
    y = y > 0 ? ny : -ny;
    return true;
}

BoxInt HSColourWheel::getAreaForCrosshair() const {
    const int half = UifStd::instance().getWidgetGap();
    const int cx = wholePixels(gap_ + radius_ + cursorX_), cy = wholePixels(gap_ + radius_ + cursorY_);
    return BoxInt(cx - half, cy - half, cx + half, cy + half);
}

int HSColourWheel::setCursor(double x, double y) {
    double h, s;
    if ((x == cursorX_ && y == cursorY_) || !pointOfInterest(x, y) || convertXYtoHS(x, y, h, s) != 0) return -1;
    cursorX_ = x;
    cursorY_ = y;
    return 0;
}

MouseCursorID HSColourWheel::contextCursor(const XY<int>& p) const {
    return isActive() && getAreaForCrosshair().contains(p) ? kCursorDrag : kCursorArrow;
}

void HSColourWheel::setNewWidgetValue(ColourData& c, eRedrawFlag flag) {
    const ColourData ui = UIColourFromDataColour(c);
    double x, y;
    if (convertHStoXY(ui.getHue(), ui.getSaturation(), x, y) == 0 && (x != cursorX_ || y != cursorY_)) {
        // A fully saturated colour lies on the rim, which the whole-pixel test of
        // the disc leaves out; its marker goes there all the same.
        if (setCursor(x, y) != 0 && validColourPoint(x, y)) {
            cursorX_ = x;
            cursorY_ = y;
        }
        if (isActive() && flag == kRedraw) redraw();
    }
    if (ui.getValue() != lastValue_) {
        lastValue_ = ui.getValue();
        if (colourWheelReflectLuma && flag == kRedraw) redraw();
    }
}

ColourData HSColourWheel::getWidgetValue() const {
    double h = 0.0, s = 0.0;
    if (convertXYtoHS(cursorX_, cursorY_, h, s) != 0 && validColourPoint(cursorX_, cursorY_) && radius_ > 0) {
        h = convertDisplayToHueAngle(displayAngle(cursorX_, cursorY_, angleOf(std::fabs(cursorX_), std::fabs(cursorY_))));
        s = std::min(1.0, std::hypot(cursorX_, cursorY_) / radius_);
    }
    return UIColourFromDataColour(ColourData(h, s, lastValue_, kColourSpaceHSV, boundAlpha()));
}

void HSColourWheel::resize(double w, double h) {
    if (wholePixels(w) == width() && wholePixels(h) == height()) return;
    const ColourData kept = getWidgetValue();
    StandardPanel::resize(w, h);
    computeGeometry();
    wheelImage_ = {};
    double x, y;
    if (convertHStoXY(kept.getHue(), kept.getSaturation(), x, y) == 0) setCursor(x, y);
}

void HSColourWheel::setCol(const Colour& c, bool redrawNow) {
    StandardPanel::setCol(c, redrawNow);
    wheelImage_ = {};
}

void HSColourWheel::setPalette(const Palette& p) {
    StandardPanel::setPalette(p);
    wheelImage_ = {};
}

void HSColourWheel::buildWheelImage(int side, const NormalisedRGB& bg) {
    auto* image = new HostImage(side, side);
    Zn::Ptr<iHostImage> keep(image);
    std::uint8_t* pixels = image->data();
    const int stride = image->stride(), R = (side - 1) / 2;
    const double v = colourWheelReflectLuma ? lastValue_ : initialValue_;
    const std::uint8_t back[4] = {byteOf(bg.b), byteOf(bg.g), byteOf(bg.r), 255};
    // Every |x| and |y| is a whole number and a half, 0.5 to R + 0.5: one root and
    // one angle per pair serve all four quadrants.
    const int n = R + 1;
    std::vector<double> dist(static_cast<std::size_t>(n * n)), angle(dist.size());
    for (int ky = 0; ky < n; ++ky)
        for (int kx = 0; kx < n; ++kx) {
            const double ax = kx + 0.5, ay = ky + 0.5;
            dist[ky * n + kx] = std::sqrt(ax * ax + ay * ay);
            angle[ky * n + kx] = angleOf(ax, ay);
        }
    for (int j = 0; j < side; ++j) {
        const double y = (R + 1 - j) - 0.5;
        const int ky = static_cast<int>(std::fabs(y));
        std::uint8_t* row = pixels + static_cast<std::ptrdiff_t>(j) * stride;
        for (int i = 0; i < side; ++i) {
            const double x = (i - R) + 0.5;
            const int k = ky * n + static_cast<int>(std::fabs(x));
            std::uint8_t* px = row + 4 * static_cast<std::ptrdiff_t>(i);
            if (wholePixels(dist[k]) >= wholePixels(radius_)) {
                std::copy(back, back + 4, px);
                continue;
            }
            const double h = convertDisplayToHueAngle(displayAngle(x, y, angle[k])), s = dist[k] / radius_;
            double r, g, b;
            ColourData::HSVToRGB(h, 0.8 * s + 0.2, v, r, g, b);
            px[0] = byteOf(b);
            px[1] = byteOf(g);
            px[2] = byteOf(r);
            px[3] = 255;
        }
    }
    wheelImage_ = keep;
}

void HSColourWheel::drawBackground() {
    const int side = 2 * wholePixels(radius_) + 1;
    if (!wheelImage_ && side > 1) {
        const NormalisedRGB bg = fromColour(getCol());
        if (lastWheelImage_ && lastWheelImage_->width() == side && lastBgColour_ == bg) {
            wheelImage_ = lastWheelImage_;
        } else {
            lastBgColour_ = bg;
            buildWheelImage(side, bg);
            lastWheelImage_ = wheelImage_;
        }
    }
    CanvasRenderer r(canvas());
    r.render(Glib::RectDescription(BoxInt(0, 0, width(), height()), getCol()));
    if (wheelImage_) r.render(Glib::ImageDescription(Zn::Ptr<iImage>(wheelImage_), BoxInt(gap_, gap_, gap_ + side, gap_ + side)));
    const double indent = UifStd::instance().getIndentWidth(), half = wholePixels(radius_) + indent;
    const Colour ring = scale(getCol(), 0.7);
    r.render(Glib::EllipseDescription(Zn::Box<double, Zn::BottomUpTraits>(centre_.x - half, centre_.y - half, centre_.x + half, centre_.y + half),
                                      2 * indent, 0.0, 360.0, ring, ring, Glib::EllipseDescription::kRing));
    drawCursor();
}

void HSColourWheel::drawCursor() {
    snapPoint(cursorX_, cursorY_, true);
    const BoxInt b = getAreaForCrosshair();
    const Colour black(0.0, 0.0, 0.0);
    CanvasRenderer(canvas()).render(Glib::EllipseDescription(Zn::Box<double, Zn::BottomUpTraits>(b.x1, b.y1, b.x2, b.y2), 1.0, 0.0, 360.0, black,
                                                             black, Glib::EllipseDescription::kRing));
}

void HSColourWheel::setFromXY(double x, double y, DataChangeType type) {
    snapPoint(x, y, true);
    if (type != kChangeStart && wholePixels(x) == wholePixels(cursorX_) && wholePixels(y) == wholePixels(cursorY_)) return;
    double h, s;
    if (convertXYtoHS(x, y, h, s) != 0) return;
    setFromColour(UIColourToDataColour(ColourData(h, s, lastValue_, kColourSpaceHSV, boundAlpha())), type);
}

void HSColourWheel::setFromColour(const ColourData& colour, DataChangeType type) {
    if (getDataAdaptor())
        requestSetNewDataValue(colour, type);
    else
        redraw();
}

bool HSColourWheel::handleMouseCursorEvent(const Event& e, double& x, double& y) {
    if (!isActive()) return false;
    justGrabbed_ = false;
    const XY<int> p = e.pos();
    const bool leftOrRight = mouse_left_event(e) || mouse_right_event(e);
    const int reach = 1 + UifStd::instance().getWidgetGap();
    const bool onMarker = x >= 0 && y >= 0 && std::fabs(p.x - x) <= reach && std::fabs(p.y - y) <= reach;
    const bool inChordArea = p.x >= chordX1_ && p.x <= chordX2_ && p.y >= chordY1_ && p.y <= chordY2_;
    if ((leftOrRight && mouse_down_event(e) && onMarker) || (mouse_chord_event(e) && mouse_down_event(e) && inChordArea) ||
        (leftOrRight && mouse_move_event(e) && dragging_)) {
        x = p.x;
        y = p.y;
        if (!mouse_move_event(e)) dragging_ = justGrabbed_ = true;
        return true;
    }
    if ((leftOrRight || mouse_chord_event(e)) && mouse_up_event(e)) dragging_ = false;
    return false;
}

int HSColourWheel::handleMouseEvent(const Event& e) {
    double x = cursorX_ + centre_.x, y = cursorY_ + centre_.y;
    const bool moves = handleMouseCursorEvent(e, x, y);
    if (moves) {
        x -= centre_.x;
        y -= centre_.y;
        if (mouse_down_event(e)) grabOffset_ = XY<int>(wholePixels(x - cursorX_), wholePixels(y - cursorY_));
        if (justGrabbed_ && parent()) parent()->drop(Glob::kDropped);
        setFromXY(x - grabOffset_.x, y - grabOffset_.y, mouse_down_event(e) ? kChangeStart : kIntermediateChange);
    } else if (mouse_left_event(e) && mouse_down_event(e)) {
        setFromColour(UIColourToDataColour(ColourData(0.0, 0.0, lastValue_, kColourSpaceHSV, boundAlpha())), kResetChange);
    }
    return moves;
}
