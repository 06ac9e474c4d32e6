#pragma once

#include "FontDesc.h"
#include "GlyphLine.h"
#include "core/LruCache.h"

#include <cairo.h>
#include <pango/pango.h>

#include <memory>
#include <string>
#include <vector>

namespace Glib {

/// One-line texts shaped for painting, kept across paints: a panel repaints the
/// same legends and values over and over, and shaping is most of what text costs.
/// One cache per thread, like the Pango context its layouts are made on. Private
/// to toolkit/draw.
class ShapedTextCache {
public:
    /// One shaped text: its Pango layout, or the glyphs of plain text; its logical
    /// size; and its coverage once painted.
    struct Shaped {
        std::unique_ptr<PangoLayout, void (*)(gpointer)> layout{nullptr, g_object_unref};
        std::unique_ptr<cairo_scaled_font_t, void (*)(cairo_scaled_font_t*)> font{nullptr, cairo_scaled_font_destroy};
        std::vector<cairo_glyph_t> glyphs; // placed from the top left of the line
        double baseline = 0;               // pixels below the top of the line
        PangoRectangle logical{};          // in pixels
        // The coverage of the painted text, made on its first paint, and where its
        // top left lies from the layout's origin.
        std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)> mask{nullptr, cairo_surface_destroy};
        XY<int> maskOrigin;
    };

    static ShapedTextCache& forThisThread();

    // What tells one shaped text from another: the font, the width it is shortened
    // to (none when 0 or less), and the text.
    static std::string keyOf(const LightweightString<wchar_t>& text, const FontDesc& font, int ellipsizeWidth);
    // The text kept under `key`, or null. It stays valid until the next call.
    Shaped* find(const std::string& key) { return cache_.find(key); }
    // The layout of `text` in `font`, ellipsized to `ellipsizeWidth` pixels when
    // that is positive. It stays valid until the next call.
    Shaped& get(const LightweightString<wchar_t>& text, const FontDesc& font, int ellipsizeWidth);
    // Keeps plain text already laid out as glyphs, so that painting it again is one
    // composite of its mask.
    Shaped& keep(std::string key, const TextAdvanceCache::GlyphLine& line);

    // The text's coverage as an A8 mask, made once: painting a colour through it is
    // one composite instead of one per glyph, with the same pixels, since text is
    // always placed on whole pixels. Null for text too large to keep so.
    static cairo_surface_t* maskOf(Shaped& shaped);

    using Mask = std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)>;
    // The coverage of `layout` painted at its origin, as an A8 mask whose top left
    // lies at `origin` from the layout's; null when larger than kLargestMask.
    static Mask makeMask(PangoLayout* layout, XY<int>& origin);

    static constexpr std::size_t kCapacity = 512;
    static constexpr long kLargestMask = 1L << 14;

private:
    static Mask makeGlyphMask(Shaped& s);
    static Shaped shape(const LightweightString<char>& utf8, const FontDesc& font, int ellipsizeWidth);

    LruCache<Shaped> cache_{kCapacity};
};

} // namespace Glib
