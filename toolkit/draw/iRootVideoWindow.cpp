#include "iRootVideoWindow.h"

#include "Canvas.h"
#include "CanvasRenderer.h"

bool iRootVideoWindow::hasRenderTarget() const { return renderTarget() && !targetArea().isEmpty(); }

int iRootVideoWindow::paint(const std::vector<Glib::ImageDescription>& frame) {
    if (!hasRenderTarget()) return 0;
    Canvas* canvas = renderTarget();
    BoxInt area = targetArea();
    canvas->pushOrigin({area.x1, area.y1}, area);
    // The canvas counts what is painted on it, which brings the frame to the screen
    // without any glob's redraw.
    CanvasRenderer renderer(canvas);
    int painted = 0;
    for (const Glib::ImageDescription& d : frame) {
        if (!d.image || d.image->width() <= 0 || d.image->height() <= 0) continue;
        renderer.render(d);
        ++painted;
    }
    canvas->popOrigin();
    return painted;
}

bool iRootVideoWindow::repaintLastFrame() { return paint(lastFrame_) > 0; }

int iRootVideoWindow::PrimitivesRenderer::renderMulti(const Glib::ImageDescription* descriptions, std::size_t count) {
    if (!descriptions) count = 0;
    window_.lastFrame_.assign(descriptions, descriptions + count);
    return window_.paint(window_.lastFrame_);
}
