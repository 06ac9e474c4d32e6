#include "MultiLineTextBox.h"

#include "draw/TextAdvanceCache.h"

#include <algorithm>

MultiLineTextBox::MultiLineTextBox(const InitArgs& args) : TextBoxBase(args, args.text.getString()) {}

int MultiLineTextBox::calcHeightForLines(int lines, int fontSize, int margin) {
    Glib::FontDesc font = Glib::FontDesc().resolved();
    if (fontSize > 0) font = font.withSize(fontSize);
    int line = Glib::TextLayout::emptyLineHeight(font);
    return std::max(1, lines) * line + 2 * (margin >= 0 ? margin : defaultMargin());
}

int MultiLineTextBox::calcWrapWidth(int boxWidth) { return std::max(1, boxWidth - 2 * std::min(defaultMargin(), boxWidth / 2) - caretWidth()); }

int MultiLineTextBox::wrapWidth() const { return std::max(1, textArea().width() - caretWidth()); }

XY<int> MultiLineTextBox::textOrigin() const { return {textArea().x1, textArea().y2 + scrollY_}; }

int MultiLineTextBox::maxScroll() const { return std::max(0, layout().height() - textArea().height()); }

int MultiLineTextBox::linesPerPage() const {
    int line = layout().lineBox(0).height;
    return std::max(1, textArea().height() / std::max(1, line) - 1);
}

void MultiLineTextBox::setScrollOffset(int pixels) {
    int clamped = std::clamp(pixels, 0, maxScroll());
    if (clamped == scrollY_) return;
    scrollY_ = clamped;
    redraw();
}

void MultiLineTextBox::scrollToCaret() {
    if (fitsWithoutScrolling()) {
        scrollY_ = 0;
        return;
    }
    Glib::TextLayout::Rect c = layout().caret(getCursorPosition());
    int view = textArea().height();
    if (c.top < scrollY_) scrollY_ = c.top;
    if (c.top + c.height > scrollY_ + view) scrollY_ = c.top + c.height - view;
    scrollY_ = std::clamp(scrollY_, 0, maxScroll());
}

// Whether every line shows, told from cached advances where the text allows, so
// that a box being filled need not shape its whole text. No line is taller than
// the tallest face in it or the font's own ascent and descent, rounded up apart.
bool MultiLineTextBox::fitsWithoutScrolling() const {
    const LightweightString<wchar_t> text = displayText();
    Glib::TextAdvanceCache& cache = Glib::TextAdvanceCache::forThisThread();
    XY<int> line = cache.measurePixels(text.view(), getFont());
    if (line.x < 0) return false;
    int lines = cache.countLines(text.view(), wrapWidth(), getFont());
    return lines > 0 && lines * std::max(line.y, Glib::fontHeight(getFont())) <= textArea().height();
}

bool MultiLineTextBox::moveCaretVertically(int lines, bool extend) {
    const Glib::TextLayout& l = layout();
    std::size_t caret = getCursorPosition();
    if (caret != goalCaret_) goalX_ = l.caret(caret).x;
    int target = l.lineOf(caret) + lines;
    std::size_t index = target < 0 ? 0 : target >= l.numLines() ? getString().size() : l.indexAt({goalX_, l.lineBox(target).top});
    moveCaret(index, extend);
    goalCaret_ = getCursorPosition();
    return true;
}

std::size_t MultiLineTextBox::homeOf(std::size_t index) const { return layout().lineStart(layout().lineOf(index)); }

std::size_t MultiLineTextBox::endOf(std::size_t index) const {
    const Glib::TextLayout& l = layout();
    int line = l.lineOf(index);
    std::size_t end = l.lineEnd(line);
    // At a soft break the end of one line is the start of the next, where the
    // caret would show; stop before the character the line was broken after.
    if (line + 1 < l.numLines() && end == l.lineStart(line + 1) && end > l.lineStart(line)) return l.nextCaretStop(end, -1);
    return end;
}

int MultiLineTextBox::handleReturn() {
    if (keyModifiers() & Modifiers::Control) return TextBoxBase::handleReturn();
    insertText(L"\n");
    return 1;
}

int MultiLineTextBox::handleKeyboardEvent(int keyCode) {
    const int key = Keys::plain(keyCode);
    if ((key == Keys::PageUp || key == Keys::PageDown) && isEditable() && isActive()) {
        moveCaretVertically(key == Keys::PageUp ? -linesPerPage() : linesPerPage(), keyModifiers() & Modifiers::Shift);
        return 1;
    }
    return TextBoxBase::handleKeyboardEvent(keyCode);
}

int MultiLineTextBox::handleMouseEvent(const Event& e) {
    if (mouse_wheel_event(e) && maxScroll() > 0) {
        // Three lines a notch; a positive delta rolls towards the top of the text.
        setScrollOffset(scrollY_ - e.wheelDelta() * 3 * layout().lineBox(0).height);
        return 1;
    }
    return TextBoxBase::handleMouseEvent(e);
}
