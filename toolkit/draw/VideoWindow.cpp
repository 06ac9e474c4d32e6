#include "VideoWindow.h"

#include "Canvas.h"

#include <algorithm>

void Glib::VideoWindow::setTarget(Canvas* canvas, const BoxInt& area) {
    canvas_ = canvas;
    area_ = BoxInt();
    if (!canvas) return;
    BoxInt cut(std::max(area.x1, 0), std::max(area.y1, 0), std::min(area.x2, canvas->width()), std::min(area.y2, canvas->height()));
    if (!cut.isEmpty()) area_ = cut;
}

XY<int> Glib::VideoWindow::getSize() const { return hasRenderTarget() ? area_.size() : XY<int>(0, 0); }
