#include "PushButton.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"

void PushButton::setDefault(bool isDefault) {
    default_ = isDefault;
    redraw();
}

void PushButton::drawBackground() {
    Button::drawBackground();
    if (!default_ || !isActive()) return;
    // A bar in the do-it colour along the bottom marks the default action.
    int bar = std::max(2, static_cast<int>(2 * UifStd::instance().getScale()));
    int inset = std::max(3, height() / 6);
    CanvasRenderer(canvas()).render(Glib::RectDescription(BoxInt(inset, 2, width() - inset, 2 + bar), getPalette().doIt()));
}
