#pragma once

#include "FontDesc.h"
#include "core/LruCache.h"

#include <cairo.h>
#include <pango/pango.h>

#include <memory>

namespace Glib {

/// One-line texts shaped for painting, kept across paints: a panel repaints the
/// same legends and values over and over, and shaping is most of what text costs.
/// One cache per thread, like the Pango context its layouts are made on. Private
/// to toolkit/draw.
class ShapedTextCache {
public:
    /// One shaped text: its Pango layout, its logical size, and its coverage once painted.
    struct Shaped {
        std::unique_ptr<PangoLayout, void (*)(gpointer)> layout{nullptr, g_object_unref};
        PangoRectangle logical{}; // in pixels
        // The coverage of the painted text, made on its first paint, and where its
        // top left lies from the layout's origin.
        std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)> mask{nullptr, cairo_surface_destroy};
        XY<int> maskOrigin;
    };

    static ShapedTextCache& forThisThread();

    // The layout of `text` in `font`, ellipsized to `ellipsizeWidth` pixels when
    // that is positive. It stays valid until the next call.
    Shaped& get(const LightweightString<wchar_t>& text, const FontDesc& font, int ellipsizeWidth);

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
    static Shaped shape(const LightweightString<char>& utf8, const FontDesc& font, int ellipsizeWidth);

    LruCache<Shaped> cache_{kCapacity};
};

} // namespace Glib
