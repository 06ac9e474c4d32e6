#pragma once

#include "Canvas.h"
#include "GlibDescriptions.h"

/// Paints Glib descriptions on a canvas at its current origin and clip, and adds
/// what it painted to the canvas's modified area. Every bottom-up to top-down flip
/// of drawing coordinates is in here.
class CanvasRenderer {
public:
    explicit CanvasRenderer(Canvas* canvas) : canvas_(canvas) {}
    Canvas* canvas() const { return canvas_; }

    void render(const Glib::RectDescription& r) const;
    void render(const Glib::LineDescription& l) const;
    void render(const Glib::EllipseDescription& e) const;
    void render(const Glib::TextDescription& t) const;
    void render(const Glib::ImageDescription& i) const;
    // Fills the whole current clip.
    void fill(const Colour& c) const;

    template <class D>
    static void renderPrimitive(Canvas* canvas, const D& description) {
        if (canvas) CanvasRenderer(canvas).render(description);
    }

private:
    void setColour(const Colour& c) const;
    void noteModified(double x1, double y1, double x2, double y2) const;

    Canvas* canvas_;
};
