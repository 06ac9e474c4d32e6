#include "TextStyle.h"

#include "Canvas.h"

#include <algorithm>

Glib::FontDesc Canvas::createFont(const Glib::FontDesc& desc) { return desc.resolved(); }

namespace Glib {

FontDesc getDefaultFont(int index) {
    return FontDesc(getDefaultFontName(index == 1 ? 1u : 0u), getDefaultFontSize(), index == 1 ? FontDesc::kMonospace : FontDesc::kPlain).resolved();
}

BoxInt calcBounds(const TextDescription& t) {
    if (t.text.empty() || t.box.isEmpty()) return {};
    XY<int> size = measureText(t.text, t.font);
    int width = std::min(size.x, t.box.width());
    int x1 = t.align == kAlignCentreH ? t.box.x1 + (t.box.width() - width) / 2 : t.align == kAlignRight ? t.box.x2 - width : t.box.x1;
    int top = t.box.y2 - (t.box.height() - size.y) / 2;
    return BoxInt(x1, top - size.y, x1 + width, top);
}

} // namespace Glib

int getFontYOffset(int height, const Glib::FontDesc& font) {
    int lineHeight = Glib::fontHeight(font);
    return -(std::max(0, height - lineHeight) / 2 + Glib::fontAscent(font));
}
