#include "CanvasRenderer.h"

#include "PangoSupport.h"
#include "core/Utf8.h"
#include "image/iHostImage.h"

#include <algorithm>
#include <cmath>


void CanvasRenderer::setColour(const Colour& c) const {
    cairo_set_source_rgba(canvas_->context(), c.red(), c.green(), c.blue(), c.alpha());
}

void CanvasRenderer::noteModified(double x1, double y1, double x2, double y2) const {
    XY<int> o = canvas_->origin();
    BoxInt b(o.x + static_cast<int>(std::floor(x1)), o.y + static_cast<int>(std::floor(y1)), o.x + static_cast<int>(std::ceil(x2)),
             o.y + static_cast<int>(std::ceil(y2)));
    b.clip(canvas_->clip());
    canvas_->addModifiedArea(b);
}

void CanvasRenderer::render(const Glib::RectDescription& r) const {
    if (!canvas_ || r.box.isEmpty()) return;
    cairo_t* cr = canvas_->context();
    XY<int> o = canvas_->origin();
    double x = o.x + r.box.x1, y = canvas_->cairoY(o.y + r.box.y2), w = r.box.width(), h = r.box.height();
    auto path = [&](double inset) {
        double rad = std::min({r.cornerRadius, w / 2, h / 2});
        double x0 = x + inset, y0 = y + inset, x1 = x + w - inset, y1 = y + h - inset;
        if (rad <= 0.0) {
            cairo_rectangle(cr, x0, y0, x1 - x0, y1 - y0);
            return;
        }
        cairo_new_sub_path(cr);
        cairo_arc(cr, x1 - rad, y0 + rad, rad, -M_PI / 2, 0);
        cairo_arc(cr, x1 - rad, y1 - rad, rad, 0, M_PI / 2);
        cairo_arc(cr, x0 + rad, y1 - rad, rad, M_PI / 2, M_PI);
        cairo_arc(cr, x0 + rad, y0 + rad, rad, M_PI, 3 * M_PI / 2);
        cairo_close_path(cr);
    };
    if (r.filled) {
        setColour(r.fill);
        path(0.0);
        cairo_fill(cr);
    }
    if (r.outlineWidth > 0.0) {
        setColour(r.outline);
        cairo_set_line_width(cr, r.outlineWidth);
        path(r.outlineWidth / 2);
        cairo_stroke(cr);
    }
    noteModified(r.box.x1, r.box.y1, r.box.x2, r.box.y2);
}

void CanvasRenderer::render(const Glib::LineDescription& l) const {
    if (!canvas_) return;
    cairo_t* cr = canvas_->context();
    XY<int> o = canvas_->origin();
    // Pixel centres: pixel (x, y) covers [x, x+1) by [y, y+1) bottom-up.
    double ax = o.x + l.from.x + 0.5, ay = canvas_->cairoY(o.y + l.from.y + 0.5);
    double bx = o.x + l.to.x + 0.5, by = canvas_->cairoY(o.y + l.to.y + 0.5);
    setColour(l.colour);
    cairo_set_line_width(cr, l.width);
    // Square caps make a horizontal or vertical line reach both end pixels fully.
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_SQUARE);
    cairo_move_to(cr, ax, ay);
    cairo_line_to(cr, bx, by);
    cairo_stroke(cr);
    double half = l.width / 2 + 1;
    noteModified(std::min(l.from.x, l.to.x) - half, std::min(l.from.y, l.to.y) - half, std::max(l.from.x, l.to.x) + half + 1,
                 std::max(l.from.y, l.to.y) + half + 1);
}

void CanvasRenderer::render(const Glib::EllipseDescription& e) const {
    if (!canvas_ || e.radii.x <= 0 || e.radii.y <= 0) return;
    cairo_t* cr = canvas_->context();
    XY<int> o = canvas_->origin();
    cairo_save(cr);
    cairo_translate(cr, o.x + e.centre.x, canvas_->cairoY(o.y + e.centre.y));
    cairo_scale(cr, e.radii.x, e.radii.y);
    cairo_arc(cr, 0, 0, 1, 0, 2 * M_PI);
    cairo_restore(cr);
    setColour(e.colour);
    if (e.filled) {
        cairo_fill(cr);
    } else {
        cairo_set_line_width(cr, e.lineWidth);
        cairo_stroke(cr);
    }
    noteModified(e.centre.x - e.radii.x - 1, e.centre.y - e.radii.y - 1, e.centre.x + e.radii.x + 1, e.centre.y + e.radii.y + 1);
}

