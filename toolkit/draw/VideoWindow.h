#pragma once

#include "iRootVideoWindow.h"

namespace Glib {

/// The video window of a panel: a box of the panel's canvas.
class VideoWindow : public iRootVideoWindow {
public:
    VideoWindow() = default;
    // Shows frames on `canvas` in `area` (canvas coordinates); the box is cut to the
    // canvas. A null canvas leaves the window without a target.
    void setTarget(Canvas* canvas, const BoxInt& area);

    XY<int> getSize() const override;
    Canvas* renderTarget() const override { return canvas_; }
    BoxInt targetArea() const override { return area_; }

private:
    Canvas* canvas_ = nullptr;
    BoxInt area_;
};

} // namespace Glib
