#include "CodeEditor.h"

#include "ScrollBar.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace {

// Cached line layouts beyond this many are dropped, so jumping through a long
// text does not keep every line it passed.
constexpr std::size_t kMaxCachedLines = 400;
// A tab already in the text is counted this many columns wide when the width of
// the longest line is estimated, as Pango places tab stops eight spaces apart.
constexpr std::size_t kTabColumns = 8;
constexpr int kWheelLines = 3;
constexpr int kArrowColumns = 4;

int digits(int n) {
    int d = 1;
    while (n >= 10) n /= 10, ++d;
    return d;
}

} // namespace

CodeEditor::CodeEditor(const InitArgs& args) : TextBoxBase(args, args.text) {
    setFont(UifStd::instance().getMonospaceFont());
    for (ScrollBar::eOrientation o : {ScrollBar::kVertical, ScrollBar::kHorizontal}) {
        ScrollBar::InitArgs bar(o, 1);
        bar.canvas = canvas();
        bar.palette = getPalette();
        ScrollBar* b = new ScrollBar(bar);
        addChild(b, BottomLeft(0, 0));
        (o == ScrollBar::kVertical ? vbar_ : hbar_) = b;
    }
    layoutScrollBars();
    setCursorPosition(0);
}

CodeEditor::~CodeEditor() = default;

void CodeEditor::setText(const LightweightString<wchar_t>& text) {
    setString(text, kNoRedraw);
    setScrollOffset({0, 0});
    setCursorPosition(0);
}

// ---- lines --------------------------------------------------------------------

void CodeEditor::invalidateLayout() {
    starts_.clear();
    metrics_.reset();
    TextBoxBase::invalidateLayout();
}

void CodeEditor::setFont(const Glib::FontDesc& font) {
    lineLayouts_.clear();
    TextBoxBase::setFont(font);
}

void CodeEditor::handleUIChange(unsigned int what) {
    lineLayouts_.clear();
    TextBoxBase::handleUIChange(what);
}

const std::vector<std::size_t>& CodeEditor::starts() const {
    if (!starts_.empty()) return starts_;
    const LightweightString<wchar_t>& text = getString();
    starts_.push_back(0);
    std::size_t columns = 0;
    longestLine_ = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'\n') {
            starts_.push_back(i + 1);
            columns = 0;
            continue;
        }
        columns += text[i] == L'\t' ? kTabColumns : 1;
        longestLine_ = std::max(longestLine_, columns);
    }
    return starts_;
}

int CodeEditor::numLines() const { return static_cast<int>(starts().size()); }

int CodeEditor::lineOf(std::size_t index) const {
    const std::vector<std::size_t>& s = starts();
    auto after = std::upper_bound(s.begin(), s.end(), std::min(index, getString().size()));
    return static_cast<int>(after - s.begin()) - 1;
}

std::size_t CodeEditor::lineStart(int line) const { return starts()[std::clamp(line, 0, numLines() - 1)]; }

std::size_t CodeEditor::lineEnd(int line) const {
    line = std::clamp(line, 0, numLines() - 1);
    return line + 1 < numLines() ? starts()[line + 1] - 1 : getString().size();
}

int CodeEditor::columnOf(std::size_t index) const {
    index = std::min(index, getString().size());
    return static_cast<int>(index - lineStart(lineOf(index)));
}

std::size_t CodeEditor::indexOf(int line, int column) const {
    std::size_t start = lineStart(line);
    return start + std::min<std::size_t>(std::max(0, column), lineEnd(line) - start);
}

const Glib::TextLayout& CodeEditor::lineLayout(int line) const {
    std::size_t start = lineStart(line);
    std::wstring text(getString().view().substr(start, lineEnd(line) - start));
    auto found = lineLayouts_.find(text);
    if (found != lineLayouts_.end()) return *found->second;
    if (lineLayouts_.size() >= kMaxCachedLines) lineLayouts_.clear();
    auto made = std::make_unique<Glib::TextLayout>(LightweightString<wchar_t>(text), getFont());
    return *lineLayouts_.emplace(std::move(text), std::move(made)).first->second;
}

const CodeEditor::Metrics& CodeEditor::metrics() const {
    if (!metrics_) {
        // Ten columns measured together, so that a fractional advance does not round away.
        Glib::TextLayout probe(L"0000000000", getFont());
        metrics_ = std::make_unique<Metrics>(Metrics{std::max(1, probe.height()), std::max(1, probe.caret(10).x / 10)});
    }
    return *metrics_;
}

