#pragma once

#include "TextAdvanceCache.h"

#include <cairo.h>

#include <vector>

/// One line of simple text as the glyphs of one face, placed where Pango places
/// them: painting it needs no layout. Valid while the cache keeps the font. Private
/// to toolkit/draw, like the Cairo types it holds.
struct Glib::TextAdvanceCache::GlyphLine {
    cairo_scaled_font_t* font = nullptr; // the face's, owned by Pango
    std::vector<cairo_glyph_t> glyphs;   // x from the line's left, y on the baseline
    XY<int> size;                        // the logical size in pixels, as measurePixels
    double baseline = 0;                 // pixels from the top of the line
};
