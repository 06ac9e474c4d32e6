#include "AngleIndicatorWidget.h"

#include "core/rad.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/UpdateDeferrer.h"
#include "value/DataChangeType.h"

#include <cmath>
#include <numbers>

Angle calcSmallestDifference(Angle a, Angle b) {
    const Angle d = std::abs(a - b);
    return d > 180.0 ? 360.0 - d : d;
}

AngleIndicatorWidget::AngleIndicatorWidget(unsigned short size, const Palette& palette, Canvas* canvas)
    : AngleIndicatorWidget(
          StandardPanel::InitArgs(GlobCreationInfo(size, size, palette, canvas != nullptr, canvas), Border(Border::kNoBorder, 0, 15))) {}

AngleIndicatorWidget::AngleIndicatorWidget(const StandardPanel::InitArgs& args) : StandardPanel(args) {}

// Half the size rounded up: a dial of odd size has a middle pixel.
XY<int> AngleIndicatorWidget::getCentre() const { return {(width() + 1) / 2, (height() + 1) / 2}; }

int AngleIndicatorWidget::getRadius() const { return width() >> 1; }

Angle AngleIndicatorWidget::calcAngleToPos(const XY<int>& p) const {
    const XY<int> c = getCentre();
    const double dx = p.x - c.x, dy = p.y - c.y;
    if (dy == 0) return dx > 0 ? 90.0 : 270.0;
    const double a = std::atan(dx / dy) * 180.0 / std::numbers::pi;
    if (dx > 0) return dy > 0 ? a : 180.0 - std::abs(a);
    return dy > 0 ? 360.0 - std::abs(a) : std::abs(a) + 180.0;
}

XY<double> AngleIndicatorWidget::pointAt(double radius, Angle angle) const {
    const XY<int> c = getCentre();
    return {c.x + std::sin(rad(angle)) * radius, c.y + std::cos(rad(angle)) * radius};
}

MouseCursorID AngleIndicatorWidget::contextCursor(const XY<int>& p) const {
    if (!isActive()) return kCursorArrow;
    if (dragging_ || calcSmallestDifference(calcAngleToPos(p), getAngle()) < kGrabAngle) return kCursorDrag;
    return kCursorArrow;
}

int AngleIndicatorWidget::handleMouseEvent(const Event& e) {
    if (!isActive()) return 0;
    const Angle a = calcAngleToPos(e.pos());
    if (mouse_down_event(e)) {
        if (calcSmallestDifference(a, getAngle()) < kGrabAngle) {
            setAngle(kChangeStart, a);
            redraw();
            dragging_ = true;
            return 1;
        }
        if (!mouse_left_event(e)) return 0;
        if (getAngle() != getDefaultAngle()) {
            setAngle(kResetChange, getDefaultAngle());
            redraw();
        }
        return 1;
    }
    if (mouse_move_event(e) && dragging_) {
        setAngle(kIntermediateChange, a);
        redraw();
        return 1;
    }
    if (mouse_up_event(e) && dragging_) {
        setAngle(kFinalChange, a);
        dragging_ = false;
        return 1;
    }
    if (mouse_wheel_event(e)) {
        Angle next = getAngle() + (e.wheelDelta() > 0 ? 1.0 : -1.0);
        if (next >= 360.0) next -= 360.0;
        if (next < 0.0) next += 360.0;
        setAngle(kResetChange, next);
        return 1;
    }
    return 0;
}

void AngleIndicatorWidget::handleMouseContainment(bool inside) {
    mouseInside_ = inside;
    redraw();
}

void AngleIndicatorWidget::drawBackground() {
    Glib::UpdateDeferrer deferrer;
    StandardPanel::drawBackground();
    const Palette& p = getPalette();
    const Colour needle = p.text(isActive() ? kTextNormal : kTextDimmed);
    const Colour marks = p.window(kShadeLighter);
    Colour face = p.window(kShadeNormal);
    // Mostly the light shade, lifted a little more towards white under the mouse.
    if (isActive()) face = Colour::mix(Colour(1.0, 1.0, 1.0, true), p.window(kShadeLight), mouseInside_ ? 0.85 : 0.9);
    const double r = getRadius();
    const double indent = UifStd::instance().getIndentWidth();
    const XY<int> c = getCentre();
    const XY<double> centre(c.x, c.y);
    CanvasRenderer out(canvas());
    out.render(Glib::EllipseDescription(centre, {r, r}, face));
    out.render(Glib::LineDescription(pointAt(3 * indent + 2, getDefaultAngle()), pointAt(r - 4, getDefaultAngle()), marks));
    for (int tick = 0; tick < 8; ++tick) out.render(Glib::LineDescription(pointAt(r - 2, tick * 45.0), pointAt(r - 1, tick * 45.0), marks));
    out.render(Glib::LineDescription(centre, pointAt(r - indent, getAngle()), needle));
    const double hub = 3 * indent;
    const Zn::Box<double, Zn::BottomUpTraits> hubBox(centre.x - hub, centre.y - hub, centre.x + hub, centre.y + hub);
    out.render(Glib::EllipseDescription(hubBox, 1.0, 0.0, 360.0, getCentreColour(), marks, Glib::EllipseDescription::kFilledEllipse));
}
