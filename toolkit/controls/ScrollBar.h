#pragma once

#include "glob/Glob.h"

/// A vertical or horizontal scroll bar: an arrow button at each end, a track, and a
/// thumb whose length shows how much of the content is in view (thumbSize, 0 to 1)
/// and whose place shows where the view is (thumbPos, 0 at the top or left, 1 at the
/// bottom or right).
///
/// The bar reports to its owner (its logical parent) with posted messages, so they
/// arrive on the next turn of the event loop. Dragging the thumb or clicking the
/// track moves the thumb itself and sends thumbMovedMsg; the owner reads thumbPos().
/// The arrows and the wheel only send the arrow messages: the owner knows how long a
/// step is, scrolls, and puts the thumb where it belongs with setThumbPos. Holding an
/// arrow or the track down repeats on timer ticks. A bar whose thumb fills the track
/// has nothing to scroll and takes no input.
class ScrollBar : public Glob {
public:
    enum eOrientation { kVertical = 0, kHorizontal = 1 };

    /// What a ScrollBar is made from: its orientation, and the thumb's size and place.
    struct InitArgs : GlobCreationInfo {
        eOrientation orientation = kVertical;
        double thumbSize = 1.0;
        double thumbPos = 0.0;
        InitArgs() = default;
        // A bar of `length` along its axis and thickness() across it.
        InitArgs(eOrientation o, unsigned short length, double size = 1.0, double pos = 0.0);
    };

    static constexpr const char* thumbMovedMsg = "ScrollBarThumbMoved";
    static constexpr const char* upButtonPressedMsg = "ScrollBarUp";
    static constexpr const char* downButtonPressedMsg = "ScrollBarDown";
    static constexpr const char* leftButtonPressedMsg = "ScrollBarLeft";
    static constexpr const char* rightButtonPressedMsg = "ScrollBarRight";
    static bool isScrollBarMsg(const LightweightString<char>& message);

    // How thick a bar is across its axis.
    static int thickness();

    explicit ScrollBar(const InitArgs& args);
    ~ScrollBar() override;
    const char* idstring() const override { return "ScrollBar"; }

    eOrientation orientation() const { return orientation_; }
    // Both are clamped to 0..1; anything that is not a number counts as 0.
    void setThumbSize(double size, eRedrawFlag flag = kRedraw);
    void setThumbPos(double pos, eRedrawFlag flag = kRedraw);
    double thumbSize() const { return size_; }
    double thumbPos() const { return pos_; }
    // True when there is something to scroll: the thumb is shorter than the track.
    bool canScroll() const;

    // The parts, in the bar's own coordinates. The back arrow is the one towards
    // position 0 (up or left), the forward arrow the other.
    BoxInt backArrowBox() const;
    BoxInt forwardArrowBox() const;
    BoxInt trackBox() const;
    BoxInt thumbBox() const;

    void drawBackground() override;
    int react(const Event& e) override;
    void handleMouseContainment(bool inside) override;

private:
    enum ePart { kNoPart, kBackArrow, kForwardArrow, kTrackBefore, kTrackAfter, kThumb };

    int length() const { return orientation_ == kVertical ? height() : width(); }
    int across() const { return orientation_ == kVertical ? width() : height(); }
    int arrowLength() const;
    // The thumb's extent along the track, measured from the track's back end.
    int thumbLength() const;
    int thumbOffset() const;
    // Distance of a local point from the back end of the track, along the axis.
    int alongTrack(XY<int> p) const;
    ePart partAt(XY<int> p) const;
    // Carries out one press on a part; the timer repeats it while the button is held.
    void actOn(ePart part);
    void notify(const char* message);
    void stopRepeating();

    eOrientation orientation_;
    double size_ = 1.0;
    double pos_ = 0.0;
    ePart pressed_ = kNoPart;
    bool hover_ = false;
    XY<int> lastMouse_;
    int dragGrab_ = 0; // where along the thumb it was taken
    int repeatTicks_ = 0;
};
