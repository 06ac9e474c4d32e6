#include "CanvasRenderer.h"

#include "GlyphLine.h"
#include "PangoSupport.h"
#include "ShapeMaskCache.h"
#include "ShapedTextCache.h"
#include "TextAdvanceCache.h"
#include "core/Utf8.h"
#include "image/iHostImage.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string>

void CanvasRenderer::setColour(const Colour& c) const { cairo_set_source_rgba(canvas_->context(), c.red(), c.green(), c.blue(), c.alpha()); }

void CanvasRenderer::noteModified(double x1, double y1, double x2, double y2) const {
    XY<int> o = canvas_->origin();
    BoxInt b(o.x + static_cast<int>(std::floor(x1)), o.y + static_cast<int>(std::floor(y1)), o.x + static_cast<int>(std::ceil(x2)),
             o.y + static_cast<int>(std::ceil(y2)));
    b.clip(canvas_->clip());
    canvas_->addModifiedArea(b);
}

namespace {

// A rectangle inset by `inset` on every side, the corners that `corners` names
// (RectDescription's bits) rounded by `radius` about the same centres whatever the
// inset. Cairo's y runs down: its top corners are the description's top ones.
void roundedRectPath(cairo_t* cr, double x, double y, double w, double h, double inset, double radius, unsigned corners = 15) {
    double x0 = x + inset, y0 = y + inset, x1 = x + w - inset, y1 = y + h - inset;
    if (x1 <= x0 || y1 <= y0) return;
    if (radius <= 0.0 || (corners & 15) == 0) {
        cairo_rectangle(cr, x0, y0, x1 - x0, y1 - y0);
        return;
    }
    auto corner = [&](unsigned bit, double cx, double cy, double a, double px, double py) {
        if (corners & bit)
            cairo_arc(cr, cx, cy, radius, a, a + M_PI / 2);
        else
            cairo_line_to(cr, px, py);
    };
    using R = Glib::RectDescription;
    cairo_new_sub_path(cr);
    corner(R::kTopRightCorner, x1 - radius, y0 + radius, -M_PI / 2, x1, y0);
    corner(R::kBottomRightCorner, x1 - radius, y1 - radius, 0, x1, y1);
    corner(R::kBottomLeftCorner, x0 + radius, y1 - radius, M_PI / 2, x0, y1);
    corner(R::kTopLeftCorner, x0 + radius, y0 + radius, M_PI, x0, y0);
    cairo_close_path(cr);
}

// What fixes a cached shape's pixels: its kind and its sizes, bit for bit.
std::string shapeKey(char kind, std::initializer_list<double> sizes) {
    std::string key(1 + sizes.size() * sizeof(double), kind);
    std::memcpy(key.data() + 1, sizes.begin(), sizes.size() * sizeof(double));
    return key;
}

// Paints what `paint` paints, in the current source, with its origin at the
// device pixel (x, y): through a cached mask where the shape is small enough to
// keep, which spares cairo rasterizing the same curves and slants again.
void paintShape(cairo_t* cr, int x, int y, int w, int h, const std::string& key, const Glib::ShapeMaskCache::Painter& paint) {
    if (cairo_surface_t* mask = Glib::ShapeMaskCache::forThisThread().get(key, w, h, paint)) {
        cairo_mask_surface(cr, mask, x, y);
        return;
    }
    cairo_save(cr);
    cairo_translate(cr, x, y);
    paint(cr);
    cairo_restore(cr);
}

// Outlines are filled as the ring between their outer and inner edges: the pixels
// a stroke of the middle line covers, without the stroker's cost.
void fillRing(cairo_t* cr) {
    cairo_set_fill_rule(cr, CAIRO_FILL_RULE_EVEN_ODD);
    cairo_fill(cr);
}

void ellipsePath(cairo_t* cr, double cx, double cy, double rx, double ry) {
    cairo_save(cr);
    cairo_translate(cr, cx, cy);
    cairo_scale(cr, rx, ry);
    cairo_new_sub_path(cr);
    cairo_arc(cr, 0, 0, 1, 0, 2 * M_PI);
    cairo_restore(cr);
}

// The band between two ellipses over the arc from `start` to `end`, in degrees
// clockwise from straight up; cairo's angles run clockwise from the right.
void arcBandPath(cairo_t* cr, double cx, double cy, double rx, double ry, double inner, double start, double end) {
    const double a0 = (start - 90.0) * M_PI / 180.0, a1 = (end - 90.0) * M_PI / 180.0;
    cairo_save(cr);
    cairo_translate(cr, cx, cy);
    cairo_scale(cr, rx, ry);
    cairo_new_sub_path(cr);
    cairo_arc(cr, 0, 0, 1, a0, a1);
    if (inner > 0.0)
        cairo_arc_negative(cr, 0, 0, inner, a1, a0);
    else
        cairo_line_to(cr, 0, 0);
    cairo_close_path(cr);
    cairo_restore(cr);
}

} // namespace

