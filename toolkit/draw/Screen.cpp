#include "Screen.h"

#include "Canvas.h"

#include <algorithm>
#include <cairo.h>
#include <cstddef>
#include <cstdio>
#include <unistd.h>

struct Screen::Surface {
    cairo_surface_t* surface = nullptr;
    cairo_t* cr = nullptr;
    Surface(int w, int h) : surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, w, h)), cr(cairo_create(surface)) {}
    ~Surface() {
        cairo_destroy(cr);
        cairo_surface_destroy(surface);
    }
};

namespace {

// Cuts `area` (bottom-up) out of `source` and writes it to `path` through a temporary file.
bool writeSurfacePNG(cairo_surface_t* source, int height, const BoxInt& area, const LightweightString<char>& path) {
    if (area.isEmpty() || path.empty()) return false;
    cairo_surface_t* part = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, area.width(), area.height());
    cairo_t* cr = cairo_create(part);
    cairo_set_source_surface(cr, source, -area.x1, -(height - area.y2));
    cairo_set_operator(cr, CAIRO_OPERATOR_SOURCE);
    cairo_paint(cr);
    cairo_destroy(cr);
    LightweightString<char> temp = path + ".tmp";
    bool ok = cairo_surface_write_to_png(part, temp.c_str()) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(part);
    if (ok) ok = std::rename(temp.c_str(), path.c_str()) == 0;
    if (!ok) unlink(temp.c_str());
    return ok;
}

} // namespace

Screen::Screen(int width, int height)
    : width_(std::max(1, width)), height_(std::max(1, height)), surface_(std::make_unique<Surface>(width_, height_)) {}

Screen::~Screen() = default;

void Screen::resize(int width, int height) {
    width = std::max(1, width);
    height = std::max(1, height);
    if (width == width_ && height == height_) return;
    width_ = width;
    height_ = height;
    surface_ = std::make_unique<Surface>(width_, height_);
}

void Screen::composite(const std::vector<Layer>& layers) {
    cairo_t* cr = surface_->cr;
    cairo_save(cr);
    cairo_set_operator(cr, CAIRO_OPERATOR_SOURCE);
    cairo_set_source_rgb(cr, desktop_.red(), desktop_.green(), desktop_.blue());
    cairo_paint(cr);
    cairo_set_operator(cr, CAIRO_OPERATOR_OVER);
    for (const Layer& l : layers) {
        if (!l.canvas) continue;
        double top = height_ - (l.position.y + l.canvas->height());
        if (l.shadow) {
            // Down and to the right of the canvas, as if lit from the top left.
            int off = 4;
            cairo_set_source_rgba(cr, 0, 0, 0, 0.35 * l.opacity);
            cairo_rectangle(cr, l.position.x + off, top + off, l.canvas->width(), l.canvas->height());
            cairo_fill(cr);
        }
        cairo_surface_flush(l.canvas->surface());
        cairo_set_source_surface(cr, l.canvas->surface(), l.position.x, top);
        if (l.opacity >= 1.0)
            cairo_paint(cr);
        else
            cairo_paint_with_alpha(cr, l.opacity);
    }
    cairo_restore(cr);
    cairo_surface_flush(surface_->surface);
}

std::uint32_t Screen::pixel(int x, int y) const {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) return 0;
    const unsigned char* row = data() + std::ptrdiff_t{height_ - 1 - y} * stride();
    // The desktop is opaque, so every screen pixel is too and needs no un-premultiplying.
    return *reinterpret_cast<const std::uint32_t*>(row + std::ptrdiff_t{x} * 4);
}

const unsigned char* Screen::data() const { return cairo_image_surface_get_data(surface_->surface); }

int Screen::stride() const { return cairo_image_surface_get_stride(surface_->surface); }

bool Screen::writePNG(const LightweightString<char>& path) const { return writePNG(path, bounds()); }

bool Screen::writePNG(const LightweightString<char>& path, const BoxInt& area) const {
    BoxInt a = area;
    a.clip(bounds());
    return writeSurfacePNG(surface_->surface, height_, a, path);
}

bool writeCanvasPNG(const Canvas& canvas, const LightweightString<char>& path, const BoxInt* area) {
    BoxInt a(0, 0, canvas.width(), canvas.height());
    if (area) a.clip(*area);
    cairo_surface_flush(canvas.surface());
    return writeSurfacePNG(canvas.surface(), canvas.height(), a, path);
}