int CodeEditor::lineHeight() const { return metrics().lineHeight; }

int CodeEditor::columnWidth() const { return metrics().columnWidth; }

// ---- caret --------------------------------------------------------------------

Glib::TextLayout::Rect CodeEditor::caretRect(std::size_t index) const {
    index = std::min(index, getString().size());
    int line = lineOf(index);
    Glib::TextLayout::Rect r = lineLayout(line).caret(index - lineStart(line));
    r.top = line * lineHeight();
    r.height = lineHeight();
    return r;
}

BoxInt CodeEditor::caretBox() const {
    BoxInt b = layoutBox(caretRect(getCursorPosition()));
    b.x2 = b.x1 + caretWidth();
    return b;
}

std::size_t CodeEditor::nextCaretStop(std::size_t index, int direction) const {
    index = std::min(index, getString().size());
    int line = lineOf(index);
    std::size_t start = lineStart(line), end = lineEnd(line);
    if (direction > 0) return index >= end ? std::min(index + 1, getString().size()) : start + lineLayout(line).nextCaretStop(index - start, 1);
    if (direction < 0) return index <= start ? (index > 0 ? index - 1 : 0) : start + lineLayout(line).nextCaretStop(index - start, -1);
    return index;
}

bool CodeEditor::isCaretStop(std::size_t index) const {
    if (index > getString().size()) return false;
    int line = lineOf(index);
    return lineLayout(line).isCaretStop(index - lineStart(line));
}

std::size_t CodeEditor::indexAtPoint(XY<int> globPoint) const {
    XY<int> p = toLayout(globPoint);
    int line = std::clamp(p.y < 0 ? 0 : p.y / lineHeight(), 0, numLines() - 1);
    return lineStart(line) + lineLayout(line).indexAt({p.x, 0});
}

bool CodeEditor::moveCaretVertically(int lines, bool extend) {
    std::size_t caret = getCursorPosition();
    if (caret != goalCaret_) goalX_ = caretRect(caret).x;
    int target = lineOf(caret) + lines;
    std::size_t index = target < 0 ? 0 : target >= numLines() ? getString().size() : lineStart(target) + lineLayout(target).indexAt({goalX_, 0});
    moveCaret(index, extend);
    goalCaret_ = getCursorPosition();
    return true;
}

std::size_t CodeEditor::homeOf(std::size_t index) const {
    int line = lineOf(index);
    std::size_t start = lineStart(line), end = lineEnd(line), text = start;
    const LightweightString<wchar_t>& s = getString();
    while (text < end && (s[text] == L' ' || s[text] == L'\t')) ++text;
    return index == text ? start : text;
}

std::size_t CodeEditor::endOf(std::size_t index) const { return lineEnd(lineOf(index)); }

// ---- editing ------------------------------------------------------------------

int CodeEditor::handleReturn() {
    if (keyModifiers() & Modifiers::Control) return TextBoxBase::handleReturn();
    // The new line takes the indent of the one broken, as far as the caret reaches into it.
    std::size_t from = selectionStart(), start = lineStart(lineOf(from)), indent = start;
    const LightweightString<wchar_t>& s = getString();
    while (indent < from && (s[indent] == L' ' || s[indent] == L'\t')) ++indent;
    LightweightString<wchar_t> insert(L"\n");
    insert += s.substr(start, indent - start);
    insertText(insert);
    return 1;
}

void CodeEditor::insertTab() {
    int column = columnOf(selectionStart());
    insertText(LightweightString<wchar_t>(static_cast<std::size_t>(kTabWidth - column % kTabWidth), L' '));
}

int CodeEditor::handleKeyboardEvent(int keyCode) {
    if (!isEditable() || !isActive()) return 0;
    const unsigned mods = keyModifiers();
    const int key = Keys::plain(keyCode);
    switch (key) {
    case Keys::Tab:
        if (mods & Modifiers::All) return 0;
        insertTab();
        return 1;
    case Keys::PageUp:
    case Keys::PageDown: moveCaretVertically(key == Keys::PageUp ? -linesPerPage() : linesPerPage(), mods & Modifiers::Shift); return 1;
    case Keys::Escape:
        // Going back to the text as it was when the focus came would throw away a
        // whole session of editing; undo is the way back here.
        fireCallback(kEscapePressed);
        return 0;
    default: return TextBoxBase::handleKeyboardEvent(keyCode);
    }
}

