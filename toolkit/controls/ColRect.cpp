#include "ColRect.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/fireCallback.h"

#include <algorithm>
#include <cmath>

ColRect::ColRect(const InitArgs& args) : Clickable(args), colour_(args.colour), callback_(args.callback), outline_(args.outline) {}

void ColRect::setColour(const ColourData& colour, eRedrawFlag flag) {
    colour_ = colour;
    if (flag == kRedraw) redraw();
}

Colour ColRect::displayColour() const {
    auto unit = [](double v) { return std::isfinite(v) ? std::clamp(v, 0.0, 1.0) : 0.0; };
    return Colour(unit(colour_.getRed()), unit(colour_.getGreen()), unit(colour_.getBlue()), unit(colour_.getAlpha()));
}

void ColRect::setOutline(bool outline, eRedrawFlag flag) {
    outline_ = outline;
    if (flag == kRedraw) redraw();
}

int ColRect::react(const Event& e) {
    if (!clickable_) return 0;
    return Clickable::react(e);
}

void ColRect::clicked() { fireCallback(this, callback_); }

void ColRect::drawBackground() {
    const Palette& p = getPalette();
    CanvasRenderer r(canvas());
    const BoxInt all(0, 0, width(), height());
    Colour c = displayColour();
    if (c.alpha() < 1.0) {
        // A chequer of two light greys behind a translucent colour.
        r.render(Glib::RectDescription(all, Colour(0.8, 0.8, 0.8)));
        const int cell = std::max(2, UifStd::instance().getRowHeight() / 4);
        for (int y = 0; y < height(); y += cell)
            for (int x = ((y / cell) % 2) * cell; x < width(); x += 2 * cell)
                r.render(Glib::RectDescription(BoxInt(x, y, std::min(x + cell, width()), std::min(y + cell, height())), Colour(0.6, 0.6, 0.6)));
    }
    // An inactive swatch is shown half way to the window colour.
    if (!isActive()) c = Colour::mix(c, p.window(), 0.5);
    r.render(Glib::RectDescription(all, c));
    if (outline_ || hasKbdFocus()) {
        Glib::RectDescription frame(all, Colour());
        frame.filled = false;
        frame.outline = hasKbdFocus() ? p.selection(kSelectionFocused) : (isHovered() && clickable_ ? p.text() : p.window(kShadeDarkest));
        frame.outlineWidth = (hasKbdFocus() ? 2.0 : 1.0) * UifStd::instance().getScale();
        r.render(frame);
    }
}
