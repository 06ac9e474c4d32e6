#include "ScrollBar.h"

#include "ArrowGlyph.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"

#include <algorithm>
#include <cmath>

namespace {

// Paints now only when on the screen: while a control is being built it has no
// place yet, and painting would land in a corner of the canvas it shares.
void repaint(Glob* g) {
    if (g->isShowing() && GlobManager::instance().isRealized(getRootParent(g))) g->redraw();
}

// Timer ticks before a held arrow or track starts repeating.
constexpr int kRepeatDelayTicks = 6;

double clampUnit(double v) { return std::isfinite(v) ? std::clamp(v, 0.0, 1.0) : 0.0; }
// A size that is not a number shows everything, so the bar asks for nothing.
double clampSize(double v) { return std::isfinite(v) ? std::clamp(v, 0.0, 1.0) : 1.0; }

} // namespace

ScrollBar::InitArgs::InitArgs(eOrientation o, unsigned short len, double size, double pos) : orientation(o), thumbSize(size), thumbPos(pos) {
    auto t = static_cast<unsigned short>(thickness());
    width = o == kVertical ? t : len;
    height = o == kVertical ? len : t;
}

bool ScrollBar::isScrollBarMsg(const LightweightString<char>& m) {
    for (const char* name : {thumbMovedMsg, upButtonPressedMsg, downButtonPressedMsg, leftButtonPressedMsg, rightButtonPressedMsg})
        if (m == name) return true;
    return false;
}

int ScrollBar::thickness() {
    // Two thirds of a row: wide enough to hit, narrow enough to leave the content room.
    return std::max(8, UifStd::instance().getRowHeight() * 2 / 3);
}

ScrollBar::ScrollBar(const InitArgs& args)
    : Glob(args), orientation_(args.orientation == kHorizontal ? kHorizontal : kVertical), size_(clampSize(args.thumbSize)),
      pos_(clampUnit(args.thumbPos)) {}

ScrollBar::~ScrollBar() { stopRepeating(); }

void ScrollBar::setThumbSize(double size, eRedrawFlag flag) {
    size = clampSize(size);
    if (size == size_) return;
    size_ = size;
    if (flag == kRedraw) repaint(this);
}

void ScrollBar::setThumbPos(double pos, eRedrawFlag flag) {
    pos = clampUnit(pos);
    if (pos == pos_) return;
    pos_ = pos;
    if (flag == kRedraw) repaint(this);
}

bool ScrollBar::canScroll() const { return size_ < 1.0 && thumbLength() < length() - 2 * arrowLength(); }

// ---- geometry ---------------------------------------------------------------

int ScrollBar::arrowLength() const {
    // Square arrows while there is room; in a very short bar they share it.
    return std::max(0, std::min(across(), length() / 2));
}

int ScrollBar::thumbLength() const {
    int track = std::max(0, length() - 2 * arrowLength());
    int minimum = std::min(track, std::max(4, across() / 2));
    return std::clamp(static_cast<int>(std::lround(track * size_)), minimum, track);
}

int ScrollBar::thumbOffset() const {
    int track = std::max(0, length() - 2 * arrowLength());
    return static_cast<int>(std::lround((track - thumbLength()) * pos_));
}

// Lays an extent measured from the back end of the track (top or left) out as a box.
static BoxInt spanBox(ScrollBar::eOrientation o, int w, int h, int from, int to) {
    if (o == ScrollBar::kVertical) return BoxInt(0, h - to, w, h - from);
    return BoxInt(from, 0, to, h);
}

BoxInt ScrollBar::backArrowBox() const { return spanBox(orientation_, width(), height(), 0, arrowLength()); }

BoxInt ScrollBar::forwardArrowBox() const { return spanBox(orientation_, width(), height(), length() - arrowLength(), length()); }

BoxInt ScrollBar::trackBox() const { return spanBox(orientation_, width(), height(), arrowLength(), length() - arrowLength()); }

BoxInt ScrollBar::thumbBox() const {
    int from = arrowLength() + thumbOffset();
    return spanBox(orientation_, width(), height(), from, from + thumbLength());
}

int ScrollBar::alongTrack(XY<int> p) const {
    int along = orientation_ == kVertical ? height() - 1 - p.y : p.x;
    return along - arrowLength();
}

ScrollBar::ePart ScrollBar::partAt(XY<int> p) const {
    if (!BoxInt(0, 0, width(), height()).contains(p)) return kNoPart;
    if (backArrowBox().contains(p)) return kBackArrow;
    if (forwardArrowBox().contains(p)) return kForwardArrow;
    int a = alongTrack(p);
    if (a < thumbOffset()) return kTrackBefore;
    if (a >= thumbOffset() + thumbLength()) return kTrackAfter;
    return kThumb;
}

// ---- painting ---------------------------------------------------------------