// ---- scrolling ----------------------------------------------------------------

int CodeEditor::contentWidth() const {
    starts();
    return static_cast<int>(longestLine_) * columnWidth() + caretWidth();
}

XY<int> CodeEditor::maxScroll() const {
    BoxInt view = textView();
    return {std::max(0, contentWidth() - view.width()), std::max(0, numLines() * lineHeight() - view.height())};
}

int CodeEditor::linesPerPage() const { return std::max(1, textView().height() / lineHeight() - 1); }

void CodeEditor::setScrollOffset(XY<int> pixels) {
    XY<int> most = maxScroll();
    XY<int> clamped{std::clamp(pixels.x, 0, most.x), std::clamp(pixels.y, 0, most.y)};
    if (clamped == scroll_) return;
    scroll_ = clamped;
    syncScrollBars();
    redraw();
}

void CodeEditor::scrollToCaret() {
    Glib::TextLayout::Rect c = caretRect(getCursorPosition());
    BoxInt view = textView();
    int right = c.x + caretWidth();
    if (c.top < scroll_.y) scroll_.y = c.top;
    if (c.top + c.height > scroll_.y + view.height()) scroll_.y = c.top + c.height - view.height();
    if (c.x < scroll_.x) scroll_.x = c.x;
    if (right > scroll_.x + view.width()) scroll_.x = right - view.width();
    // The longest line is an estimate; a caret past it still comes into view.
    XY<int> most = maxScroll();
    scroll_.x = std::clamp(scroll_.x, 0, std::max(most.x, right - view.width()));
    scroll_.y = std::clamp(scroll_.y, 0, most.y);
    syncScrollBars();
}

void CodeEditor::syncScrollBars() {
    if (!vbar_ || !hbar_) return;
    BoxInt view = textView();
    XY<int> most = maxScroll();
    int height = numLines() * lineHeight();
    vbar_->setThumbSize(height > 0 ? double(view.height()) / height : 1.0);
    vbar_->setThumbPos(most.y > 0 ? double(scroll_.y) / most.y : 0.0);
    int width = std::max(contentWidth(), 1);
    hbar_->setThumbSize(double(view.width()) / width);
    hbar_->setThumbPos(most.x > 0 ? double(scroll_.x) / most.x : 0.0);
}

int CodeEditor::handleMouseEvent(const Event& e) {
    if (mouse_wheel_event(e) && e.wheelDelta() != 0) {
        // A positive delta rolls towards the top, or with Shift towards the left.
        int notches = -e.wheelDelta() * kWheelLines;
        if (e.modifiers() & Modifiers::Shift)
            setScrollOffset({scroll_.x + notches * columnWidth(), scroll_.y});
        else
            setScrollOffset({scroll_.x, scroll_.y + notches * lineHeight()});
        return 1;
    }
    return TextBoxBase::handleMouseEvent(e);
}

int CodeEditor::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if ((sender != vbar_ && sender != hbar_) || !ScrollBar::isScrollBarMsg(message)) return TextBoxBase::handleMessageEvent(message, sender);
    XY<int> most = maxScroll();
    if (message == ScrollBar::upButtonPressedMsg)
        setScrollOffset({scroll_.x, scroll_.y - lineHeight()});
    else if (message == ScrollBar::downButtonPressedMsg)
        setScrollOffset({scroll_.x, scroll_.y + lineHeight()});
    else if (message == ScrollBar::leftButtonPressedMsg)
        setScrollOffset({scroll_.x - kArrowColumns * columnWidth(), scroll_.y});
    else if (message == ScrollBar::rightButtonPressedMsg)
        setScrollOffset({scroll_.x + kArrowColumns * columnWidth(), scroll_.y});
    else if (message == ScrollBar::thumbMovedMsg && sender == vbar_)
        setScrollOffset({scroll_.x, static_cast<int>(std::lround(vbar_->thumbPos() * most.y))});
    else if (message == ScrollBar::thumbMovedMsg)
        setScrollOffset({static_cast<int>(std::lround(hbar_->thumbPos() * most.x)), scroll_.y});
    return 1;
}

// ---- geometry -----------------------------------------------------------------

void CodeEditor::resize(double width, double height) {
    TextBoxBase::resize(width, height);
    layoutScrollBars();
}

