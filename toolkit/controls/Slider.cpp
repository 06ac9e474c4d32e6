#include "Slider.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/fireCallback.h"

#include <algorithm>
#include <cmath>

Slider::InitArgs::InitArgs(const Colour& colour, unsigned short width)
    : GlobCreationInfo(width, static_cast<unsigned short>(Slider::calcHeight())), colour(colour) {}

Slider::Slider(const InitArgs& args) : Glob(args), colour_(args.colour), pointOfInterest_(0.0) {}

int Slider::calcHeight() { return UifStd::instance().getRowHeight(); }

void Slider::setValueRange(double min, double max) {
    if (!std::isnan(min)) min_ = min;
    if (!std::isnan(max)) max_ = max;
    if (max_ < min_) std::swap(min_, max_);
    setPosition(value_);
}

void Slider::setValueIncrement(double increment) { increment_ = std::isfinite(increment) && increment > 0 ? increment : 0.0; }

double Slider::getValueIncrement() const {
    if (increment_ > 0) return increment_;
    double span = max_ - min_;
    return std::isfinite(span) && span > 0 ? span / 100.0 : 1.0;
}

void Slider::setPointOfInterest(double value) {
    hasPointOfInterest_ = !std::isnan(value);
    pointOfInterest_ = hasPointOfInterest_ ? value : 0.0;
    redraw();
}

void Slider::setPosition(double value, eRedrawFlag flag) {
    value_ = std::isnan(value) ? min_ : std::clamp(value, min_, max_);
    if (flag == kRedraw) redraw();
}

void Slider::setColour(const Colour& c) {
    colour_ = c;
    redraw();
}

int Slider::thumbRadius() const { return std::max(3, std::min(height(), width()) / 3); }

double Slider::valueAt(int x) const {
    int r = thumbRadius(), span = width() - 2 * r;
    if (span <= 0) return min_;
    double t = std::clamp(double(x - r) / span, 0.0, 1.0);
    return min_ + t * (max_ - min_);
}

int Slider::xOf(double value) const {
    int r = thumbRadius(), span = std::max(0, width() - 2 * r);
    double range = max_ - min_;
    double t = range > 0 && std::isfinite(range) ? (value - min_) / range : 0.0;
    return r + static_cast<int>(std::lround(std::clamp(t, 0.0, 1.0) * span));
}

void Slider::userChanges(double value, DataChangeType type) {
    double before = value_;
    setPosition(value);
    if (value_ == before && type != kFinalChange) return;
    const IdStamp me = stamp();
    requestSetNewDataValue(value_, type);
    // A listener of the value may have deleted the slider.
    if (type == kFinalChange && EventHandler::valid(this, me)) fireCallback(this, callback_);
}

int Slider::react(const Event& e) {
    if (!isActive()) return mouse_event(e) ? 1 : 0;
    if (mouse_down_event(e) && mouse_left_event(e)) {
        dragging_ = true;
        claimKbdFocus();
        userChanges(valueAt(e.pos().x), kChangeStart);
        return 1;
    }
    if (mouse_move_event(e) && dragging_) {
        double v = valueAt(e.pos().x);
        // A drag that passes within a few pixels of the point of interest rests on it.
        if (hasPointOfInterest_ && std::abs(e.pos().x - xOf(pointOfInterest_)) <= std::max(2, thumbRadius() / 2)) v = pointOfInterest_;
        userChanges(v, kIntermediateChange);
        return 1;
    }
    if (mouse_up_event(e) && mouse_left_event(e) && dragging_) {
        dragging_ = false;
        userChanges(value_, kFinalChange);
        return 1;
    }
    if (mouse_wheel_event(e)) {
        userChanges(value_ + (e.wheelDelta() > 0 ? 1 : -1) * getValueIncrement(), kFinalChange);
        return 1;
    }
    if (e.type() == Event::kKeyPress) return handleKey(e.keyCode());
    return mouse_event(e) ? 1 : 0;
}

int Slider::handleKey(int key) {
    double step = getValueIncrement();
    switch (Keys::plain(key)) {
    case Keys::Left:
    case Keys::Down: userChanges(value_ - step, kFinalChange); return 1;
    case Keys::Right:
    case Keys::Up: userChanges(value_ + step, kFinalChange); return 1;
    case Keys::PageDown: userChanges(value_ - 10 * step, kFinalChange); return 1;
    case Keys::PageUp: userChanges(value_ + 10 * step, kFinalChange); return 1;
    case Keys::Home: userChanges(min_, kFinalChange); return 1;
    case Keys::End: userChanges(max_, kFinalChange); return 1;
    default: return 0;
    }
}

void Slider::drawBackground() {
    Glob::drawBackground();
    const Palette& p = getPalette();
    CanvasRenderer r(canvas());
    const int r0 = thumbRadius(), mid = height() / 2, track = std::max(2, r0 / 2);
    const int thumbX = xOf(value_);
    Glib::RectDescription groove(BoxInt(r0, mid - track / 2, width() - r0, mid - track / 2 + track), p.childWindow(kChildList));
    groove.cornerRadius = track / 2.0;
    r.render(groove);
    Glib::RectDescription filled(BoxInt(r0, mid - track / 2, thumbX, mid - track / 2 + track), isActive() ? colour_ : p.text(kTextDimmed));
    filled.cornerRadius = track / 2.0;
    r.render(filled);
    if (hasPointOfInterest_) {
        double x = xOf(pointOfInterest_);
        r.render(Glib::LineDescription({x, double(mid - r0)}, {x, double(mid - track)}, p.text(kTextDimmed)));
    }
    Glib::EllipseDescription thumb({double(thumbX), double(mid)}, {double(r0), double(r0)},
                                   isActive() ? p.window(kShadeLightest) : p.window(kShadeLight));
    r.render(thumb);
    Glib::EllipseDescription ring(thumb.centre, thumb.radii, hasKbdFocus() ? p.selection(kSelectionFocused) : p.window(kShadeDarker), false);
    ring.lineWidth = hasKbdFocus() ? 2.0 : 1.0;
    r.render(ring);
}
