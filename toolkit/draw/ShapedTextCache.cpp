#include "ShapedTextCache.h"

#include "PangoSupport.h"
#include "core/Utf8.h"

#include <algorithm>
#include <cmath>
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
    s.baseline = static_cast<double>(pango_layout_get_baseline(s.layout.get())) / PANGO_SCALE;
    return s;
}

std::string ShapedTextCache::keyOf(const LightweightString<wchar_t>& text, const FontDesc& font, int ellipsizeWidth) {
    std::string key = font.name.str();
    key += '\0' + std::to_string(font.size) + ',' + std::to_string(font.style) + ',' + std::to_string(std::max(0, ellipsizeWidth)) + '\0';
    key += toUTF8(text).str();
    return key;
}

ShapedTextCache::Shaped& ShapedTextCache::get(const LightweightString<wchar_t>& text, const FontDesc& font, int ellipsizeWidth) {
    ellipsizeWidth = std::max(0, ellipsizeWidth);
    std::string key = keyOf(text, font, ellipsizeWidth);
    if (Shaped* found = cache_.find(key)) return *found;
    return cache_.insert(std::move(key), shape(toUTF8(text), font, ellipsizeWidth));
}

ShapedTextCache::Shaped& ShapedTextCache::keep(std::string key, const TextAdvanceCache::GlyphLine& line) {
    Shaped s;
    s.font.reset(cairo_scaled_font_reference(line.font));
    s.glyphs = line.glyphs;
    for (cairo_glyph_t& g : s.glyphs) g.y += line.baseline;
    s.logical = {0, 0, line.size.x, line.size.y};
    s.baseline = line.baseline;
    return cache_.insert(std::move(key), std::move(s));
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
    if (!s.mask) s.mask = s.layout ? makeMask(s.layout.get(), s.maskOrigin) : makeGlyphMask(s);
    return s.mask.get();
}

ShapedTextCache::Mask ShapedTextCache::makeGlyphMask(Shaped& s) {
    cairo_text_extents_t ink;
    cairo_scaled_font_glyph_extents(s.font.get(), s.glyphs.data(), static_cast<int>(s.glyphs.size()), &ink);
    // Whole pixels around the ink, and the logical box, as for a layout.
    const int x0 = std::min(0, static_cast<int>(std::floor(ink.x_bearing))) - 1, y0 = std::min(0, static_cast<int>(std::floor(ink.y_bearing))) - 1;
    const int x1 = std::max(s.logical.width, static_cast<int>(std::ceil(ink.x_bearing + ink.width))) + 1;
    const int y1 = std::max(s.logical.height, static_cast<int>(std::ceil(ink.y_bearing + ink.height))) + 1;
    const int w = x1 - x0, h = y1 - y0;
    if (s.glyphs.empty() || long(w) * h > kLargestMask) return Mask(nullptr, cairo_surface_destroy);
    Mask mask(cairo_image_surface_create(CAIRO_FORMAT_A8, w, h), cairo_surface_destroy);
    cairo_t* cr = cairo_create(mask.get());
    cairo_translate(cr, -x0, -y0);
    cairo_set_scaled_font(cr, s.font.get());
    cairo_show_glyphs(cr, s.glyphs.data(), static_cast<int>(s.glyphs.size()));
    cairo_destroy(cr);
    cairo_surface_flush(mask.get());
    s.maskOrigin = {x0, y0};
    return mask;
}

} // namespace Glib
