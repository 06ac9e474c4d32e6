#pragma once

#include "GlibDescriptions.h"
#include "core/Box.h"

#include <cstddef>
#include <vector>

class Canvas;

/// A window that video is shown in: a box of a canvas that frames are painted into
/// directly, apart from the redraws of the globs around it. The window keeps the
/// last frame, so that its owner can put it back after painting over it.
class iRootVideoWindow {
public:
    virtual ~iRootVideoWindow() = default;

    // The size of the picture area, (0, 0) when there is none.
    virtual XY<int> getSize() const = 0;
    // The canvas that frames go to, and the box of it (in canvas coordinates); a
    // window without a canvas or with an empty box has no render target.
    virtual Canvas* renderTarget() const = 0;
    virtual BoxInt targetArea() const = 0;
    bool hasRenderTarget() const;

    // Paints the last frame again; false when there is none or nowhere to paint it.
    bool repaintLastFrame();
    bool hasFrame() const { return !lastFrame_.empty(); }

    // Paints descriptions into a window, their boxes in the window's own
    // coordinates ((0, 0) its bottom left) and cut off at its edges.
    class PrimitivesRenderer {
    public:
        explicit PrimitivesRenderer(iRootVideoWindow& window) : window_(window) {}
        // Paints `count` descriptions as one frame, which the window keeps; returns
        // how many pictures were painted (a null or empty picture is passed over).
        int renderMulti(const Glib::ImageDescription* descriptions, std::size_t count);

    private:
        iRootVideoWindow& window_;
    };

private:
    int paint(const std::vector<Glib::ImageDescription>& frame);

    std::vector<Glib::ImageDescription> lastFrame_;
};