void CanvasRenderer::render(const Glib::RectDescription& r) const {
    if (!canvas_ || r.box.isEmpty()) return;
    cairo_t* cr = canvas_->context();
    XY<int> o = canvas_->origin();
    const int x = o.x + r.box.x1, y = static_cast<int>(canvas_->cairoY(o.y + r.box.y2)), w = r.box.width(), h = r.box.height();
    const double rad = std::max(0.0, std::min({r.cornerRadius, w / 2.0, h / 2.0}));
    if (r.filled) {
        setColour(r.fill);
        if (rad > 0.0) {
            const unsigned corners = r.corners;
            paintShape(cr, x, y, w, h, shapeKey('r', {double(w), double(h), rad, double(corners)}), [=](cairo_t* c) {
                roundedRectPath(c, 0, 0, w, h, 0.0, rad, corners);
                cairo_fill(c);
            });
        } else {
            cairo_rectangle(cr, x, y, w, h);
            cairo_fill(cr);
        }
    }
    if (r.outlineWidth > 0.0) {
        const double lw = r.outlineWidth, half = lw / 2;
        setColour(r.outline);
        const unsigned corners = r.corners;
        auto ring = [=](cairo_t* c) {
            roundedRectPath(c, 0, 0, w, h, 0.0, rad > 0.0 ? rad + half : 0.0, corners);
            roundedRectPath(c, 0, 0, w, h, lw, std::max(0.0, rad - half), corners);
            fillRing(c);
        };
        // Square corners are boxes to cairo, as quick to fill as to mask.
        if (rad > 0.0 && (corners & 15)) {
            paintShape(cr, x, y, w, h, shapeKey('o', {double(w), double(h), rad, lw, double(corners)}), ring);
        } else {
            cairo_save(cr);
            cairo_translate(cr, x, y);
            ring(cr);
            cairo_restore(cr);
        }
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
    const double lw = l.width;
    auto stroke = [lw](cairo_t* c, double x1, double y1, double x2, double y2) {
        cairo_set_line_width(c, lw);
        // Square caps make a horizontal or vertical line reach both end pixels fully.
        cairo_set_line_cap(c, CAIRO_LINE_CAP_SQUARE);
        cairo_move_to(c, x1, y1);
        cairo_line_to(c, x2, y2);
        cairo_stroke(c);
    };
    if (ax == bx || ay == by) {
        stroke(cr, ax, ay, bx, by); // boxes to cairo: quick
    } else {
        // A slanted line's caps reach past its ends by up to half its width times root two.
        const double reach = lw * 0.75 + 1;
        const int x0 = static_cast<int>(std::floor(std::min(ax, bx) - reach)), y0 = static_cast<int>(std::floor(std::min(ay, by) - reach));
        const int w = static_cast<int>(std::ceil(std::max(ax, bx) + reach)) - x0, h = static_cast<int>(std::ceil(std::max(ay, by) + reach)) - y0;
        const double x1 = ax - x0, y1 = ay - y0, x2 = bx - x0, y2 = by - y0;
        paintShape(cr, x0, y0, w, h, shapeKey('l', {x1, y1, x2, y2, lw, double(w), double(h)}), [=](cairo_t* c) { stroke(c, x1, y1, x2, y2); });
    }
    double half = l.width / 2 + 1;
    noteModified(std::min(l.from.x, l.to.x) - half, std::min(l.from.y, l.to.y) - half, std::max(l.from.x, l.to.x) + half + 1,
                 std::max(l.from.y, l.to.y) + half + 1);
}

void CanvasRenderer::render(const Glib::EllipseDescription& e) const {
    if (!canvas_ || e.radii.x <= 0 || e.radii.y <= 0) return;
    cairo_t* cr = canvas_->context();
    XY<int> o = canvas_->origin();
    const double cx = o.x + e.centre.x, cy = canvas_->cairoY(o.y + e.centre.y);
    const double half = e.filled ? 0.0 : e.lineWidth / 2, rx = e.radii.x, ry = e.radii.y;
    // The pixels the shape can touch, and its centre inside them.
    const int x0 = static_cast<int>(std::floor(cx - rx - half)) - 1, y0 = static_cast<int>(std::floor(cy - ry - half)) - 1;
    const int w = static_cast<int>(std::ceil(cx + rx + half)) + 1 - x0, h = static_cast<int>(std::ceil(cy + ry + half)) + 1 - y0;
    const double mx = cx - x0, my = cy - y0;
    const double start = e.startAngle, end = e.endAngle;
    if (end <= start) return;
    if (e.fillFirst) render(Glib::EllipseDescription(e.centre, e.radii, e.fillColour));
    setColour(e.colour);
    const bool whole = end - start >= 360.0;
    const std::string key =
        shapeKey('e', {mx, my, rx, ry, e.filled ? -1.0 : e.lineWidth, double(w), double(h), whole ? 0.0 : start, whole ? 0.0 : end});
    paintShape(cr, x0, y0, w, h, key, [=](cairo_t* c) {
        const bool ring = half > 0.0 && rx > half && ry > half;
        if (!whole) {
            // The inner edge as a fraction of the outer radius, the same along the arc for a circle.
            arcBandPath(c, mx, my, rx + half, ry + half, ring ? (rx - half) / (rx + half) : 0.0, start, end);
            cairo_fill(c);
            return;
        }
        ellipsePath(c, mx, my, rx + half, ry + half);
        if (ring) ellipsePath(c, mx, my, rx - half, ry - half);
        fillRing(c);
    });
    noteModified(e.centre.x - rx - half - 1, e.centre.y - ry - half - 1, e.centre.x + rx + half + 1, e.centre.y + ry + half + 1);
}

namespace {
// The Cairo row of the top of a line of text `height` pixels high whose baseline lies
// `baseline` pixels below its top.
int textTop(const Canvas& canvas, const Glib::TextDescription& t, int height, double baseline) {
    const XY<int> o = canvas.origin();
    const double boxTop = canvas.cairoY(o.y + t.box.y2);
    if (t.baseline) return static_cast<int>(canvas.cairoY(o.y + *t.baseline)) - static_cast<int>(baseline);
    const int spare = t.box.height() - height;
    if (t.valign == Glib::kAlignTop) return static_cast<int>(boxTop);
    if (t.valign == Glib::kAlignBottom) return static_cast<int>(boxTop) + spare;
    return static_cast<int>(boxTop + std::floor(spare / 2.0));
}
} // namespace

void CanvasRenderer::render(const Glib::TextDescription& t) const {
    if (!canvas_ || t.text.empty() || t.box.isEmpty()) return;
    cairo_t* cr = canvas_->context();
    XY<int> o = canvas_->origin();
    // Text painted before is one composite of its kept mask. Plain text painted for
    // the first time is drawn from glyphs kept per font, with no layout, so that a
    // table scrolled to rows never shown costs about what a repaint does.
    Glib::ShapedTextCache& cache = Glib::ShapedTextCache::forThisThread();
    const int shortenTo = t.ellipsize ? t.box.width() : 0;
    std::string key = Glib::ShapedTextCache::keyOf(t.text, t.font, shortenTo);
    Glib::ShapedTextCache::Shaped* shaped = cache.find(key);
    thread_local Glib::TextAdvanceCache::GlyphLine glyphs;
    const bool fresh = !shaped && Glib::TextAdvanceCache::forThisThread().glyphLine(t.text.view(), t.font, glyphs) &&
                       !(t.ellipsize && glyphs.size.x > t.box.width());
    if (!fresh && !shaped) shaped = &cache.get(t.text, t.font, shortenTo);
    const XY<int> size = fresh ? glyphs.size : XY<int>(shaped->logical.width, shaped->logical.height);
    double x = o.x + t.box.x1;
    if (t.align == Glib::kAlignCentreH) x += (t.box.width() - size.x) / 2.0;
    if (t.align == Glib::kAlignRight) x += t.box.width() - size.x;
    // Whole pixels, so that a kept mask of the text is the text.
    const int left = static_cast<int>(std::round(x));
    const int top = textTop(*canvas_, t, size.y, fresh ? glyphs.baseline : shaped->baseline);
    cairo_save(cr);
    cairo_rectangle(cr, o.x + t.box.x1, canvas_->cairoY(o.y + t.box.y2), t.box.width(), t.box.height());
    cairo_clip(cr);
    setColour(t.colour);
    if (fresh) {
        cairo_translate(cr, left, top + glyphs.baseline);
        cairo_set_scaled_font(cr, glyphs.font);
        cairo_show_glyphs(cr, glyphs.glyphs.data(), static_cast<int>(glyphs.glyphs.size()));
        cache.keep(std::move(key), glyphs);
    } else if (cairo_surface_t* mask = Glib::ShapedTextCache::maskOf(*shaped)) {
        cairo_mask_surface(cr, mask, left + shaped->maskOrigin.x, top + shaped->maskOrigin.y);
    } else if (shaped->layout) {
        cairo_move_to(cr, left, top);
        pango_cairo_show_layout(cr, shaped->layout.get());
    } else {
        cairo_translate(cr, left, top);
        cairo_set_scaled_font(cr, shaped->font.get());
        cairo_show_glyphs(cr, shaped->glyphs.data(), static_cast<int>(shaped->glyphs.size()));
    }
    cairo_restore(cr);
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
