#include "ScrollList.h"

#include "ScrollBar.h"
#include "draw/Canvas.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/fireCallback.h"

#include <algorithm>
#include <cmath>
#include <cwctype>

namespace {

// Paints now only when on the screen: while a control is being built it has no
// place yet, and painting would land in a corner of the canvas it shares.
void repaint(Glob* g) {
    if (g->isShowing() && GlobManager::instance().isRealized(getRootParent(g))) g->redraw();
}
// Rows scrolled by one notch of the wheel over the rows.
constexpr int kWheelRows = 3;
} // namespace

ScrollList::ScrollList(const InitArgs& args)
    : StandardPanel(args), items_(args.items), selected_(args.items.size(), false),
      lineHeight_(args.lineHeight ? args.lineHeight : static_cast<unsigned short>(UifStd::instance().getRowHeight())), multi_(args.multiSelect),
      onSelect_(args.selectionCallback), onActivate_(args.activationCallback) {
    ScrollBar::InitArgs bar(ScrollBar::kVertical, static_cast<unsigned short>(std::max(0, getUserArea().height())));
    bar.canvas = canvas();
    bar.palette = getPalette();
    bar_ = new ScrollBar(bar);
    addChild(bar_, UserTopRight(0, 0));
    updateBar();
}

ScrollList::~ScrollList() = default;

// ---- rows -------------------------------------------------------------------

void ScrollList::setItems(const std::vector<LightweightString<wchar_t>>& items) {
    items_ = items;
    selected_.assign(items_.size(), false);
    current_ = anchor_ = -1;
    first_ = 0;
    updateBar();
    repaint(this);
}

void ScrollList::addItem(const LightweightString<wchar_t>& item) {
    items_.push_back(item);
    selected_.push_back(false);
    updateBar();
    repaint(this);
}

LightweightString<wchar_t> ScrollList::getItem(int index) const {
    return index >= 0 && index < numItems() ? items_[static_cast<std::size_t>(index)] : LightweightString<wchar_t>();
}

void ScrollList::setLineHeight(unsigned short h) {
    if (h == 0 || h == lineHeight_) return;
    lineHeight_ = h;
    first_ = std::min(first_, maxFirst());
    updateBar();
    repaint(this);
}

void ScrollList::setMultiSelect(bool multi) {
    multi_ = multi;
    if (!multi_) {
        // Only the current row survives the change to single selection.
        for (std::size_t i = 0; i < selected_.size(); ++i) selected_[i] = static_cast<int>(i) == current_ && selected_[i];
        repaint(this);
    }
}

// ---- selection --------------------------------------------------------------

std::vector<int> ScrollList::getSelection() const {
    std::vector<int> out;
    for (std::size_t i = 0; i < selected_.size(); ++i)
        if (selected_[i]) out.push_back(static_cast<int>(i));
    return out;
}

bool ScrollList::isSelected(int index) const { return index >= 0 && index < numItems() && selected_[static_cast<std::size_t>(index)]; }

void ScrollList::select(int index, bool notify) {
    std::fill(selected_.begin(), selected_.end(), false);
    if (index < 0 || index >= numItems()) {
        current_ = anchor_ = -1;
    } else {
        selected_[static_cast<std::size_t>(index)] = true;
        current_ = anchor_ = index;
        ensureVisible(index);
    }
    repaint(this);
    if (notify) notifySelection();
}

void ScrollList::setSelected(int index, bool on, bool notify) {
    if (index < 0 || index >= numItems()) return;
    if (!multi_ && on) {
        select(index, notify);
        return;
    }
    selected_[static_cast<std::size_t>(index)] = on;
    current_ = anchor_ = index;
    repaint(this);
    if (notify) notifySelection();
}

void ScrollList::clearSelection(bool notify) { select(-1, notify); }

void ScrollList::fire(const WidgetCallback& callback, const char* fallback) {
    fireCallback(this, callback.isEmpty() ? WidgetCallback(fallback) : callback);
}

