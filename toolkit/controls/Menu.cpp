#include "Menu.h"

#include "draw/CanvasRenderer.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/InputDispatcher.h"
#include "glob/Messaging.h"
#include "glob/fireCallback.h"

#include <algorithm>
#include <cwctype>

namespace {

// A menu is always a top-level glob with a canvas of its own, whoever made the record.
StandardPanel::InitArgs topLevel(const Menu::InitArgs& a) {
    // Only the creation record's part of the menu's record is wanted.
    const GlobCreationInfo& info = a;
    StandardPanel::InitArgs s;
    static_cast<GlobCreationInfo&>(s) = info;
    s.canvas = nullptr;
    s.isChild = false;
    return s;
}

bool isPrintable(int key) { return key != Keys::Space && Keys::isPrintable(key); }

} // namespace

Menu::Menu(const InitArgs& args)
    : StandardPanel(topLevel(args)), items_(args.items), minWidth_(args.minWidth), maxWidth_(args.maxWidth), maxHeight_(args.maxHeight) {
    setCanBeIt(false);
    setBorder(Border(Border::kMenuBorder, static_cast<unsigned short>(std::max(1, UifStd::instance().getBorderWidth() / 2)), 15));
    if (!args.title.empty()) setTitle(args.title, {}, kNoRedraw);
    addShadow();
    if (args.marked >= 0 && args.marked < static_cast<int>(items_.size())) marked_ = args.marked;
    layout();
    setHighlightedRow(args.highlighted);
}

Menu::~Menu() {
    release();
    if (state_ != kNew)
        if (Glob* owner = logicalParent()) sendMessage(goneMsg, owner, this);
}

// ---- size and place ---------------------------------------------------------

void Menu::layout() {
    const UifStd& u = UifStd::instance();
    const int row = u.getRowHeight(), gap = u.getWidgetGap();
    int labelWidth = 0;
    sideWidth_ = 0;
    for (const MenuItem& item : items_) {
        Glib::FontDesc font = item.font() ? item.font()->resolved() : item.isHeading() ? u.getSubheadingFont() : u.getDefaultFont();
        labelWidth = std::max(labelWidth, Glib::measureText(item.label(), font).x);
        sideWidth_ = std::max(sideWidth_, Glib::measureText(item.sideText(), u.getDefaultFont()).x);
    }
    const Screen& screen = GlobManager::instance().screen();
    const Border& b = getBorder();
    const int frameW = b.left() + b.right();
    const int frameH = b.top() + b.bottom() + (hasTitleBar() ? u.getTitleHeight() : 0) + 2 * u.getRowGap();

    int content = u.getTextIndent() + labelWidth + (sideWidth_ ? 2 * gap + sideWidth_ : 0) + 2 * gap;
    int w = std::max({frameW + std::max(content, 2 * row), minWidth_});
    w = std::min(w, maxWidth_ > 0 ? std::min(maxWidth_, screen.width()) : screen.width());

    const int n = static_cast<int>(items_.size());
    const int limit = maxHeight_ > 0 ? std::min(maxHeight_, screen.height()) : screen.height();
    scrolling_ = frameH + n * row > limit;
    visible_ = scrolling_ ? std::max(1, (limit - frameH - 2 * stripHeight()) / row) : n;
    resize(w, frameH + (scrolling_ ? 2 * stripHeight() : 0) + visible_ * row);
    first_ = std::clamp(first_, 0, std::max(0, n - visible_));
}

void Menu::popUpAt(Glob* owner, XY<int> topLeft) { show(owner, {topLeft.x, topLeft.y - height()}); }

void Menu::popUpBelow(Glob* owner, const BoxInt& anchor) {
    int below = anchor.y1 - height();
    show(owner, {anchor.x1, below >= 0 ? below : anchor.y2});
}

void Menu::show(Glob* owner, XY<int> bottomLeft) {
    if (state_ != kNew) return;
    GlobManager& gm = GlobManager::instance();
    setLogicalParent(owner);
    setupRootPos(gm.getSafePosForGlob(canvas(), bottomLeft, size()));
    if (highlighted_ >= 0)
        scrollTo(highlighted_);
    else if (marked_ >= 0)
        scrollTo(marked_);
    state_ = kOpen;
    gm.realize(this);
    // Modal after realizing, so that it stands above a modal panel it was opened from.
    gm.addModalGlob(this);
    gm.input().watchPressesOutside(this);
    previousFocus_ = get_kbd_focus();
    previousFocusStamp_ = previousFocus_ ? previousFocus_->stamp() : IdStamp();
    gm.setKbdFocus(this);
}

void Menu::release() {
    GlobManager& gm = GlobManager::instance();
    gm.input().stopWatchingPressesOutside(this);
    gm.removeModalGlob(this);
    if (hasKbdFocus()) gm.setKbdFocus(EventHandler::valid(previousFocus_, previousFocusStamp_) ? previousFocus_ : nullptr);
}

