#include "Button.h"

#include "core/enumFromInt.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/fireCallback.h"
#include "image/IconCache.h"

#include <algorithm>

Button::Button(const InitArgs& args) : Clickable(args), callback_(args.callback), label_(args.label) { font_ = UifStd::instance().getDefaultFont(); }

void Button::setLabel(const UIString& label, eRedrawFlag flag) {
    label_ = label;
    if (flag == kRedraw) redraw();
}

void Button::setMessage(const LightweightString<char>& message) { callback_ = WidgetCallback(callback_.callback(), message, callback_.payload()); }

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

Colour Button::getBackCol(button_state state) const { return hasStateColour_[state] ? stateColours_[state] : getPalette().window(); }

void Button::setCols(const Colour& face, const Colour& text) {
    setStateColour(kButtonUp, face);
    textColours_[kButtonUp] = text;
    redraw();
}

void Button::setDownCols(const Colour& face, const Colour& text) {
    setStateColour(kButtonDown, face);
    textColours_[kButtonDown] = text;
    redraw();
}

void Button::setIcon(const LightweightString<wchar_t>& path, eRedrawFlag flag) {
    iconPath_ = path;
    icon_ = path.empty() ? Zn::Ptr<iHostImage>() : IconCache::instance().get(path);
    if (flag == kRedraw) redraw();
}

void Button::setGlyph(std::optional<ArrowGlyph::eDirection> glyph, eRedrawFlag flag) {
    glyph_ = glyph;
    if (flag == kRedraw) redraw();
}

void Button::autoResize() {
    int w = label_.empty() ? 0 : calcSizeFor(label_, getFont()).x;
    if (hasPicture()) w += label_.empty() ? height() : iconBox().x2;
    resize(std::max(w, height()), height());
}

BoxInt Button::iconBox() const {
    const int margin = std::max(2, height() / 8);
    const int side = std::max(0, std::min(width(), height()) - 2 * margin);
    if (label_.empty()) {
        const int x = (width() - side) / 2, y = (height() - side) / 2;
        return BoxInt(x, y, x + side, y + side);
    }
    return BoxInt(margin, margin, margin + side, margin + side);
}

BoxInt Button::labelBox() const {
    if (!hasPicture()) return BoxInt(0, 0, width(), height());
    return BoxInt(iconBox().x2 + UifStd::instance().getWidgetGap(), 0, width(), height());
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
    CanvasRenderer r(canvas());
    if (icon_)
        r.render(Glib::ImageDescription(icon_, icon_->fittedInto(iconBox()), isActive() ? 1.0 : 0.4));
    else if (glyph_)
        ArrowGlyph::draw(r, iconBox(), *glyph_, getPalette().text(isActive() ? kTextNormal : kTextDimmed));
    drawText();
}

void Button::drawText() { drawLabel(label_, labelBox()); }

Colour Button::textColour() const {
    const std::optional<Colour>& own = textColours_[state_];
    return own && isActive() ? *own : getPalette().text(isActive() ? kTextNormal : kTextDimmed);
}

void Button::drawLabel(const UIString& text, const BoxInt& box) const {
    Glib::TextDescription t(box, text.getString(), getFont(), textColour(), align_);
    t.ellipsize = true;
    CanvasRenderer(canvas()).render(t);
}

void Button::clicked() {
    if (latching_) switchState(state_ == kButtonDown ? kButtonUp : kButtonDown, true);
    fireCallback(this, callback_);
}
