#include "Button.h"

#include "core/enumFromInt.h"

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

void Button::setLatched(bool latched, eRedrawFlag flag) { switchState(latching_ && latched ? kButtonDown : kButtonUp, flag == kRedraw); }

void Button::setState(int state, int redraw) { switchState(enumFromInt(state, kButtonUp, kButtonDown, kButtonUp), redraw != 0); }

void Button::switchState(button_state state, bool redraw) {
    state_ = state;
    if (redraw) this->redraw();
}

void Button::setStateColour(button_state state, const Colour& colour) {
    stateColours_[state] = colour;
    hasStateColour_[state] = true;
}

int Button::calcHeight() { return UifStd::instance().getRowHeight(); }

void Button::drawBackground() {
    Glob::drawBackground();
    const bool down = state_ == kButtonDown;
    if (hasStateColour_[state_] && isActive() && !isPressed()) {
        Glib::RectDescription face(BoxInt(0, 0, width(), height()), stateColours_[state_]);
        face.cornerRadius = 3.0 * UifStd::instance().getScale();
        CanvasRenderer(canvas()).render(face);
    } else {
        drawFace(BoxInt(0, 0, width(), height()), style_ != kRaised, down);
    }
    drawLabel(label_, labelBox());
}

void Button::drawLabel(const UIString& text, const BoxInt& box) const {
    Colour ink = getPalette().text(isActive() ? kTextNormal : kTextDimmed);
    Glib::TextDescription t(box, text.getString(), getFont(), ink, Glib::kAlignCentreH);
    t.ellipsize = true;
    CanvasRenderer(canvas()).render(t);
}

void Button::clicked() {
    if (latching_) switchState(state_ == kButtonDown ? kButtonUp : kButtonDown, true);
    fireCallback(this, callback_);
}
