#include "Canvas.h"

#include "StateSaver.h"

#include <algorithm>
#include <cairo.h>
#include <cstddef>

Canvas::Canvas(int width, int height) : width_(std::max(1, width)), height_(std::max(1, height)) { create(); }

// A canvas that dies while current would leave drawing aimed at freed memory.
Canvas::~Canvas() {
    if (Glib::currentCanvas() == this) Glib::setCurrentCanvas(nullptr);
    destroy();
}

void Canvas::create() {
    surface_ = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width_, height_);
    cr_ = cairo_create(surface_);
    origin_ = {0, 0};
    clip_ = BoxInt(0, 0, width_, height_);
    stack_.clear();
    ++generation_;
}

void Canvas::destroy() {
    if (cr_) cairo_destroy(cr_);
    if (surface_) cairo_surface_destroy(surface_);
    cr_ = nullptr;
    surface_ = nullptr;
}

void Canvas::resize(int width, int height) {
    width = std::max(1, width);
    height = std::max(1, height);
    if (width == width_ && height == height_) return;
    destroy();
    width_ = width;
    height_ = height;
    create();
    modified_ = BoxInt(0, 0, width_, height_);
}

void Canvas::applyClip() {
    cairo_reset_clip(cr_);
    if (clip_.isEmpty()) {
        cairo_rectangle(cr_, 0, 0, 0, 0);
    } else {
        cairo_rectangle(cr_, clip_.x1, cairoY(clip_.y2), clip_.width(), clip_.height());
    }
    cairo_clip(cr_);
}

void Canvas::pushOrigin(XY<int> origin, const BoxInt& clip) {
    stack_.push_back({origin_, clip_});
    origin_ = origin;
    clip_.clip(clip);
    applyClip();
}

void Canvas::popOrigin() {
    if (stack_.empty()) return;
    origin_ = stack_.back().origin;
    clip_ = stack_.back().clip;
    stack_.pop_back();
    applyClip();
}

std::uint32_t Canvas::pixel(int x, int y) const {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) return 0;
    cairo_surface_flush(surface_);
    const unsigned char* data = cairo_image_surface_get_data(surface_);
    int stride = cairo_image_surface_get_stride(surface_);
    int row = height_ - 1 - y;
    return straightAlpha(*reinterpret_cast<const std::uint32_t*>(data + std::ptrdiff_t{row} * stride + std::ptrdiff_t{x} * 4));
}

std::uint32_t Canvas::straightAlpha(std::uint32_t premultiplied) {
    std::uint32_t a = premultiplied >> 24;
    if (a == 0 || a == 255) return premultiplied;
    auto un = [a](std::uint32_t c) { return std::min<std::uint32_t>(255, (c * 255 + a / 2) / a); };
    return a << 24 | un((premultiplied >> 16) & 0xFF) << 16 | un((premultiplied >> 8) & 0xFF) << 8 | un(premultiplied & 0xFF);
}

void Canvas::addModifiedArea(const BoxInt& box) {
    BoxInt b = box;
    b.clip(BoxInt(0, 0, width_, height_));
    modified_.add(b);
    ++generation_;
}

BoxInt Canvas::takeModifiedArea() {
    BoxInt m = modified_;
    modified_ = BoxInt();
    return m;
}

void refresh_off(Canvas* c) {
    if (c) c->refreshOff();
}
void refresh_on(Canvas* c) {
    if (c) c->refreshOn();
}
