#pragma once

#include "core/LruCache.h"

#include <cairo.h>

#include <functional>
#include <memory>
#include <string>

namespace Glib {

/// Coverage masks of shapes, kept across paints. Rasterizing a curve or a slanted
/// line costs cairo several times what painting its mask does, and a panel paints
/// the same thumbs, wells, ticks and rounded boxes row after row. A mask holds the
/// coverage that painting the shape directly would give, so painting through it
/// matches to within one step of rounding. One cache per thread. Private to
/// toolkit/draw.
class ShapeMaskCache {
public:
    static ShapeMaskCache& forThisThread();

    // Paints a shape, in whatever source is set, in the coordinates of its mask.
    using Painter = std::function<void(cairo_t*)>;

    // The A8 mask, `width` by `height` pixels, of what `paint` paints; made once for
    // each `key`, which must name everything that fixes those pixels. Null for
    // shapes too large to be worth keeping: paint those directly.
    cairo_surface_t* get(const std::string& key, int width, int height, const Painter& paint);

    static constexpr std::size_t kCapacity = 256;
    static constexpr long kLargestArea = 1L << 14;

private:
    using Mask = std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)>;
    LruCache<Mask> cache_{kCapacity};
};

} // namespace Glib
