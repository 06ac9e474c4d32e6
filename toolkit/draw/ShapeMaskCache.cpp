#include "ShapeMaskCache.h"

namespace Glib {

ShapeMaskCache& ShapeMaskCache::forThisThread() {
    thread_local ShapeMaskCache cache;
    return cache;
}

cairo_surface_t* ShapeMaskCache::get(const std::string& key, int width, int height, const Painter& paint) {
    if (width <= 0 || height <= 0 || long(width) * height > kLargestArea) return nullptr;
    if (Mask* found = cache_.find(key)) return found->get();
    Mask mask(cairo_image_surface_create(CAIRO_FORMAT_A8, width, height), cairo_surface_destroy);
    cairo_t* cr = cairo_create(mask.get());
    paint(cr);
    cairo_destroy(cr);
    cairo_surface_flush(mask.get());
    return cache_.insert(key, std::move(mask)).get();
}

} // namespace Glib
