#include "HostImage.h"

#include "core/Utf8.h"

#include <cairo.h>

#include <algorithm>

HostImage::HostImage(int width, int height) : surface_(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, std::max(0, width), std::max(0, height))) {}

HostImage::~HostImage() { cairo_surface_destroy(surface_); }

Zn::Ptr<iHostImage> HostImage::loadPNG(const LightweightString<wchar_t>& path) {
    if (path.empty()) return {};
    cairo_surface_t* s = cairo_image_surface_create_from_png(toUTF8(path).c_str());
    if (cairo_surface_status(s) != CAIRO_STATUS_SUCCESS) {
        cairo_surface_destroy(s);
        return {};
    }
    // The painting code reads ARGB32 only; a PNG without alpha loads as RGB24.
    if (cairo_image_surface_get_format(s) != CAIRO_FORMAT_ARGB32) {
        auto* converted = new HostImage(cairo_image_surface_get_width(s), cairo_image_surface_get_height(s));
        cairo_t* cr = cairo_create(converted->surface_);
        cairo_set_source_surface(cr, s, 0, 0);
        cairo_paint(cr);
        cairo_destroy(cr);
        cairo_surface_destroy(s);
        cairo_surface_flush(converted->surface_);
        return Zn::Ptr<iHostImage>(converted);
    }
    return Zn::Ptr<iHostImage>(new HostImage(s));
}

XY<int> HostImage::getSize() const { return {cairo_image_surface_get_width(surface_), cairo_image_surface_get_height(surface_)}; }

std::uint8_t* HostImage::data() {
    cairo_surface_flush(surface_);
    // The caller writes through this pointer; Cairo must reread the pixels before painting from them.
    cairo_surface_mark_dirty(surface_);
    return cairo_image_surface_get_data(surface_);
}

const std::uint8_t* HostImage::data() const {
    cairo_surface_flush(surface_);
    return cairo_image_surface_get_data(surface_);
}

int HostImage::stride() const { return cairo_image_surface_get_stride(surface_); }
