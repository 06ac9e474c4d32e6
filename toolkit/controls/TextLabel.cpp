#include "TextLabel.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"

TextLabel::TextLabel(const InitArgs& args) : Glob(args), text_(args.text) { setFont(args.font); }

void TextLabel::setText(const UIString& text, eRedrawFlag flag) {
    text_ = text;
    if (flag == kRedraw) redraw();
}

void TextLabel::setAlignment(Glib::eHorizontalAlign align) {
    align_ = align;
    redraw();
}

void TextLabel::fixSize(int width) { resize(std::max(0, width), height()); }

XY<int> TextLabel::calcSizeFor(const UIString& text, const Glib::FontDesc& font) {
    XY<int> size = Glib::measureText(text.getString(), font.resolved());
    return XY<int>(size.x + 2 * UifStd::instance().getWidgetGap(), std::max(size.y, UifStd::instance().getRowHeight()));
}

void TextLabel::drawBackground() {
    Glob::drawBackground();
    int gap = UifStd::instance().getWidgetGap();
    Glib::TextDescription t(BoxInt(gap, 0, width() - gap, height()), text_.getString(), getFont(),
                            getPalette().text(isActive() ? kTextNormal : kTextDimmed), align_);
    t.ellipsize = true;
    CanvasRenderer(canvas()).render(t);
}
