#include "Checkbox.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/fireCallback.h"

Checkbox::Checkbox(const InitArgs& args) : Clickable(args), label_(args.label), state_(args.state), callback_(args.callback) {
    font_ = UifStd::instance().getDefaultFont();
}

void Checkbox::setState(bool state, eRedrawFlag flag) {
    state_ = state;
    if (flag == kRedraw) redraw();
}

void Checkbox::setLabel(const LightweightString<wchar_t>& label) {
    label_ = label;
    redraw();
}

int Checkbox::boxSize() { return UifStd::instance().getRowHeight() * 2 / 3; }

int Checkbox::calcWidth(const LightweightString<wchar_t>& label) {
    const UifStd& u = UifStd::instance();
    return boxSize() + 2 * u.getWidgetGap() + Glib::measureText(label, u.getDefaultFont()).x;
}

void Checkbox::clicked() {
    bool wanted = !state_;
    // Unbound, the box is its own data; bound, the adaptor's answer sets the state.
    if (!getDataAdaptor()) setState(wanted);
    const IdStamp me = stamp();
    requestSetNewDataValue(wanted, kFinalChange);
    // A listener of the value may have deleted the box.
    if (EventHandler::valid(this, me)) fireCallback(this, callback_);
}

void Checkbox::drawBackground() {
    Glob::drawBackground();
    const Palette& p = getPalette();
    const int side = boxSize(), y = (height() - side) / 2, gap = UifStd::instance().getWidgetGap();
    const BoxInt box(0, y, side, y + side);
    CanvasRenderer r(canvas());
    Glib::RectDescription well(box, isActive() ? p.childWindow(kChildEntry) : p.childWindow(kChildInactive));
    well.outline = hasKbdFocus() ? p.selection(kSelectionFocused) : (isHovered() ? p.text() : p.window(kShadeDarker));
    well.outlineWidth = hasKbdFocus() ? 2.0 : 1.0;
    well.cornerRadius = 2.0;
    r.render(well);
    if (state_) {
        // A tick from the lower left, down to the bottom, up to the top right.
        Colour ink = isActive() ? p.selection(kSelectionFocused) : p.text(kTextDimmed);
        double s = side, lw = std::max(2.0, s / 7.0);
        r.render(Glib::LineDescription({s * 0.22, y + s * 0.52}, {s * 0.42, y + s * 0.28}, ink, lw));
        r.render(Glib::LineDescription({s * 0.42, y + s * 0.28}, {s * 0.80, y + s * 0.76}, ink, lw));
    }
    Glib::TextDescription t(BoxInt(side + gap, 0, width(), height()), label_, getFont(), p.text(isActive() ? kTextNormal : kTextDimmed));
    t.ellipsize = true;
    r.render(t);
}
