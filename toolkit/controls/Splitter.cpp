#include "Splitter.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/Messaging.h"

#include <algorithm>

Splitter::InitArgs::InitArgs(Orientation o, unsigned short length) : orientation(o) {
    const XY<int> size = calcDimensions(o, length);
    width = size.x;
    height = size.y;
}

Splitter::Splitter(const InitArgs& args)
    : StandardPanel(args), orientation_(args.orientation == kAboveEachOther ? kAboveEachOther : kSideBySide), minFirst_(args.minFirst),
      minSecond_(args.minSecond) {
    first_ = args.first;
    second_ = args.second;
    firstStamp_ = first_ ? first_->stamp() : IdStamp();
    secondStamp_ = second_ ? second_->stamp() : IdStamp();
    setDefaultMouseCursor(orientation_ == kSideBySide ? kCursorResizeHorizontal : kCursorResizeVertical);
}

int Splitter::calcThickness() { return std::max(3, UifStd::instance().getWidgetGap()); }

XY<int> Splitter::calcDimensions(Orientation orientation, unsigned short length) {
    return orientation == kAboveEachOther ? XY<int>(length, calcThickness()) : XY<int>(calcThickness(), length);
}

void Splitter::setPanes(Glob* first, Glob* second) {
    // The panes are set when the bar is added, which may come after the record was
    // filled; both are checked against the bar's parent whenever they are used.
    first_ = first;
    second_ = second;
    firstStamp_ = first ? first->stamp() : IdStamp();
    secondStamp_ = second ? second->stamp() : IdStamp();
}

Glob* Splitter::firstPane() const {
    if (!first_ || !EventHandler::valid(first_, firstStamp_) || !parent() || first_->parent() != parent() || first_ == this) return nullptr;
    return first_;
}

Glob* Splitter::secondPane() const {
    if (!second_ || !EventHandler::valid(second_, secondStamp_) || !parent() || second_->parent() != parent() || second_ == this) return nullptr;
    return second_ == first_ ? nullptr : second_;
}

void Splitter::setMinSizes(unsigned short first, unsigned short second) {
    minFirst_ = first;
    minSecond_ = second;
}

int Splitter::minOf(const Glob* g, unsigned short own) const { return std::max<int>(own, along(g->getMinSize())); }

int Splitter::getPosition() const { return along(XY<int>(getX(), getY())); }

std::pair<int, int> Splitter::positionRange() const {
    Glob* a = firstPane();
    Glob* b = secondPane();
    if (a && b) {
        const int lo = along(XY<int>(a->getX(), a->getY())) + minOf(a, minFirst_);
        const int hi = along(XY<int>(b->getX(), b->getY())) + lengthOf(b) - calcThickness() - minOf(b, minSecond_);
        return {lo, std::max(lo, hi)};
    }
    if (!parent()) return {getPosition(), getPosition()};
    const BoxInt area = parent()->getUserArea();
    const int lo = orientation_ == kSideBySide ? area.x1 : area.y1;
    const int hi = (orientation_ == kSideBySide ? area.x2 : area.y2) - lengthOf(this);
    return {lo, std::max(lo, hi)};
}

int Splitter::moveTo(int position, eRedrawFlag flag) {
    Glob* p = parent();
    if (!p) return getPosition();
    const auto range = positionRange();
    const int pos = std::clamp(position, range.first, range.second);
    Glob* a = firstPane();
    Glob* b = secondPane();
    // Where the outer edges are before anything moves.
    const int start = a ? along(XY<int>(a->getX(), a->getY())) : 0;
    const int end = b ? along(XY<int>(b->getX(), b->getY())) + lengthOf(b) : 0;
    const XY<int> at = orientation_ == kSideBySide ? XY<int>(pos, getY()) : XY<int>(getX(), pos);
    p->setWidgetPos(this, BottomLeft(at));
    if (a && b) {
        const int t = lengthOf(this);
        if (orientation_ == kSideBySide) {
            a->resize(std::max(0, pos - start), a->height());
            p->setWidgetPos(a, BottomLeft(start, a->getY()));
            b->resize(std::max(0, end - (pos + t)), b->height());
            p->setWidgetPos(b, BottomLeft(pos + t, b->getY()));
        } else {
            a->resize(a->width(), std::max(0, pos - start));
            p->setWidgetPos(a, BottomLeft(a->getX(), start));
            b->resize(b->width(), std::max(0, end - (pos + t)));
            p->setWidgetPos(b, BottomLeft(b->getX(), pos + t));
        }
    }
    if (flag == kRedraw) p->redraw();
    return getPosition();
}

int Splitter::handleMouseEvent(const Event& e) {
    Glob* p = parent();
    if (mouse_down_event(e) && mouse_left_event(e)) {
        dragging_ = true;
        grab_ = along(e.pos());
        redraw();
        return 1;
    }
    if (!dragging_) return mouse_event(e) ? 1 : 0;
    if (mouse_move_event(e) || mouse_up_event(e)) {
        const IdStamp self = stamp();
        if (p) {
            if (firstPane() && secondPane()) moveTo(along(p->screenXYToGlobXY(e.screenPos())) - grab_);
            callMessage(kMoveMsg, p, this);
        }
        // The parent may have taken the bar away while it handled the move.
        if (!EventHandler::valid(this, self)) return 1;
        if (mouse_up_event(e)) {
            dragging_ = false;
            redraw();
            if (Glob* owner = parent()) callMessage(kMovedMsg, owner, this);
        }
        return 1;
    }
    return 1;
}

void Splitter::handleMouseContainment(bool inside) {
    hot_ = inside;
    redraw();
}

void Splitter::drawBackground() {
    const Palette& p = getPalette();
    CanvasRenderer r(canvas());
    r.fill((hot_ || dragging_) && isActive() ? p.window(kShadeLight) : p.window(kShadeDark));
    // Three dots at the middle say the bar can be taken hold of.
    const double cx = width() / 2.0, cy = height() / 2.0;
    const double radius = std::max(1.0, std::min(width(), height()) / 4.0);
    const double step = 4.0 * radius;
    const Colour ink = p.window(isActive() ? kShadeDarkest : kShadeDarker);
    for (int k = -1; k <= 1; ++k) {
        XY<double> c = orientation_ == kSideBySide ? XY<double>(cx, cy + k * step) : XY<double>(cx + k * step, cy);
        r.render(Glib::EllipseDescription(c, {radius, radius}, ink, true));
    }
}
