#include "CornerHighlightWidget.h"

#include "draw/CanvasRenderer.h"

CornerHighlightWidget::CornerHighlightWidget(const InitArgs& args) : Glob(args) {
    Palette p = getPalette();
    p.setColour(Palette::kText, args.colour);
    Glob::setPalette(p);
}

void CornerHighlightWidget::setColour(const Colour& colour) {
    Palette p = getPalette();
    p.setColour(Palette::kText, colour);
    setPalette(p);
    redraw();
}

void CornerHighlightWidget::drawBackground() {
    CanvasRenderer r(canvas());
    const Colour c = getPalette().text(kTextNormal);
    // Rows that each lose a pixel: the square corner at the top left.
    for (int i = 0; i < width(); ++i) r.render(Glib::RectDescription(BoxInt(0, height() - i - 1, width() - i, height() - i), c));
}
