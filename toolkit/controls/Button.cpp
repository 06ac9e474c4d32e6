#include "Button.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/fireCallback.h"

Button::Button(const InitArgs& args) : Clickable(args), callback_(args.callback), label_(args.label) { font_ = UifStd::instance().getDefaultFont(); }

void Button::setLabel(const UIString& label, eRedrawFlag flag) {
    label_ = label;
    if (flag == kRedraw) redraw();
}

void Button::setStyle(int style, int style2) {
    style_ = style;
    style2_ = style2;
    redraw();
}

XY<int> Button::calcSizeFor(const UIString& label, const Glib::FontDesc& font) {
    const UifStd& u = UifStd::instance();
    XY<int> text = Glib::measureText(label.getString(), font.resolved());
    return XY<int>(text.x + 4 * u.getWidgetGap(), calcHeight());
}

void Button::setLatching(bool latching, bool latched) {
    latching_ = latching;
    setLatched(latching && latched);
}

void Button::setLatched(bool latched, eRedrawFlag flag) {
    latched_ = latching_ && latched;
    if (flag == kRedraw) redraw();
}

int Button::calcHeight() { return UifStd::instance().getRowHeight(); }

void Button::drawBackground() {
    Glob::drawBackground();
    drawFace(BoxInt(0, 0, width(), height()), style_ == kFlat, latched_);
    drawLabel(label_, labelBox());
}

void Button::drawLabel(const UIString& text, const BoxInt& box) const {
    Colour ink = getPalette().text(isActive() ? kTextNormal : kTextDimmed);
    Glib::TextDescription t(box, text.getString(), getFont(), ink, Glib::kAlignCentreH);
    t.ellipsize = true;
    CanvasRenderer(canvas()).render(t);
}

void Button::clicked() {
    if (latching_) setLatched(!latched_);
    fireCallback(this, callback_);
}
