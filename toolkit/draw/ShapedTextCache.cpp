#include "ShapedTextCache.h"

#include "PangoSupport.h"
#include "core/Utf8.h"

#include <algorithm>
#include <string>

namespace Glib {

ShapedTextCache& ShapedTextCache::forThisThread() {
    thread_local ShapedTextCache cache;
    return cache;
}

ShapedTextCache::Shaped ShapedTextCache::shape(const LightweightString<char>& utf8, const FontDesc& font, int ellipsizeWidth) {
    Shaped s;
    s.layout.reset(makeLayout(utf8, font));
    if (ellipsizeWidth > 0) {
        pango_layout_set_width(s.layout.get(), ellipsizeWidth * PANGO_SCALE);
        pango_layout_set_ellipsize(s.layout.get(), PANGO_ELLIPSIZE_END);
    }
    pango_layout_get_pixel_extents(s.layout.get(), nullptr, &s.logical);
    return s;
}

ShapedTextCache::Shaped& ShapedTextCache::get(const LightweightString<wchar_t>& text, const FontDesc& font, int ellipsizeWidth) {
    ellipsizeWidth = std::max(0, ellipsizeWidth);
    const LightweightString<char> utf8 = toUTF8(text);
    // Everything that changes the shape, then the text.
    std::string key = font.name.str();
    key += '\0' + std::to_string(font.size) + ',' + std::to_string(font.style) + ',' + std::to_string(ellipsizeWidth) + '\0';
    key += utf8.str();
    if (Shaped* found = cache_.find(key)) return *found;
    return cache_.insert(std::move(key), shape(utf8, font, ellipsizeWidth));
}

ShapedTextCache::Mask ShapedTextCache::makeMask(PangoLayout* layout, XY<int>& origin) {
    // Ink may reach past the logical box (accents, italic overhangs), and the other way round.
    PangoRectangle ink, logical;
    pango_layout_get_pixel_extents(layout, &ink, &logical);
    const int x0 = std::min(ink.x, logical.x), y0 = std::min(ink.y, logical.y);
    const int w = std::max(ink.x + ink.width, logical.x + logical.width) - x0;
    const int h = std::max(ink.y + ink.height, logical.y + logical.height) - y0;
    if (w <= 0 || h <= 0 || long(w) * h > kLargestMask) return Mask(nullptr, cairo_surface_destroy);
    Mask mask(cairo_image_surface_create(CAIRO_FORMAT_A8, w, h), cairo_surface_destroy);
    cairo_t* cr = cairo_create(mask.get());
    cairo_move_to(cr, -x0, -y0);
    pango_cairo_show_layout(cr, layout);
    cairo_destroy(cr);
    cairo_surface_flush(mask.get());
    origin = {x0, y0};
    return mask;
}

cairo_surface_t* ShapedTextCache::maskOf(Shaped& s) {
    if (!s.mask) s.mask = makeMask(s.layout.get(), s.maskOrigin);
    return s.mask.get();
}

} // namespace Glib