void CodeEditor::layoutScrollBars() {
    if (!vbar_ || !hbar_) return;
    BoxInt in = insideFrame();
    int t = ScrollBar::thickness();
    vbar_->resize(t, std::max(0, in.height() - t));
    setWidgetPos(vbar_, BottomLeft(std::max(in.x1, in.x2 - t), in.y1 + t));
    hbar_->resize(std::max(0, in.width() - t), t);
    setWidgetPos(hbar_, BottomLeft(in.x1, in.y1));
    syncScrollBars();
}

BoxInt CodeEditor::gutter() const {
    BoxInt in = insideFrame();
    const UifStd& u = UifStd::instance();
    int width = std::max(3, digits(numLines())) * columnWidth() + 2 * u.getWidgetGap();
    int bottom = std::min(in.y2, in.y1 + ScrollBar::thickness());
    return BoxInt(in.x1, bottom, std::min(in.x2, in.x1 + width), in.y2);
}

BoxInt CodeEditor::textView() const {
    BoxInt in = insideFrame(), g = gutter();
    int left = std::min(in.x2, g.x2 + UifStd::instance().getWidgetGap() / 2);
    int right = std::max(left, in.x2 - ScrollBar::thickness());
    return BoxInt(left, g.y1, right, g.y2);
}

XY<int> CodeEditor::textOrigin() const {
    BoxInt view = textView();
    return {view.x1 - scroll_.x, view.y2 + scroll_.y};
}

// ---- painting -----------------------------------------------------------------

void CodeEditor::drawText() {
    CanvasRenderer r(canvas());
    const Palette& p = getPalette();
    BoxInt view = textView();
    int first = scroll_.y / lineHeight();
    int last = std::min(numLines() - 1, (scroll_.y + view.height()) / lineHeight());
    drawGutter(first, last);
    // The corner between the two bars.
    BoxInt in = insideFrame();
    int t = ScrollBar::thickness();
    r.render(Glib::RectDescription(BoxInt(std::max(in.x1, in.x2 - t), in.y1, in.x2, std::min(in.y2, in.y1 + t)), p.window()));

    XY<int> o = textOrigin();
    Colour ink = isActive() ? p.text() : p.text(kTextDimmed);
    for (int line = first; line <= last; ++line) lineLayout(line).render(canvas(), o.x, o.y - line * lineHeight(), view, ink);
    if (hasSelection() && hasKbdFocus()) drawSelection(first, last, view);
    if (showsCaret()) {
        BoxInt c = caretBox();
        c.clip(view);
        r.render(Glib::RectDescription(c, ink));
    }
}

void CodeEditor::drawGutter(int first, int last) {
    CanvasRenderer r(canvas());
    const Palette& p = getPalette();
    BoxInt g = gutter();
    r.render(Glib::RectDescription(g, p.window()));
    int right = g.x2 - UifStd::instance().getWidgetGap();
    int top = textOrigin().y;
    int caretLine = lineOf(getCursorPosition());
    for (int line = first; line <= last; ++line) {
        Glib::TextLayout number(LightweightString<wchar_t>(std::to_wstring(line + 1)), getFont());
        number.render(canvas(), right - number.width(), top - line * lineHeight(), g, p.text(line == caretLine ? kTextNormal : kTextDimmed));
    }
}

void CodeEditor::drawSelection(int first, int last, const BoxInt& view) {
    CanvasRenderer r(canvas());
    const Palette& p = getPalette();
    XY<int> o = textOrigin();
    std::size_t from = selectionStart(), to = selectionEnd();
    for (int line = std::max(first, lineOf(from)); line <= std::min(last, lineOf(to)); ++line) {
        std::size_t start = lineStart(line), end = lineEnd(line);
        const Glib::TextLayout& l = lineLayout(line);
        std::vector<Glib::TextLayout::Rect> boxes = l.rangeBoxes(std::max(from, start) - start, std::min(to, end) - start);
        // A selected line break shows as a narrow box after the line's text.
        if (to > end) boxes.push_back({l.caret(end - start).x, 0, std::max(1, columnWidth() / 2), lineHeight()});
        for (Glib::TextLayout::Rect b : boxes) {
            b.top = line * lineHeight();
            b.height = lineHeight();
            BoxInt box = layoutBox(b);
            box.clip(view);
            if (box.isEmpty()) continue;
            r.render(Glib::RectDescription(box, p.selection()));
            l.render(canvas(), o.x, o.y - line * lineHeight(), box, p.text(kTextOnSelection));
        }
    }
}
