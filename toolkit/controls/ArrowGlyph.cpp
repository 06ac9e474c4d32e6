#include "ArrowGlyph.h"

#include <algorithm>

namespace ArrowGlyph {

void draw(const CanvasRenderer& r, const BoxInt& box, eDirection direction, const Colour& colour) {
    int side = std::min(box.width(), box.height());
    if (side < 3) return;
    int half = std::max(1, side / 4);
    int cx = box.x1 + box.width() / 2, cy = box.y1 + box.height() / 2;
    // Row k (0 at the base) is 2 * (half - k) + 1 pixels long, so the tip is one pixel.
    for (int k = 0; k <= half; ++k) {
        int reach = half - k;
        int base = -(half + 1) / 2;
        switch (direction) {
        case kUp: r.render(Glib::RectDescription(BoxInt(cx - reach, cy + base + k, cx + reach + 1, cy + base + k + 1), colour)); break;
        case kDown: r.render(Glib::RectDescription(BoxInt(cx - reach, cy - base - k, cx + reach + 1, cy - base - k + 1), colour)); break;
        case kRight: r.render(Glib::RectDescription(BoxInt(cx + base + k, cy - reach, cx + base + k + 1, cy + reach + 1), colour)); break;
        case kLeft: r.render(Glib::RectDescription(BoxInt(cx - base - k, cy - reach, cx - base - k + 1, cy + reach + 1), colour)); break;
        }
    }
}

} // namespace ArrowGlyph