void ScrollBar::drawBackground() {
    CanvasRenderer r(canvas());
    const Palette& p = getPalette();
    r.fill(p.window(kShadeDark));
    bool live = canScroll() && isActive();
    Colour ink = live ? p.text() : p.text(kTextDimmed);
    auto arrow = [&](const BoxInt& box, ePart part, ArrowGlyph::eDirection dir) {
        if (box.isEmpty()) return;
        r.render(Glib::RectDescription(box, pressed_ == part ? p.window(kShadeLight) : p.window(kShadeNormal)));
        ArrowGlyph::draw(r, box, dir, ink);
    };
    bool v = orientation_ == kVertical;
    arrow(backArrowBox(), kBackArrow, v ? ArrowGlyph::kUp : ArrowGlyph::kLeft);
    arrow(forwardArrowBox(), kForwardArrow, v ? ArrowGlyph::kDown : ArrowGlyph::kRight);
    if (!live) return;
    // The thumb stands a little clear of the track's sides so that it reads as a handle.
    int inset = std::max(1, across() / 6);
    BoxInt t = thumbBox();
    if (v) {
        t.x1 += inset;
        t.x2 -= inset;
    } else {
        t.y1 += inset;
        t.y2 -= inset;
    }
    Glib::RectDescription thumb(t, pressed_ == kThumb || hover_ ? p.window(kShadeLightest) : p.window(kShadeLighter));
    thumb.cornerRadius = inset;
    r.render(thumb);
}

// ---- input ------------------------------------------------------------------

void ScrollBar::notify(const char* message) {
    if (Glob* owner = logicalParent()) sendMessage(message, owner, this);
}

void ScrollBar::actOn(ePart part) {
    bool v = orientation_ == kVertical;
    switch (part) {
    case kBackArrow: notify(v ? upButtonPressedMsg : leftButtonPressedMsg); break;
    case kForwardArrow: notify(v ? downButtonPressedMsg : rightButtonPressedMsg); break;
    case kTrackBefore:
    case kTrackAfter: {
        // A page is the part of the content in view; the thumb's range stands for the
        // part that is not, so one page moves it by size / (1 - size) of that range.
        double page = size_ < 1.0 ? size_ / (1.0 - size_) : 1.0;
        double before = pos_;
        setThumbPos(pos_ + (part == kTrackAfter ? page : -page));
        if (pos_ != before) notify(thumbMovedMsg);
        break;
    }
    default: break;
    }
}

void ScrollBar::stopRepeating() {
    if (interest() & kTimerInterest) clearInterest(Glob::kTimerInterest);
    repeatTicks_ = 0;
}

int ScrollBar::react(const Event& e) {
    if (e.type() == Event::kTimer) {
        if (pressed_ == kNoPart || pressed_ == kThumb) {
            stopRepeating();
            return 1;
        }
        // The track repeats only while the thumb has not yet reached the mouse.
        if (++repeatTicks_ > kRepeatDelayTicks && partAt(lastMouse_) == pressed_) actOn(pressed_);
        return 1;
    }
    if (mouse_wheel_event(e)) {
        if (!canScroll() || e.wheelDelta() == 0) return 0;
        bool v = orientation_ == kVertical;
        // A positive delta turns the wheel away from the user, which scrolls back.
        notify(e.wheelDelta() > 0 ? (v ? upButtonPressedMsg : leftButtonPressedMsg) : (v ? downButtonPressedMsg : rightButtonPressedMsg));
        return 1;
    }
    if (!mouse_event(e)) return 0;
    lastMouse_ = e.pos();
    if (mouse_down_event(e) && mouse_left_event(e)) {
        if (!canScroll() || !isActive()) return 1;
        pressed_ = partAt(e.pos());
        if (pressed_ == kThumb) {
            dragGrab_ = alongTrack(e.pos()) - thumbOffset();
        } else {
            actOn(pressed_);
            repeatTicks_ = 0;
            setInterest(Glob::kTimerInterest);
        }
        repaint(this);
        return 1;
    }
    if (pressed_ == kNoPart) return mouse_move_event(e) ? 0 : 1;
    if (pressed_ == kThumb && (mouse_move_event(e) || mouse_up_event(e))) {
        int track = std::max(0, length() - 2 * arrowLength());
        int range = track - thumbLength();
        if (range > 0) {
            double before = pos_;
            setThumbPos(static_cast<double>(alongTrack(e.pos()) - dragGrab_) / range);
            if (pos_ != before) notify(thumbMovedMsg);
        }
    }
    if (mouse_up_event(e)) {
        pressed_ = kNoPart;
        stopRepeating();
        repaint(this);
    }
    return 1;
}

void ScrollBar::handleMouseContainment(bool inside) {
    if (hover_ == inside) return;
    hover_ = inside;
    repaint(this);
}