void CanvasRenderer::render(const Glib::TextDescription& t) const {
    if (!canvas_ || t.text.empty() || t.box.isEmpty()) return;
    cairo_t* cr = canvas_->context();
    XY<int> o = canvas_->origin();
    PangoLayout* layout = pango_cairo_create_layout(cr);
    PangoFontDescription* d = Glib::makePangoFont(t.font);
    pango_layout_set_font_description(layout, d);
    LightweightString<char> utf8 = toUTF8(t.text);
    pango_layout_set_text(layout, utf8.c_str(), static_cast<int>(utf8.size()));
    if (t.ellipsize) {
        pango_layout_set_width(layout, t.box.width() * PANGO_SCALE);
        pango_layout_set_ellipsize(layout, PANGO_ELLIPSIZE_END);
    }
    PangoRectangle logical;
    pango_layout_get_pixel_extents(layout, nullptr, &logical);
    double x = o.x + t.box.x1;
    if (t.align == Glib::kAlignCentreH) x += (t.box.width() - logical.width) / 2.0;
    if (t.align == Glib::kAlignRight) x += t.box.width() - logical.width;
    double top = canvas_->cairoY(o.y + t.box.y2) + std::floor((t.box.height() - logical.height) / 2.0);
    cairo_save(cr);
    cairo_rectangle(cr, o.x + t.box.x1, canvas_->cairoY(o.y + t.box.y2), t.box.width(), t.box.height());
    cairo_clip(cr);
    setColour(t.colour);
    cairo_move_to(cr, std::round(x), top);
    pango_cairo_show_layout(cr, layout);
    cairo_restore(cr);
    pango_font_description_free(d);
    g_object_unref(layout);
    noteModified(t.box.x1, t.box.y1, t.box.x2, t.box.y2);
}

void CanvasRenderer::render(const Glib::ImageDescription& i) const {
    auto host = Zn::dynamicCast<iHostImage>(i.image);
    if (!canvas_ || !host || i.to.isEmpty() || host->width() <= 0 || host->height() <= 0) return;
    BoxInt from = i.from.isEmpty() ? BoxInt(0, 0, host->width(), host->height()) : i.from;
    if (from.isEmpty()) return;
    cairo_t* cr = canvas_->context();
    XY<int> o = canvas_->origin();
    cairo_save(cr);
    // Clip to the destination, then map the source box onto it; the picture's rows
    // run from the top, its box from the bottom.
    double x = o.x + i.to.x1, y = canvas_->cairoY(o.y + i.to.y2);
    cairo_rectangle(cr, x, y, i.to.width(), i.to.height());
    cairo_clip(cr);
    cairo_translate(cr, x, y);
    cairo_scale(cr, double(i.to.width()) / from.width(), double(i.to.height()) / from.height());
    cairo_set_source_surface(cr, host->surface(), -from.x1, -(host->height() - from.y2));
    cairo_pattern_t* source = cairo_get_source(cr);
    cairo_pattern_set_filter(source, i.smooth ? CAIRO_FILTER_GOOD : CAIRO_FILTER_NEAREST);
    // Without padding, smoothing blends the picture's edge with transparency outside it.
    cairo_pattern_set_extend(source, CAIRO_EXTEND_PAD);
    cairo_paint_with_alpha(cr, std::clamp(i.opacity, 0.0, 1.0));
    cairo_restore(cr);
    noteModified(i.to.x1, i.to.y1, i.to.x2, i.to.y2);
}

void CanvasRenderer::fill(const Colour& c) const {
    if (!canvas_) return;
    setColour(c);
    cairo_paint(canvas_->context());
    canvas_->addModifiedArea(canvas_->clip());
}