void Menu::close() {
    if (state_ == kClosed) return;
    state_ = kClosed;
    release();
    setVisible(false);
    GlobManager::instance().requestDeletion(this);
}

// ---- rows -------------------------------------------------------------------

int Menu::stripHeight() const { return scrolling_ ? UifStd::instance().getRowHeight() / 2 : 0; }

BoxInt Menu::rowsArea() const {
    BoxInt a = getUserArea();
    int inset = UifStd::instance().getRowGap() + stripHeight();
    return BoxInt(a.x1, a.y1 + inset, a.x2, a.y2 - inset);
}

BoxInt Menu::rowBox(int row) const {
    if (row < first_ || row >= first_ + visible_ || row >= static_cast<int>(items_.size())) return {};
    const int h = UifStd::instance().getRowHeight();
    const BoxInt a = rowsArea();
    const int top = a.y2 - (row - first_) * h;
    return BoxInt(a.x1, top - h, a.x2, top);
}

int Menu::rowAt(XY<int> p) const {
    const BoxInt a = rowsArea();
    if (!a.contains(p)) return -1;
    const int v = (a.y2 - 1 - p.y) / UifStd::instance().getRowHeight();
    const int row = first_ + v;
    return (v < visible_ && row < static_cast<int>(items_.size())) ? row : -1;
}

void Menu::setHighlightedRow(int row) {
    if (row < 0 || row >= static_cast<int>(items_.size()) || !items_[row].canBeChosen()) row = -1;
    if (row == highlighted_) return;
    highlighted_ = row;
    if (row >= 0) scrollTo(row);
    redraw();
}

void Menu::scrollTo(int row) {
    const int n = static_cast<int>(items_.size());
    int first = first_;
    if (row < first) first = row;
    if (row >= first + visible_) first = row - visible_ + 1;
    first = std::clamp(first, 0, std::max(0, n - visible_));
    if (first == first_) return;
    first_ = first;
    redraw();
}

void Menu::scrollBy(int rows) {
    const int n = static_cast<int>(items_.size());
    int first = std::clamp(first_ + rows, 0, std::max(0, n - visible_));
    if (first == first_) return;
    first_ = first;
    redraw();
}

int Menu::nextChoosable(int from, int dir) const {
    const int n = static_cast<int>(items_.size());
    if (n == 0) return -1;
    if (from < 0 || from >= n) from = dir > 0 ? -1 : n;
    for (int step = 1; step <= n; ++step) {
        int i = ((from + dir * step) % n + n) % n;
        if (items_[i].canBeChosen()) return i;
    }
    return -1;
}

int Menu::nearestChoosable(int row, int dir) const {
    const int n = static_cast<int>(items_.size());
    for (int d : {dir, -dir})
        for (int i = std::clamp(row, 0, n - 1); i >= 0 && i < n; i += d)
            if (items_[i].canBeChosen()) return i;
    return -1;
}

int Menu::rowStartingWith(wchar_t c) const {
    const int n = static_cast<int>(items_.size());
    c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
    for (int step = 1; step <= n; ++step) {
        int i = ((highlighted_ < 0 ? -1 : highlighted_) + step) % n;
        if (items_[i].canBeChosen() && std::towlower(static_cast<wint_t>(items_[i].label()[0])) == static_cast<wint_t>(c)) return i;
    }
    return -1;
}

bool Menu::choose(int row) {
    if (state_ != kOpen || row < 0 || row >= static_cast<int>(items_.size()) || !items_[row].canBeChosen()) return false;
    // Closed first, so that whatever the choice opens finds the focus given back.
    close();
    handleChoice(row);
    return true;
}

void Menu::handleChoice(int row) { fireCallback(this, items_[row].callback()); }

// ---- input ------------------------------------------------------------------

int Menu::handleKeyboardEvent(int key) {
    const int n = static_cast<int>(items_.size());
    key = Keys::plain(key);
    switch (key) {
    case Keys::Escape: close(); break;
    case Keys::Return:
    case Keys::KeypadEnter:
    case Keys::Space: choose(highlighted_); break;
    case Keys::Down: setHighlightedRow(nextChoosable(highlighted_, 1)); break;
    case Keys::Up: setHighlightedRow(nextChoosable(highlighted_, -1)); break;
    case Keys::Home: setHighlightedRow(nearestChoosable(0, 1)); break;
    case Keys::End: setHighlightedRow(nearestChoosable(n - 1, -1)); break;
    case Keys::PageDown: setHighlightedRow(nearestChoosable(std::max(highlighted_, 0) + visible_, 1)); break;
    case Keys::PageUp: setHighlightedRow(nearestChoosable(std::max(highlighted_, 0) - visible_, -1)); break;
    default:
        if (isPrintable(key)) {
            int row = rowStartingWith(static_cast<wchar_t>(key));
            if (row >= 0) setHighlightedRow(row);
        }
        break;
    }
    // A menu keeps every key while it is up.
    return 1;
}

