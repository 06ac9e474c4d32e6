#pragma once

#include "core/Box.h"
#include "core/Colour.h"

#include <cstdint>
#include <vector>

namespace Glib {
struct FontDesc;
}

typedef struct _cairo cairo_t;
typedef struct _cairo_surface cairo_surface_t;

/// The drawing surface of one top-level glob and all its children: an ARGB32 image
/// in memory. Coordinates are bottom-up, (0, 0) the bottom-left pixel; the flip to
/// the image's top-down rows happens only in here and in CanvasRenderer.
///
/// Painting happens relative to an origin (the bottom left of the glob being drawn)
/// and inside a clip box; pushOrigin/popOrigin nest as the glob tree is walked.
class Canvas {
public:
    Canvas(int width, int height);
    ~Canvas();
    Canvas(const Canvas&) = delete; // owns a Cairo surface
    Canvas& operator=(const Canvas&) = delete;

    int width() const { return width_; }
    int height() const { return height_; }
    // Makes a new, cleared image of the given size; sizes below 1 become 1.
    void resize(int width, int height);

    // The font that text in `desc` is painted in: the description with the
    // defaults filled in, so that measures made with it match what is painted.
    static Glib::FontDesc createFont(const Glib::FontDesc& desc);

    cairo_t* context() const { return cr_; }
    cairo_surface_t* surface() const { return surface_; }

    // Drawing from here on is relative to `origin` (in canvas coordinates) and
    // clipped to `clip` (in canvas coordinates) as well as to the current clip.
    void pushOrigin(XY<int> origin, const BoxInt& clip);
    void popOrigin();
    XY<int> origin() const { return origin_; }
    BoxInt clip() const { return clip_; }

    // The top-down image row of a bottom-up canvas y.
    double cairoY(double y) const { return height_ - y; }

    // The 0xAARRGGBB value of a pixel (canvas coordinates, bottom-up); 0 outside.
    std::uint32_t pixel(int x, int y) const;
    // A pixel as Cairo stores it, with premultiplied alpha, as straight 0xAARRGGBB.
    static std::uint32_t straightAlpha(std::uint32_t premultiplied);

    // Areas painted since the last takeModifiedArea(), in canvas coordinates.
    void addModifiedArea(const BoxInt& box);
    BoxInt modifiedArea() const { return modified_; }
    BoxInt takeModifiedArea();
    // A counter that changes whenever the canvas is painted, so that a compositor
    // can tell a changed canvas from an unchanged one.
    std::uint64_t generation() const { return generation_; }

    // refresh_off/refresh_on: while off, painting is still done but not shown.
    void refreshOff() { ++refreshOff_; }
    void refreshOn() {
        if (refreshOff_ > 0) --refreshOff_;
    }
    bool isRefreshOn() const { return refreshOff_ == 0; }

private:
    void create();
    void destroy();
    void applyClip();

    int width_, height_;
    cairo_surface_t* surface_ = nullptr;
    cairo_t* cr_ = nullptr;
    XY<int> origin_;
    BoxInt clip_;
    struct Saved {
        XY<int> origin;
        BoxInt clip;
    };
    std::vector<Saved> stack_;
    BoxInt modified_;
    std::uint64_t generation_ = 0;
    int refreshOff_ = 0;
};

void refresh_off(Canvas* c);
void refresh_on(Canvas* c);
