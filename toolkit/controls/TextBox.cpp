#include "TextBox.h"

#include "draw/TextAdvanceCache.h"
#include "draw/UifStd.h"

#include <algorithm>

TextBox::TextBox(const InitArgs& args) : TextBoxBase(args, args.text.getString()) {}

int TextBox::calcHeight(const Glib::FontDesc& font) { return Glib::TextLayout::emptyLineHeight(font) + 2 * defaultMargin(); }

void TextBox::setDisplaySuffix(const LightweightString<wchar_t>& suffix) {
    suffix_ = suffix;
    scrollToCaret();
    redraw();
}

int TextBox::suffixWidth() const {
    if (suffix_.empty() || getString().empty()) return 0;
    return Glib::measureText(suffix_, getFont()).x + UifStd::instance().getRowGap();
}

void TextBox::setDataAdaptor(const Zn::Ptr<ValAdaptorBase<LightweightString<wchar_t>>>& adaptor) {
    ValWidget::setDataAdaptor(adaptor);
    if (adaptor) adaptor->forceWidgetUpdate(kRedraw);
}

XY<int> TextBox::textOrigin() const {
    BoxInt a = textArea();
    const Glib::TextLayout& l = layout();
    int content = l.width() + suffixWidth() + caretWidth();
    int x = a.x1;
    if (content > a.width()) {
        // Unfocused, a long text shows its beginning.
        if (hasKbdFocus()) x -= scrollX_;
    } else if (getAlignment().horizontal == Glib::kAlignRight) {
        x = a.x2 - content;
    } else if (getAlignment().horizontal == Glib::kAlignCentreH) {
        x = a.x1 + (a.width() - content) / 2;
    }
    int h = l.height(), top = a.y1 + (a.height() + h) / 2;
    if (getAlignment().vertical == Glib::kAlignTop) top = a.y2;
    if (getAlignment().vertical == Glib::kAlignBottom) top = a.y1 + h;
    return {x, top};
}

void TextBox::scrollToCaret() {
    BoxInt a = textArea();
    // Text that fits needs no scrolling, and cached advances tell so without shaping
    // it: a panel filling hundreds of boxes from their values lays none of them out.
    XY<int> size = Glib::TextAdvanceCache::forThisThread().measurePixels(displayText().view(), getFont());
    if (size.x >= 0 && size.x + suffixWidth() + caretWidth() <= a.width()) {
        scrollX_ = 0;
        return;
    }
    const Glib::TextLayout& l = layout();
    int view = a.width() - caretWidth();
    int caretX = l.caret(getCursorPosition()).x;
    if (caretX < scrollX_) scrollX_ = caretX;
    if (caretX > scrollX_ + view) scrollX_ = caretX - view;
    // No empty space at the right end while there is text scrolled off to the left.
    scrollX_ = std::clamp(scrollX_, 0, std::max(0, l.width() + suffixWidth() + caretWidth() - a.width()));
}

void TextBox::commit() {
    LightweightString<wchar_t> value = getString();
    TextBoxBase::commit();
    requestSetNewDataValue(value, kFinalChange);
}

void TextBox::drawText() {
    TextBoxBase::drawText();
    int gap = suffixWidth();
    if (gap == 0) return;
    Glib::TextLayout suffix(suffix_, getFont());
    XY<int> at = toGlob({layout().width() + UifStd::instance().getRowGap(), 0});
    suffix.render(canvas(), at.x, at.y, insideFrame(), getPalette().text(kTextDimmed));
}
