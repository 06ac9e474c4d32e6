#include "TabbedDialogue.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/Messaging.h"

#include <algorithm>
#include <cmath>

TabbedDialogue::TabbedDialogue(const InitArgs& args) : StandardPanel(args), flags_(args.flags) { font_ = UifStd::instance().getDefaultFont(); }

int TabbedDialogue::tabHeight(unsigned int flags) {
    const int row = UifStd::instance().getRowHeight();
    return (flags & kTallTabs) ? row + row / 2 : row;
}

int TabbedDialogue::calcBorderSize(unsigned int) { return std::max(1, static_cast<int>(std::lround(UifStd::instance().getScale()))); }

int TabbedDialogue::calcHeightForContents(unsigned short contentHeight, unsigned int tabHeight) {
    return contentHeight + static_cast<int>(tabHeight) + 2 * calcBorderSize();
}

Glob* TabbedDialogue::livePage(const Tab& t) const {
    return t.page && EventHandler::valid(t.page, t.stamp) && t.page->parent() == this ? t.page : nullptr;
}

int TabbedDialogue::addTab(const UIString& title, eTabWidget) {
    tabs_.push_back({title, nullptr, IdStamp()});
    if (selected_ < 0) selected_ = 0;
    redraw();
    return numTabs() - 1;
}

bool TabbedDialogue::addPageForTab(unsigned char tab, Glob* page) {
    if (tab >= tabs_.size() || !page || page == this) return false;
    for (const Tab& t : tabs_)
        if (livePage(t) == page) return false;
    if (Glob* old = livePage(tabs_[tab])) removeWidget(old, true);
    tabs_[tab].page = page;
    tabs_[tab].stamp = page->stamp();
    page->setVisible(tab == selected_);
    const BoxInt box = pageBox();
    page->resize(box.width(), box.height());
    addChild(page, BottomLeft(box.x1, box.y1));
    return true;
}

Glob* TabbedDialogue::removePage(unsigned short tab, bool destroy, eRedrawFlag flag) {
    if (tab >= tabs_.size()) return nullptr;
    Glob* page = livePage(tabs_[tab]);
    tabs_.erase(tabs_.begin() + tab);
    if (page) {
        removeWidget(page, destroy);
        if (page) page->setVisible(true);
    }
    if (tabs_.empty()) {
        selected_ = -1;
    } else if (tab < selected_ || selected_ >= numTabs()) {
        --selected_;
    }
    selectTab(selected_, kNoRedraw);
    if (flag == kRedraw) redraw();
    return page;
}

void TabbedDialogue::selectTab(int tab, eRedrawFlag flag, bool notify) {
    if (tab < 0 || tab >= numTabs()) return;
    const bool changed = tab != selected_;
    selected_ = tab;
    for (int i = 0; i < numTabs(); ++i)
        if (Glob* p = livePage(tabs_[i])) p->setVisible(i == selected_);
    if (flag == kRedraw) redraw();
    if (changed && notify)
        if (Glob* owner = logicalParent()) sendMessage(kTabChangedMsg, owner, this);
}

void TabbedDialogue::userSelects(int tab) {
    if (tab == selected_) return;
    selectTab(tab, kRedraw, true);
}

Glob* TabbedDialogue::getPage(int tab) const { return tab >= 0 && tab < numTabs() ? livePage(tabs_[tab]) : nullptr; }

UIString TabbedDialogue::getTabTitle(int tab) const { return tab >= 0 && tab < numTabs() ? tabs_[tab].title : UIString(); }

void TabbedDialogue::setTabTitle(int tab, const UIString& title) {
    if (tab < 0 || tab >= numTabs()) return;
    tabs_[tab].title = title;
    redraw();
}

BoxInt TabbedDialogue::tabsBox() const {
    const BoxInt u = getUserArea();
    return BoxInt(u.x1, std::max(u.y1, u.y2 - tabHeight(flags_)), u.x2, u.y2);
}

BoxInt TabbedDialogue::tabBox(int tab) const {
    if (tab < 0 || tab >= numTabs()) return {};
    const BoxInt row = tabsBox();
    int x = row.x1, w = 0;
    if (flags_ & kEvenTabs) {
        w = row.width() / numTabs();
        x += tab * w;
    } else {
        const int pad = 2 * UifStd::instance().getWidgetGap();
        for (int i = 0; i <= tab; ++i) {
            x += w;
            w = Glib::measureText(tabs_[i].title.getString(), font_).x + 2 * pad;
        }
    }
    // Tabs that do not fit are cut at the right edge, or left out altogether.
    BoxInt b(std::min(x, row.x2), row.y1, std::min(x + w, row.x2), row.y2);
    return b.isEmpty() ? BoxInt() : b;
}

BoxInt TabbedDialogue::pageBox() const {
    const BoxInt u = getUserArea();
    const int b = (flags_ & kFramedPages) ? calcBorderSize(flags_) : 0;
    BoxInt p(u.x1 + b, u.y1 + b, u.x2 - b, tabsBox().y1 - b);
    if (p.x2 < p.x1) p.x2 = p.x1;
    if (p.y2 < p.y1) p.y2 = p.y1;
    return p;
}

