#include "VerticalScrollingBase.h"

#include "ScrollBar.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"

#include <algorithm>
#include <cmath>

namespace {

// Paints now only when on the screen: while a control is being built it has no
// place yet, and painting would land in a corner of the canvas it shares.
void repaint(Glob* g) {
    if (g->isShowing() && GlobManager::instance().isRealized(getRootParent(g))) g->redraw();
}
// Arrow steps scrolled by one notch of the wheel over the rows.
constexpr int kWheelSteps = 3;
} // namespace

VerticalScrollingBase::VerticalScrollingBase(const InitArgs& args)
    : StandardPanel(args), rowGap(args.rowGap == 0xFFFF ? static_cast<unsigned short>(UifStd::instance().getRowGap()) : args.rowGap),
      flags(args.flags) {
    BoxInt user = getUserArea();
    int t = ScrollBar::thickness();
    GlobCreationInfo view(static_cast<unsigned short>(std::max(0, user.width() - t)), static_cast<unsigned short>(std::max(0, user.height())),
                          getPalette(), true, canvas());
    viewport_ = new Glob(view);
    addChild(viewport_, UserTopLeft(0, 0));
    StandardPanel::InitArgs inner(GlobCreationInfo(view, 0, 0), Border(Border::kNoBorder, 0, 15));
    inner.height = 0;
    content = new StandardPanel(inner);
    viewport_->addChild(content, BottomLeft(0, 0));
    ScrollBar::InitArgs bar(ScrollBar::kVertical, static_cast<unsigned short>(std::max(0, user.height())));
    bar.canvas = canvas();
    bar.palette = getPalette();
    bar_ = new ScrollBar(bar);
    addChild(bar_, UserTopRight(0, 0));
    recalcWidgetsHeight();
}

VerticalScrollingBase::~VerticalScrollingBase() = default;

int VerticalScrollingBase::viewHeight() const { return viewport_->height(); }

int VerticalScrollingBase::maxScrollOffset() const { return std::max(0, content->height() - viewHeight()); }

void VerticalScrollingBase::recalcWidgetsHeight() {
    int total = 0;
    for (Glob* row : rows) total += row->height();
    if (rows.size() > 1) total += rowGap * static_cast<int>(rows.size() - 1);
    content->resize(viewport_->width(), total);
    if (flags & kStackUpward) {
        // Upward, each older row hangs from the newer one added after it, so one pass
        // in order of addition can leave it placed from its sibling's old place.
        for (std::size_t pass = 0; pass <= rows.size(); ++pass) {
            std::vector<int> before;
            for (Glob* row : rows) before.push_back(row->getY());
            content->calcAbsoluteWidgetPositions();
            bool settled = true;
            for (std::size_t i = 0; i < rows.size(); ++i) settled = settled && rows[i]->getY() == before[i];
            if (settled) break;
        }
    }
    offset_ = std::clamp(offset_, 0, maxScrollOffset());
    placeContent();
}

void VerticalScrollingBase::placeContent() {
    int spare = viewHeight() - content->height();
    int y;
    if (spare >= 0)
        y = (flags & kStackUpward) ? 0 : spare;
    else
        y = spare + offset_;
    viewport_->setWidgetPos(content, BottomLeft(0, y));
    updateBar();
}

void VerticalScrollingBase::updateBar() {
    int total = content->height(), view = viewHeight();
    bool needed = total > view && view > 0;
    bar_->setThumbSize(needed ? static_cast<double>(view) / total : 1.0, kNoRedraw);
    bar_->setThumbPos(maxScrollOffset() ? static_cast<double>(offset_) / maxScrollOffset() : 0.0, kNoRedraw);
    bar_->setVisible(needed);
}

void VerticalScrollingBase::resetView() { scrollTo((flags & kStackUpward) ? maxScrollOffset() : 0); }

