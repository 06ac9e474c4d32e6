#pragma once

#include "iImage.h"

#include <cstdint>

typedef struct _cairo_surface cairo_surface_t;

/// A picture whose pixels are in memory: four bytes a pixel, blue, green, red,
/// alpha (premultiplied), rows from the top, `stride` bytes apart.
class iHostImage : public iImage {
public:
    virtual std::uint8_t* data() = 0;
    virtual const std::uint8_t* data() const = 0;
    virtual int stride() const = 0;
    // The pixels as a surface the drawing layer can paint from.
    virtual cairo_surface_t* surface() const = 0;
};