int TabbedDialogue::tabAt(const XY<int>& p) const {
    for (int i = 0; i < numTabs(); ++i)
        if (tabBox(i).contains(p)) return i;
    return -1;
}

void TabbedDialogue::fitPages() {
    const BoxInt box = pageBox();
    for (const Tab& t : tabs_)
        if (Glob* p = livePage(t)) {
            p->resize(box.width(), box.height());
            setWidgetPos(p, BottomLeft(box.x1, box.y1));
        }
}

void TabbedDialogue::resize(double width, double height) {
    StandardPanel::resize(width, height);
    fitPages();
}

void TabbedDialogue::setActive(bool active, eRedrawFlag flag) {
    Glob::setActive(active, kNoRedraw);
    for (const Tab& t : tabs_)
        if (Glob* p = livePage(t)) p->setActive(active, kNoRedraw);
    if (flag == kRedraw) redraw();
}

void TabbedDialogue::drawBackground() {
    StandardPanel::drawBackground();
    const Palette& p = getPalette();
    CanvasRenderer r(canvas());
    const int gap = UifStd::instance().getWidgetGap();
    for (int i = 0; i < numTabs(); ++i) {
        const BoxInt b = tabBox(i);
        if (b.isEmpty()) continue;
        const bool current = i == selected_;
        // The unselected tabs sit a little lower and darker, behind the selected one.
        BoxInt face = current ? b : BoxInt(b.x1 + 1, b.y1, b.x2 - 1, b.y2 - gap / 2);
        Glib::RectDescription rect(face, current ? p.window() : p.window(kShadeDark));
        rect.outline = p.window(kShadeDarker);
        rect.outlineWidth = calcBorderSize(flags_);
        r.render(rect);
        Glib::TextDescription text(BoxInt(face.x1 + gap, face.y1, face.x2 - gap, face.y2), tabs_[i].title.getString(), font_,
                                   p.text(isActive() ? kTextNormal : kTextDimmed), Glib::kAlignCentreH);
        text.ellipsize = true;
        r.render(text);
    }
}

void TabbedDialogue::drawBorder() {
    StandardPanel::drawBorder();
    if (!(flags_ & kFramedPages)) return;
    // The frame around the pages, open where the selected tab joins them.
    const Palette& p = getPalette();
    CanvasRenderer r(canvas());
    const int b = calcBorderSize(flags_);
    const BoxInt page = pageBox();
    const BoxInt frame(page.x1 - b, page.y1 - b, page.x2 + b, page.y2 + b);
    const Colour line = p.window(kShadeDarker);
    r.render(Glib::RectDescription(BoxInt(frame.x1, frame.y1, frame.x2, frame.y1 + b), line));
    r.render(Glib::RectDescription(BoxInt(frame.x1, frame.y1, frame.x1 + b, frame.y2), line));
    r.render(Glib::RectDescription(BoxInt(frame.x2 - b, frame.y1, frame.x2, frame.y2), line));
    const BoxInt sel = tabBox(selected_);
    if (sel.isEmpty()) {
        r.render(Glib::RectDescription(BoxInt(frame.x1, frame.y2 - b, frame.x2, frame.y2), line));
        return;
    }
    r.render(Glib::RectDescription(BoxInt(frame.x1, frame.y2 - b, sel.x1 + b, frame.y2), line));
    r.render(Glib::RectDescription(BoxInt(sel.x2 - b, frame.y2 - b, frame.x2, frame.y2), line));
    r.render(Glib::RectDescription(BoxInt(sel.x1 + b, frame.y2 - b, sel.x2 - b, frame.y2 + b), p.window()));
}

int TabbedDialogue::handleMouseEvent(const Event& e) {
    if (mouse_down_event(e) && mouse_left_event(e)) {
        const int tab = tabAt(e.pos());
        if (tab < 0) return 0;
        userSelects(tab);
        return 1;
    }
    return 0;
}

bool TabbedDialogue::stepTab(unsigned modifiers) {
    if (numTabs() == 0 || !isActive()) return false;
    const int step = (modifiers & Modifiers::Shift) ? numTabs() - 1 : 1;
    userSelects((std::max(0, selected_) + step) % numTabs());
    // A control on a page that has just been hidden cannot keep the keys.
    if (Glob* f = get_kbd_focus(); f && isParentedTo(f, this) && !f->isShowing()) claimKbdFocus();
    return true;
}

int TabbedDialogue::handleKeyboardEvent(int keyCode) {
    if (!(flags_ & kKeyboardTabs) || Keys::plain(keyCode) != Keys::Tab || !(currentModifiers() & Modifiers::Control)) return 0;
    return stepTab(currentModifiers()) ? 1 : 0;
}

int TabbedDialogue::intercept(const Event& e) {
    // Ctrl+Tab belongs to the dialogue even while a control on a page has the focus.
    if (!(flags_ & kKeyboardTabs) || e.type() != Event::kKeyPress || Keys::plain(e.keyCode()) != Keys::Tab || !(e.modifiers() & Modifiers::Control))
        return 0;
    return stepTab(e.modifiers()) ? 1 : 0;
}
