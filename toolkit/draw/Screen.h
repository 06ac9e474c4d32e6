#pragma once

#include "core/Box.h"
#include "core/Colour.h"
#include "core/LightweightString.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class Canvas;

/// The one screen surface on which top-level canvases are composited in z-order.
/// It exists headless too: screenshots, the eye dropper and tests read it, and a
/// window backend shows it.
class Screen {
public:
    /// One canvas to composite, and where and how; the screen does not own the canvas.
    struct Layer {
        const Canvas* canvas;
        XY<int> position; // bottom left on the screen
        double opacity = 1.0;
        bool shadow = false;
    };

    Screen(int width, int height);
    ~Screen();
    Screen(const Screen&) = delete; // owns a Cairo surface
    Screen& operator=(const Screen&) = delete;

    int width() const { return width_; }
    int height() const { return height_; }
    BoxInt bounds() const { return BoxInt(0, 0, width_, height_); }
    void resize(int width, int height);

    // Paints the desktop colour, then each layer in order, bottom first.
    void composite(const std::vector<Layer>& layers);
    const Colour& desktopColour() const { return desktop_; }
    void setDesktopColour(const Colour& c) { desktop_ = c; }

    // 0xAARRGGBB of a screen pixel, bottom-up; 0 outside the screen.
    std::uint32_t pixel(int x, int y) const;
    // The rows of the screen, top row first, 4 bytes a pixel (blue, green, red, alpha).
    const unsigned char* data() const;
    int stride() const;

    // Writes the screen, or a part of it, as PNG; the file is written beside the
    // target and renamed over it. False when it could not be written.
    bool writePNG(const LightweightString<char>& path) const;
    bool writePNG(const LightweightString<char>& path, const BoxInt& area) const;

private:
    int width_, height_;
    struct Surface;
    std::unique_ptr<Surface> surface_;
    Colour desktop_{0.12, 0.12, 0.13};
};

// Writes one canvas as PNG, atomically as Screen::writePNG does.
bool writeCanvasPNG(const Canvas& canvas, const LightweightString<char>& path, const BoxInt* area = nullptr);
