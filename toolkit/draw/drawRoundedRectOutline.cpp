#include "drawRoundedRectOutline.h"

#include "CanvasRenderer.h"

#include <cmath>

namespace Glib {

void drawRoundedRectOutline(Canvas* canvas, const BoxInt& box, double lineWidth, unsigned corners, eOutlineStyle style, const Colour& colour) {
    if (!canvas || !(lineWidth > 0.0)) return;
    const int grow = style == kOutlineOnEdge ? static_cast<int>(std::floor(lineWidth / 2)) : 0;
    RectDescription d(BoxInt(box.x1 - grow, box.y1 - grow, box.x2 + grow, box.y2 + grow), colour);
    d.filled = false;
    d.outline = colour;
    d.outlineWidth = lineWidth;
    d.cornerRadius = 2 * lineWidth;
    d.corners = corners & RectDescription::kAllCorners;
    CanvasRenderer(canvas).render(d);
}

} // namespace Glib