void ScrollList::moveTo(int index, unsigned modifiers) {
    if (numItems() == 0) return;
    index = std::clamp(index, 0, numItems() - 1);
    if (multi_ && (modifiers & Modifiers::Shift) && anchor_ >= 0) {
        // A range from the anchor, which stays where the range began.
        int anchor = anchor_;
        std::fill(selected_.begin(), selected_.end(), false);
        for (int i = std::min(anchor, index); i <= std::max(anchor, index); ++i) selected_[static_cast<std::size_t>(i)] = true;
        current_ = index;
        anchor_ = anchor;
    } else if (multi_ && (modifiers & Modifiers::Control)) {
        selected_[static_cast<std::size_t>(index)] = !selected_[static_cast<std::size_t>(index)];
        current_ = anchor_ = index;
    } else {
        std::fill(selected_.begin(), selected_.end(), false);
        selected_[static_cast<std::size_t>(index)] = true;
        current_ = anchor_ = index;
    }
    ensureVisible(index);
    repaint(this);
    notifySelection();
}

void ScrollList::notifySelection() {
    IdStamp alive = stamp();
    selectionChanged();
    if (EventHandler::valid(this, alive)) fire(onSelect_, selectionChangedMsg);
}

void ScrollList::activate(int index) {
    if (index < 0 || index >= numItems()) return;
    IdStamp alive = stamp();
    itemActivated(index);
    if (!EventHandler::valid(this, alive)) return;
    fire(onActivate_, itemActivatedMsg);
}

// ---- scrolling and geometry -------------------------------------------------

BoxInt ScrollList::listArea() const {
    BoxInt a = getUserArea();
    a.x2 = std::max(a.x1, a.x2 - ScrollBar::thickness());
    return a;
}

int ScrollList::numVisibleRows() const { return lineHeight_ ? listArea().height() / lineHeight_ : 0; }

int ScrollList::maxFirst() const { return std::max(0, numItems() - std::max(1, numVisibleRows())); }

void ScrollList::scrollTo(int firstRow) {
    firstRow = std::clamp(firstRow, 0, maxFirst());
    if (firstRow == first_) return;
    first_ = firstRow;
    updateBar();
    repaint(this);
}

void ScrollList::ensureVisible(int index) {
    if (index < 0 || index >= numItems()) return;
    if (index < first_) {
        scrollTo(index);
    } else if (index >= first_ + std::max(1, numVisibleRows())) {
        scrollTo(index - std::max(1, numVisibleRows()) + 1);
    }
}

BoxInt ScrollList::itemBox(int index) const {
    BoxInt a = listArea();
    int top = a.y2 - (index - first_) * lineHeight_;
    return BoxInt(a.x1, top - lineHeight_, a.x2, top);
}

int ScrollList::itemAt(XY<int> p) const {
    BoxInt a = listArea();
    if (!a.contains(p) || lineHeight_ == 0) return -1;
    int index = first_ + (a.y2 - 1 - p.y) / lineHeight_;
    return index < numItems() ? index : -1;
}

void ScrollList::updateBar() {
    if (!bar_) return;
    int n = numItems(), visible = numVisibleRows();
    bar_->setThumbSize(n > visible && n > 0 ? static_cast<double>(visible) / n : 1.0, kNoRedraw);
    bar_->setThumbPos(maxFirst() ? static_cast<double>(first_) / maxFirst() : 0.0, kNoRedraw);
    repaint(bar_);
}

void ScrollList::resize(double w, double h) {
    StandardPanel::resize(w, h);
    if (!bar_) return;
    bar_->resize(ScrollBar::thickness(), std::max(0, getUserArea().height()));
    first_ = std::min(first_, maxFirst());
    updateBar();
}

// ---- painting ---------------------------------------------------------------

void ScrollList::drawBackground() {
    CanvasRenderer r(canvas());
    r.fill(getPalette().childWindow(kChildList));
    BoxInt area = listArea();
    if (area.isEmpty() || lineHeight_ == 0) return;
    // Rows cut by the edge of the view must not spill over the border.
    Canvas* c = canvas();
    c->pushOrigin(c->origin(), area.translated(c->origin().x, c->origin().y));
    int last = std::min(numItems(), first_ + area.height() / lineHeight_ + 1);
    for (int i = first_; i < last; ++i) drawItem(r, i, itemBox(i), isSelected(i));
    c->popOrigin();
}

