#include "CursorPicture.h"

#include "draw/Canvas.h"

#include <cairo.h>

#include <memory>

namespace {

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;
using Context = std::unique_ptr<cairo_t, decltype(&cairo_destroy)>;

// Each shape is painted twice: first wide and dark, for the outline, then narrower
// and light over it, so neighbouring parts merge into one body with one outline.
void pipette(cairo_t* cr, bool outline) {
    const double widen = outline ? 3 : 0;
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
    // The glass tube, from the tip at the bottom left up to the collar.
    cairo_set_line_width(cr, 3 + widen);
    cairo_move_to(cr, 3, 28);
    cairo_line_to(cr, 18, 13);
    cairo_stroke(cr);
    // The collar across the top of the tube.
    cairo_set_line_width(cr, 2 + widen);
    cairo_move_to(cr, 14.5, 11.5);
    cairo_line_to(cr, 20.5, 17.5);
    cairo_stroke(cr);
    // The rubber bulb, dark inside the outline.
    if (!outline) cairo_set_source_rgb(cr, 0.25, 0.25, 0.25);
    cairo_arc(cr, 23, 9, 4.5 + widen / 2, 0, 2 * 3.14159265358979);
    cairo_fill(cr);
}

void closedHand(cairo_t* cr, bool outline) {
    const double widen = outline ? 1.5 : 0;
    const double knuckles[][2] = {{10, 10.5}, {14.5, 9.5}, {19, 9.5}, {23.5, 10.5}};
    for (const auto& k : knuckles) {
        cairo_new_sub_path(cr);
        cairo_arc(cr, k[0], k[1], 3 + widen, 0, 2 * 3.14159265358979);
    }
    cairo_new_sub_path(cr);
    cairo_arc(cr, 7, 17, 3 + widen, 0, 2 * 3.14159265358979);
    cairo_rectangle(cr, 7 - widen, 10.5 - widen, 20 + 2 * widen, 15 + 2 * widen);
    cairo_set_fill_rule(cr, CAIRO_FILL_RULE_WINDING);
    cairo_fill(cr);
    if (outline) return;
    // The folds between the fingers.
    cairo_set_source_rgb(cr, 0, 0, 0);
    cairo_set_line_width(cr, 1);
    for (double x : {12.25, 16.75, 21.25}) {
        cairo_move_to(cr, x, 9);
        cairo_line_to(cr, x, 13);
    }
    cairo_stroke(cr);
}

} // namespace

std::optional<CursorPicture> CursorPicture::draw(MouseCursorID id) {
    void (*shape)(cairo_t*, bool) = nullptr;
    CursorPicture picture;
    switch (id) {
    case kCursorDrag:
        shape = closedHand;
        picture.hotspot_ = {16, 16};
        break;
    case kCursorEyeDropper:
        shape = pipette;
        picture.hotspot_ = {2, 29};
        break;
    default: return std::nullopt;
    }
    Surface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kSize, kSize), cairo_surface_destroy);
    Context cr(cairo_create(surface.get()), cairo_destroy);
    cairo_set_source_rgb(cr.get(), 0, 0, 0);
    shape(cr.get(), true);
    cairo_set_source_rgb(cr.get(), 1, 1, 1);
    shape(cr.get(), false);
    cairo_surface_flush(surface.get());

    const auto* data = reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(surface.get()));
    const int stride = cairo_image_surface_get_stride(surface.get()) / 4;
    picture.pixels_.reserve(static_cast<std::size_t>(kSize) * kSize);
    for (int y = 0; y < kSize; ++y)
        for (int x = 0; x < kSize; ++x) picture.pixels_.push_back(Canvas::straightAlpha(data[static_cast<std::ptrdiff_t>(y) * stride + x]));
    return picture;
}
