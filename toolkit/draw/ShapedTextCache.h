#pragma once

#include "FontDesc.h"
#include "core/LruCache.h"

#include <pango/pango.h>

#include <memory>

namespace Glib {

// One-line texts shaped for painting, kept across paints: a panel repaints the
// same legends and values over and over, and shaping is most of what text costs.
// One cache per thread, like the Pango context its layouts are made on. Private
// to toolkit/draw.
class ShapedTextCache {
public:
    struct Shaped {
        std::unique_ptr<PangoLayout, void (*)(gpointer)> layout{nullptr, g_object_unref};
        PangoRectangle logical{}; // in pixels
    };

    static ShapedTextCache& forThisThread();

    // The layout of `text` in `font`, ellipsized to `ellipsizeWidth` pixels when
    // that is positive. It stays valid until the next call.
    const Shaped& get(const LightweightString<wchar_t>& text, const FontDesc& font, int ellipsizeWidth);

    static constexpr std::size_t kCapacity = 512;

private:
    static Shaped shape(const LightweightString<char>& utf8, const FontDesc& font, int ellipsizeWidth);

    LruCache<Shaped> cache_{kCapacity};
};

} // namespace Glib
