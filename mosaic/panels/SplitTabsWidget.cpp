#include "SplitTabsWidget.h"

#include "controls/TextLabel.h"
#include "draw/UifStd.h"
#include "glob/CanvasStack.h"
#include "glob/UpdateDeferrer.h"
#include "glob/destroyAfterCall.h"
#include "glob/makeTopLevel.h"
#include "platform/CommandRegistrar.h"

#include <algorithm>
#include <cmath>

namespace {

// The tab flags of the two styles: tall tabs sharing the width, or the standard ones.
constexpr unsigned kStyledTabs = TabbedDialogue::kTallTabs | TabbedDialogue::kKeyboardTabs | TabbedDialogue::kFramedPages | TabbedDialogue::kEvenTabs;

SplitTabsWidget::Page page(const wchar_t* text, const wchar_t* tab) {
    TextLabel::InitArgs args(UIString(text), 100, 100);
    args.palette = UifStd::instance().getColourScheme();
    auto* l = new TextLabel(args);
    l->setAlignment(Glib::kAlignCentreH);
    return {l, UIString(tab)};
}

// A development panel that can be resized across the width at which the tabs merge.
void openTestPanel() {
    StandardPanel::InitArgs args(700, 400);
    auto* panel = makeTopLevel<StandardPanel>(args, Glob::Centre(0, 0));
    panel->setBorder(StandardPanel::getDefaultBorder());
    panel->addStandardWidgets(StandardPanel::kCloseBox | StandardPanel::kTitleBar);
    panel->setTitle(UIString(L"SplitTabsWidget test"), UifStd::instance().getTitleFont(), kNoRedraw);
    const BoxInt u = panel->getUserArea();
    SplitTabsWidget::InitArgs tabs(static_cast<unsigned short>(u.width()), static_cast<unsigned short>(u.height()));
    tabs.leftPages = {page(L"Left One", L"L1"), page(L"Left Two", L"L2")};
    tabs.rightPages = {page(L"Right One", L"R1"), page(L"Right Two", L"R2")};
    tabs.coalesceWidth = 500;
    panel->createWidget<SplitTabsWidget>(tabs, Glob::UserBottomLeft(0, 0))->setName("splitTabs");
    panel->redraw();
}

const CommandRegistrar command("SplitTabsWidgetTest", [](const Zn::Ptr<iObject>&) { openTestPanel(); });

} // namespace

SplitTabsWidget::SplitTabsWidget(const InitArgs& args)
    : OccludedChildWidget(args), leftPages_(args.leftPages), rightPages_(args.rightPages), coalesceWidth_(args.coalesceWidth),
      tabStyle_(args.tabStyle) {
    std::erase_if(leftPages_, [](const Page& p) { return p.glob == nullptr; });
    std::erase_if(rightPages_, [](const Page& p) { return p.glob == nullptr; });
    for (const auto* group : {&leftPages_, &rightPages_})
        for (const Page& p : *group) addMinSizeConstraint(p.glob);
    calcSplitterRange();
    createWidgets();
    layout();
}

unsigned SplitTabsWidget::tabFlags() const { return tabStyle_ != 0 ? kStyledTabs : TabbedDialogue::kStandardTabs; }

int SplitTabsWidget::calcLeftTabsWidth() const {
    const int half = Splitter::calcThickness() / 2;
    return std::max(0, static_cast<int>(std::lround(static_cast<double>(userWidth()) * splitPos_)) - half);
}

int SplitTabsWidget::calcMinWidth(const std::vector<Page>& pages) const {
    int widest = 0;
    for (const Page& p : pages)
        if (Glob::isLiveGlob(p.glob)) widest = std::max(widest, p.glob->getMinSize().x);
    return widest + 2 * TabbedDialogue::calcBorderSize(tabFlags());
}

bool SplitTabsWidget::shouldBeCoalesced() const {
    if (rightPages_.empty()) return true;
    const int w = userWidth();
    if (w < coalesceWidth_) return true;
    const int left = calcLeftTabsWidth();
    if (left < calcMinWidth(leftPages_)) return true;
    return w - (left + Splitter::calcThickness()) < calcMinWidth(rightPages_);
}

void SplitTabsWidget::calcSplitterRange() {
    // The range is of the splitter's middle, so each end keeps the bar's half beside
    // the group's minimum: a drag to either end never makes the groups merge.
    const int t = Splitter::calcThickness();
    const int half = t / 2;
    rangeLow_ = static_cast<unsigned short>(calcMinWidth(leftPages_) + half);
    rangeHigh_ = static_cast<unsigned short>(std::max(0, userWidth() - calcMinWidth(rightPages_) - (t - half)));
}

void SplitTabsWidget::addMinSizeConstraint(const Glob* glob) {
    if (!Glob::isLiveGlob(glob)) return;
    const unsigned flags = tabFlags();
    const int w = glob->getMinSize().x + 2 * TabbedDialogue::calcBorderSize(flags);
    const int h = TabbedDialogue::calcHeightForContents(static_cast<unsigned short>(glob->getMinSize().y), TabbedDialogue::tabHeight(flags));
    const XY<int> now = getMinSize();
    setMinSize(static_cast<unsigned short>(std::max(now.x, w)), static_cast<unsigned short>(std::max(now.y, h)));
}

