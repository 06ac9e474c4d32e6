#include "RibbonWidget.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"

#include <algorithm>

namespace {
constexpr double kDarkening = 0.7;
// Under this many rows wide an area gets the half-size ribbon.
constexpr int kNarrowRows = 5;
} // namespace

RibbonWidget::RibbonWidget(const InitArgs& args) : Glob(args), colour_(args.colour), band_(args.band) {}

void RibbonWidget::setColour(const Colour& colour) {
    colour_ = colour;
    redraw();
}

void RibbonWidget::drawBackground() { draw(CanvasRenderer(canvas()), BoxInt(0, 0, width(), height()), colour_, band_); }

void RibbonWidget::draw(const CanvasRenderer& renderer, const BoxInt& box, const Colour& colour, bool band) {
    const int w = box.width(), h = box.height();
    if (w <= 0 || h <= 0) return;
    const Colour dark = scale(colour, kDarkening);
    // From the colour at the top to the dark shade at the bottom.
    auto shade = [&](int row) { return Colour::mix(colour, dark, static_cast<double>(row) / h); };
    const int fullRows = std::max(0, h - w / 2);
    for (int i = 0; i < fullRows; ++i) renderer.render(Glib::RectDescription(BoxInt(box.x1, box.y2 - i - 1, box.x2, box.y2 - i), shade(i)));
    for (int i = fullRows, k = w / 2; i < h && k > 0; ++i, --k) {
        const int y = box.y2 - i - 1;
        renderer.render(Glib::RectDescription(BoxInt(box.x1, y, box.x1 + k, y + 1), shade(i)));
        renderer.render(Glib::RectDescription(BoxInt(box.x2 - k, y, box.x2, y + 1), shade(i)));
    }
    if (band)
        renderer.render(Glib::RectDescription(BoxInt(box.x1, box.y2 - 3, box.x2, box.y2 - 1), Colour::mix(Colour(1.0, 1.0, 1.0, true), colour, 0.8)));
}

XY<int> RibbonWidget::calcRibbonSize(const XY<int>& area) {
    const UifStd& u = UifStd::instance();
    XY<int> size(3 * u.getWidgetGap(), u.getRowHeight());
    if (area.x < kNarrowRows * u.getRowHeight()) size = {size.x / 2, size.y / 2};
    return size;
}

BoxInt RibbonWidget::calcRibbonArea(const BoxInt& box, unsigned short inset) {
    const XY<int> size = calcRibbonSize({box.width(), box.height()});
    const int x1 = box.x1 + inset + size.x / 3;
    const int y2 = box.y2 - inset;
    return BoxInt(x1, y2 - size.y, x1 + size.x, y2);
}