int Menu::handleMouseEvent(const Event& e) {
    const BoxInt self(0, 0, width(), height());
    if (mouse_down_event(e) && !self.contains(e.pos())) {
        close();
        return 1;
    }
    if (mouse_wheel_event(e)) {
        scrollBy(e.wheelDelta() > 0 ? -3 : 3);
        setHighlightedRow(rowAt(e.pos()));
        return 1;
    }
    if (mouse_move_event(e)) {
        setHighlightedRow(rowAt(e.pos()));
        return 1;
    }
    if (mouse_down_event(e) && scrolling_) {
        const BoxInt a = rowsArea();
        if (e.pos().y >= a.y2)
            scrollBy(-1);
        else if (e.pos().y < a.y1)
            scrollBy(1);
        return 1;
    }
    if (mouse_up_event(e) && self.contains(e.pos())) choose(rowAt(e.pos()));
    return 1;
}

void Menu::handleMouseContainment(bool inside) {
    if (!inside) setHighlightedRow(-1);
}

// ---- painting ---------------------------------------------------------------

void Menu::paintArrow(Canvas* canvas, int centreX, int baseY, int size, bool up, const Colour& colour) {
    CanvasRenderer r(canvas);
    for (int k = 0; k < size; ++k) {
        double y = up ? baseY + k : baseY - k;
        double half = size - 1 - k;
        r.render(Glib::LineDescription({centreX - half - 0.5, y}, {centreX + half + 0.5, y}, colour));
    }
}

void Menu::drawBackground() {
    if (hasTitleBar()) StandardPanel::drawBackground();
    const BoxInt area = getUserArea();
    CanvasRenderer(canvas()).render(Glib::RectDescription(area, rowBackground()));
    for (int row = first_; row < first_ + visible_ && row < static_cast<int>(items_.size()); ++row) paintRow(row, rowBox(row));
    if (!scrolling_) return;
    const int size = UifStd::instance().getRowHeight() / 5, cx = (area.x1 + area.x2) / 2, strip = stripHeight();
    const BoxInt rows = rowsArea();
    Colour ink = getPalette().text(kTextDimmed);
    if (first_ > 0) paintArrow(canvas(), cx, rows.y2 + (strip - size) / 2, size, false, ink);
    if (first_ + visible_ < static_cast<int>(items_.size())) paintArrow(canvas(), cx, rows.y1 - strip + (strip + size) / 2, size, true, ink);
}

void Menu::paintRow(int row, const BoxInt& box) const {
    const UifStd& u = UifStd::instance();
    const Palette& p = getPalette();
    const MenuItem& item = items_[row];
    const bool lit = row == highlighted_;
    const int gap = u.getWidgetGap(), indent = u.getTextIndent();
    CanvasRenderer r(canvas());

    if (item.isHeading())
        r.render(Glib::RectDescription(box, item.background().value_or(headingBackground())));
    else if (lit)
        r.render(Glib::RectDescription(box, highlightColour()));
    else if (item.background())
        r.render(Glib::RectDescription(box, *item.background()));

    const double mid = (box.y1 + box.y2) / 2.0;
    if (item.isGap()) {
        const int y = (box.y1 + box.y2) / 2;
        r.render(Glib::LineDescription({double(box.x1 + indent), double(y)}, {double(box.x2 - gap - 1), double(y)}, p.window(kShadeDark)));
        return;
    }

    Colour ink = item.textColour().value_or(item.isHeading() ? p.subheadingText() : p.text());
    if (lit)
        ink = p.text(kTextOnSelection);
    else if (!item.isActive() && !item.isHeading())
        ink = Colour::mix(ink, rowBackground(), 0.55);
    if (row == marked_) r.render(Glib::EllipseDescription({box.x1 + indent / 2.0, mid}, {indent / 6.0, indent / 6.0}, ink));

    const int sideRoom = sideWidth_ ? sideWidth_ + 2 * gap : 0;
    Glib::FontDesc font = item.font() ? item.font()->resolved() : item.isHeading() ? u.getSubheadingFont() : u.getDefaultFont();
    // Headings stand out to the left, over the column where the choice is marked.
    BoxInt labelBox(box.x1 + (item.isHeading() ? gap : indent), box.y1, box.x2 - gap - sideRoom, box.y2);
    Glib::TextDescription label(labelBox, item.label(), font, ink);
    label.ellipsize = true;
    r.render(label);
    if (LightweightString<wchar_t> side = item.sideText(); !side.empty()) {
        Colour sideInk = lit ? ink : Colour::mix(ink, rowBackground(), 0.3);
        Glib::TextDescription t(BoxInt(box.x2 - gap - sideWidth_, box.y1, box.x2 - gap, box.y2), side, u.getDefaultFont(), sideInk,
                                Glib::kAlignRight);
        r.render(t);
    }
}
