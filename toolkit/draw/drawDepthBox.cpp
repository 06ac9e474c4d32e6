#include "drawDepthBox.h"

#include "CanvasRenderer.h"

#include <algorithm>

namespace Glib {

void drawDepthBox(Canvas* canvas, const BoxInt& box, const Colour& colour, int thickness, eDepthStyle style) {
    if (!canvas || box.isEmpty() || thickness <= 0) return;
    const int t = std::min({thickness, box.width() / 2, box.height() / 2});
    if (t <= 0) return;
    const Colour light = scale(colour, 1.4), dark = scale(colour, 0.6);
    const Colour& topLeft = style == kSunkenDepth ? dark : light;
    const Colour& bottomRight = style == kSunkenDepth ? light : dark;
    CanvasRenderer r(canvas);
    r.render(RectDescription(BoxInt(box.x1, box.y2 - t, box.x2, box.y2), topLeft));
    r.render(RectDescription(BoxInt(box.x1, box.y1, box.x1 + t, box.y2 - t), topLeft));
    r.render(RectDescription(BoxInt(box.x1 + t, box.y1, box.x2, box.y1 + t), bottomRight));
    r.render(RectDescription(BoxInt(box.x2 - t, box.y1 + t, box.x2, box.y2 - t), bottomRight));
}

} // namespace Glib