void SplitTabsWidget::addPages(TabbedDialogue* tabs, const std::vector<Page>& pages) {
    for (const Page& p : pages) {
        if (!Glob::isLiveGlob(p.glob)) continue;
        const int tab = tabs->addTab(p.title);
        tabs->addPageForTab(static_cast<unsigned char>(tab), p.glob);
    }
}

void SplitTabsWidget::makeRightGroup() {
    const BoxInt u = getUserArea();
    Splitter::InitArgs s(Splitter::kSideBySide, static_cast<unsigned short>(u.height()));
    splitter_ = createWidget<Splitter>(s, RightOf(0, leftTabs_));
    splitter_->setName("splitTabsSplitter");
    const int right = std::max(1, u.width() - (leftTabs_->width() + Splitter::calcThickness()));
    TabbedDialogue::InitArgs t(static_cast<unsigned short>(right), static_cast<unsigned short>(u.height()), tabFlags());
    rightTabs_ = createWidget<TabbedDialogue>(t, UserBottomRight(0, 0));
    rightTabs_->setName("rightTabs");
    addPages(rightTabs_, rightPages_);
}

void SplitTabsWidget::createWidgets() {
    const bool coalesce = shouldBeCoalesced();
    const BoxInt u = getUserArea();
    if (!leftTabs_) {
        const int w = coalesce ? u.width() : calcLeftTabsWidth();
        TabbedDialogue::InitArgs t(static_cast<unsigned short>(std::max(1, w)), static_cast<unsigned short>(u.height()), tabFlags());
        leftTabs_ = createWidget<TabbedDialogue>(t, UserBottomLeft(0, 0));
        leftTabs_->setName("leftTabs");
        addPages(leftTabs_, leftPages_);
        if (coalesce)
            addPages(leftTabs_, rightPages_);
        else
            makeRightGroup();
        return;
    }
    if (rightTabs_ && coalesce) {
        handleTabsMerge();
        for (int i = rightTabs_->numTabs() - 1; i >= 0; --i) rightTabs_->removePage(static_cast<unsigned short>(i), false, kNoRedraw);
        leftTabs_->resize(u.width(), u.height());
        addPages(leftTabs_, rightPages_);
        // The splitter may be the one being dragged.
        destroyAfterCall(rightTabs_);
        destroyAfterCall(splitter_);
        rightTabs_ = nullptr;
        splitter_ = nullptr;
    } else if (!rightTabs_ && !coalesce) {
        handleTabsSplit();
        const int selected = leftTabs_->getSelectedTab();
        const int keep = static_cast<int>(leftPages_.size());
        for (int i = leftTabs_->numTabs() - 1; i >= keep; --i) leftTabs_->removePage(static_cast<unsigned short>(i), false, kNoRedraw);
        if (selected >= keep) leftTabs_->selectTab(0, kNoRedraw);
        leftTabs_->resize(std::max(1, calcLeftTabsWidth()), u.height());
        makeRightGroup();
    }
}

void SplitTabsWidget::layout() {
    if (!leftTabs_) return;
    const BoxInt u = getUserArea();
    if (!rightTabs_) {
        leftTabs_->resize(u.width(), u.height());
        setWidgetPos(leftTabs_, BottomLeft(u.x1, u.y1));
        return;
    }
    const int t = Splitter::calcThickness();
    const int left = std::clamp(calcLeftTabsWidth(), 0, std::max(0, u.width() - t));
    leftTabs_->resize(left, u.height());
    setWidgetPos(leftTabs_, BottomLeft(u.x1, u.y1));
    splitter_->resize(t, u.height());
    setWidgetPos(splitter_, BottomLeft(u.x1 + left, u.y1));
    rightTabs_->resize(std::max(0, u.width() - (left + t)), u.height());
    setWidgetPos(rightTabs_, BottomLeft(u.x1 + left + t, u.y1));
}

void SplitTabsWidget::resize(double width, double height) {
    OccludedChildWidget::resize(width, height);
    if (!leftTabs_) return;
    calcSplitterRange();
    if (shouldBeCoalesced() != isCoalesced()) createWidgets();
    layout();
}

int SplitTabsWidget::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message != Splitter::kMoveMsg || !splitter_ || sender != splitter_) return OccludedChildWidget::handleMessageEvent(message, sender);
    const Glib::UpdateDeferrer oneDraw;
    if (rangeLow_ == rangeHigh_) calcSplitterRange();
    const int w = userWidth();
    if (w <= 0) return 1;
    const int x = screenXYToGlobXY(glib_getMousePos()).x - getUserArea().x1;
    // An inverted range lets the left group's minimum win.
    const int middle = std::max<int>(rangeLow_, std::min<int>(x, rangeHigh_));
    splitPos_ = std::clamp(static_cast<float>(middle) / static_cast<float>(w), 0.0f, 1.0f);
    resize(width(), height());
    reshapeAndDraw(XY<int>(kUnset, kUnset));
    return 1;
}