void ScrollList::drawItem(const CanvasRenderer& r, int index, const BoxInt& box, bool selected) {
    const Palette& p = getPalette();
    if (selected) r.render(Glib::RectDescription(box, p.selection(hasKbdFocus() ? kSelectionFocused : kSelectionUnfocused)));
    if (index == current_ && hasKbdFocus() && multi_) {
        Glib::RectDescription ring(box, Colour());
        ring.filled = false;
        ring.outline = p.text(kTextDimmed);
        ring.outlineWidth = 1;
        r.render(ring);
    }
    int margin = UifStd::instance().getRowGap();
    Glib::TextDescription t(BoxInt(box.x1 + margin, box.y1, box.x2 - margin, box.y2), getItem(index), getFont(),
                            selected ? p.text(kTextOnSelection) : p.text());
    t.ellipsize = true;
    r.render(t);
}

// ---- input ------------------------------------------------------------------

int ScrollList::handleMouseEvent(const Event& e) {
    if (mouse_wheel_event(e)) {
        if (e.wheelDelta() == 0) return 0;
        scrollTo(first_ + (e.wheelDelta() > 0 ? -kWheelRows : kWheelRows));
        return 1;
    }
    int index = itemAt(e.pos());
    if (index >= 0 && (mouse_down_event(e) || mouse_up_event(e))) {
        BoxInt row = itemBox(index);
        IdStamp alive = stamp();
        if (handleItemMouse(index, e.pos() - XY<int>(row.x1, row.y1), e)) return 1;
        if (!EventHandler::valid(this, alive)) return 1;
    }
    if (mouse_down_event(e) && mouse_left_event(e)) {
        if (index < 0) return 1;
        if (e.clickCount() >= 2 && index == current_) {
            activate(index);
            return 1;
        }
        moveTo(index, e.modifiers());
        return 1;
    }
    // Dragging with the button down carries a single selection along.
    if (mouse_move_event(e) && e.button() == Event::kLeft && !multi_ && index >= 0 && index != current_) {
        moveTo(index, 0);
        return 1;
    }
    return mouse_move_event(e) ? 0 : 1;
}

int ScrollList::handleKeyboardEvent(int key) {
    if (int r = handleItemKey(key)) return r;
    unsigned mods = currentModifiers();
    int page = std::max(1, numVisibleRows() - 1);
    int from = current_ < 0 ? -1 : current_;
    key = Keys::plain(key);
    switch (key) {
    case Keys::Up: moveTo(from < 0 ? 0 : from - 1, mods); return 1;
    case Keys::Down: moveTo(from + 1, mods); return 1;
    case Keys::PageUp: moveTo(from < 0 ? 0 : from - page, mods); return 1;
    case Keys::PageDown: moveTo(from < 0 ? page : from + page, mods); return 1;
    case Keys::Home: moveTo(0, mods); return 1;
    case Keys::End: moveTo(numItems() - 1, mods); return 1;
    case Keys::Return:
    case Keys::KeypadEnter: {
        const int row = current_; // the activation may delete the list
        activate(row);
        return row >= 0 ? 1 : 0;
    }
    case Keys::Space:
        if (multi_ && current_ >= 0) {
            moveTo(current_, Modifiers::Control);
            return 1;
        }
        return 0;
    default: break;
    }
    if (key != Keys::Space && Keys::isPrintable(key) && !(mods & (Modifiers::Control | Modifiers::Alt)) && numItems() > 0) {
        // Type-ahead: the next row after the current one that starts with the letter.
        wchar_t want = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(key)));
        for (int step = 1; step <= numItems(); ++step) {
            int i = (from + step) % numItems();
            if (static_cast<wchar_t>(std::towlower(static_cast<wint_t>(getItem(i)[0]))) == want) {
                moveTo(i, 0);
                return 1;
            }
        }
    }
    return 0;
}

int ScrollList::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (sender != bar_ || !ScrollBar::isScrollBarMsg(message)) return StandardPanel::handleMessageEvent(message, sender);
    if (message == ScrollBar::upButtonPressedMsg) {
        scrollTo(first_ - 1);
    } else if (message == ScrollBar::downButtonPressedMsg) {
        scrollTo(first_ + 1);
    } else if (message == ScrollBar::thumbMovedMsg) {
        int want = static_cast<int>(std::lround(bar_->thumbPos() * maxFirst()));
        if (want != first_) {
            first_ = want;
            repaint(this);
        }
    }
    return 1;
}