void VerticalScrollingBase::scrollTo(int offset) {
    offset_ = std::clamp(offset, 0, maxScrollOffset());
    placeContent();
    repaint(this);
}

void VerticalScrollingBase::revealWidget(Glob* row) {
    if (!row || row->parent() != content) return;
    int top = content->height() - (row->getY() + row->height());
    int bottom = top + row->height();
    if (top < offset_ || row->height() > viewHeight())
        scrollTo(top);
    else if (bottom > offset_ + viewHeight())
        scrollTo(bottom - viewHeight());
}

void VerticalScrollingBase::removeManagedWidget(Glob* row) {
    auto it = std::find(rows.begin(), rows.end(), row);
    if (it == rows.end()) return;
    std::size_t index = static_cast<std::size_t>(it - rows.begin());
    rows.erase(it);
    if ((flags & kStackUpward) && index > 0 && index == rows.size()) {
        // The newest row held the others up; the one before it takes the bottom.
        Glob* newest = rows.back();
        WidgetDetails d = content->getWidget(newest);
        d.position = WidgetPosition(kBottomLeft, {0, 0});
        d.sibling = nullptr;
        content->setWidgetDetails(d);
    }
    Glob* doomed = row;
    content->removeWidget(doomed, true);
    recalcWidgetsHeight();
    repaint(this);
}

void VerticalScrollingBase::clearManagedWidgets() {
    for (auto it = rows.rbegin(); it != rows.rend(); ++it) {
        Glob* doomed = *it;
        content->removeWidget(doomed, true);
    }
    rows.clear();
    recalcWidgetsHeight();
    resetView();
}

void VerticalScrollingBase::layout() {
    BoxInt user = getUserArea();
    int t = ScrollBar::thickness();
    int oldWidth = viewport_->width();
    viewport_->resize(std::max(0, user.width() - t), std::max(0, user.height()));
    bar_->resize(t, std::max(0, user.height()));
    for (Glob* row : rows)
        if (row->width() == oldWidth) row->resize(viewport_->width(), row->height());
    recalcWidgetsHeight();
}

void VerticalScrollingBase::resize(double w, double h) {
    StandardPanel::resize(w, h);
    if (viewport_) layout();
}

// ---- input ------------------------------------------------------------------

int VerticalScrollingBase::handleMouseEvent(const Event& e) {
    if (!mouse_wheel_event(e) || e.wheelDelta() == 0 || maxScrollOffset() == 0) return 0;
    int step = UifStd::instance().getRowHeight() * kWheelSteps;
    scrollTo(offset_ + (e.wheelDelta() > 0 ? -step : step));
    return 1;
}

int VerticalScrollingBase::handleKeyboardEvent(int key) {
    int page = std::max(1, viewHeight() - UifStd::instance().getRowHeight());
    switch (Keys::plain(key)) {
    case Keys::PageUp: scrollTo(offset_ - page); return 1;
    case Keys::PageDown: scrollTo(offset_ + page); return 1;
    case Keys::Home: scrollTo(0); return 1;
    case Keys::End: scrollTo(maxScrollOffset()); return 1;
    default: return StandardPanel::handleKeyboardEvent(key);
    }
}

int VerticalScrollingBase::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (sender != bar_ || !ScrollBar::isScrollBarMsg(message)) return StandardPanel::handleMessageEvent(message, sender);
    int step = UifStd::instance().getRowHeight();
    if (message == ScrollBar::upButtonPressedMsg) {
        scrollTo(offset_ - step);
    } else if (message == ScrollBar::downButtonPressedMsg) {
        scrollTo(offset_ + step);
    } else if (message == ScrollBar::thumbMovedMsg) {
        offset_ = static_cast<int>(std::lround(bar_->thumbPos() * maxScrollOffset()));
        int spare = viewHeight() - content->height();
        viewport_->setWidgetPos(content, BottomLeft(0, spare + offset_));
        repaint(this);
    }
    return 1;
}
