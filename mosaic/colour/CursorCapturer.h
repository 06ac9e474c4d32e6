#pragma once

#include "MagnifyTool.h"
#include "controls/ImageButton.h"
#include "core/Box.h"
#include "core/Guard.h"
#include "core/NotifyMsg.h"
#include "glob/GlobHandle.h"

#include <array>
#include <list>

// 1: a capture samples an area; any other value a single pixel.
enum captureStyleType { kSamplePixel = 0, kSampleArea = 1 };

/// An image button that, once pressed and released, takes the mouse over for the
/// whole screen: the next click anywhere chooses pixels instead of reaching what
/// lies under it, while a small magnifier follows the pointer. Escape, or a click
/// on the button itself, ends the capture with nothing taken. The capture works
/// through the toolkit's event intercept stack and a mouse listener; it owns the
/// magnifier while it lasts. User-interface thread only.
class CursorCapturer : public ImageButton {
public:
    // The magnifier's size, and its offset right of and below the pointer.
    static constexpr int kMagnifierSize = 130;
    static constexpr int kMagnifierOffset = 15;

    explicit CursorCapturer(const ImageButton::InitArgs& args);
    ~CursorCapturer() override;
    const char* idstring() const override { return "CursorCapturer"; }

    // 0 on success (or when already capturing), -1 when it could not start.
    virtual int enableCapture();
    // 0 on success (or when not capturing), -1 when the capture stays on.
    virtual int disableCapture();
    virtual bool enabled() const { return capturing_; }
    virtual void setDropperStyle(captureStyleType style) { style_ = style; }
    virtual captureStyleType getDropperStyle() const { return style_; }
    // Whether a screen point is on this button.
    virtual bool cursorOverButton(unsigned short x, unsigned short y);
    virtual void evaluatePixelAndNotify(unsigned short x, unsigned short y) {}

    // The area between where it started and the pointer, never empty.
    Zn::Box<double, Zn::BottomUpTraits> getAreaToSample() const;
    int react(const Event& e) override;
    bool fsFilterThis(const Event& e, void* cookie) override;
    int handleGlobalMouseEvent(const NotifyMsg& msg);
    MagnifyTool* magnifier() const { return magnifier_.get(); }
    void setSampleKind(int kind) { sampleKind_ = kind; }
    const std::array<double, 6>& range() const { return range_; }
    std::size_t listenerCount() const { return listeners_.size(); }

private:
    // Where the magnifier goes for a pointer at `mouse`.
    static XY<int> magnifierPos(XY<int> mouse);
    void finishArea();

    bool capturing_ = false;
    captureStyleType style_ = kSampleArea;
    GlobHandle<MagnifyTool> magnifier_;
    XY<double> start_{-1.0, -1.0};
    int sampleKind_ = 0;
    std::array<double, 6> range_{};
    IdStamp filterId_;
    std::list<Zn::Ptr<Zn::Guard>> listeners_;
};
