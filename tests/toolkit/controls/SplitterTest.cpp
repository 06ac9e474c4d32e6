#include "controls/Splitter.h"
#include "PanelsTestSupport.h"

#include <algorithm>

namespace {

class Splitters : public ControlsTest {
protected:
    // Two panes 150 wide (or high) with a bar between them, from the user area's bottom left.
    void build(Splitter::Orientation o, unsigned short minFirst = 0, unsigned short minSecond = 0) {
        const int t = Splitter::calcThickness();
        const bool side = o == Splitter::kSideBySide;
        StandardPanel::InitArgs pa(side ? 150 : 300, side ? 150 : 70);
        first = host->createWidget<StandardPanel>(pa, Glob::BottomLeft(0, 0));
        Splitter::InitArgs sa(o, 150);
        if (!side) sa = Splitter::InitArgs(o, 300);
        sa.first = first;
        sa.minFirst = minFirst;
        sa.minSecond = minSecond;
        bar = host->createWidget<Splitter>(sa, side ? Glob::BottomLeft(150, 0) : Glob::BottomLeft(0, 70));
        second = host->createWidget<StandardPanel>(pa, side ? Glob::BottomLeft(150 + t, 0) : Glob::BottomLeft(0, 70 + t));
        bar->setPanes(first, second);
        TestKit::pump();
    }
    void dragBarBy(XY<int> d) {
        XY<int> from = TestKit::centreOf(bar);
        TestKit::drag(from, from + d);
    }
    int count(const char* msg) const { return static_cast<int>(std::count(host->messages.begin(), host->messages.end(), msg)); }

    StandardPanel* first = nullptr;
    StandardPanel* second = nullptr;
    Splitter* bar = nullptr;
};

} // namespace

TEST_F(Splitters, DraggingTheBarResizesBothPanesAndKeepsTheirOuterEdges) {
    build(Splitter::kSideBySide);
    const int t = Splitter::calcThickness();
    EXPECT_EQ(bar->size(), XY<int>(t, 150));
    dragBarBy({40, 7});
    EXPECT_EQ(bar->getPosition(), 190);
    EXPECT_EQ(bar->getY(), 0) << "the bar moves only along the split";
    EXPECT_EQ(first->getX(), 0);
    EXPECT_EQ(first->width(), 190);
    EXPECT_EQ(second->getX(), 190 + t);
    EXPECT_EQ(second->getX() + second->width(), 300 + t);
    EXPECT_EQ(first->height(), 150);
    EXPECT_GE(count(Splitter::kMoveMsg), 4) << "every step is reported";
    EXPECT_EQ(count(Splitter::kMovedMsg), 1);
    EXPECT_EQ(host->messages.back(), Splitter::kMovedMsg);
    EXPECT_FALSE(bar->isDragging());

    dragBarBy({-100, 0});
    EXPECT_EQ(first->width(), 90);
    EXPECT_EQ(second->width(), 210);
}

TEST_F(Splitters, ADragPastTheEndsStopsAtTheMinimumSizes) {
    build(Splitter::kSideBySide, 50, 0);
    second->setMinSize(60, 0);
    const int t = Splitter::calcThickness();
    dragBarBy({-1000, 0});
    EXPECT_EQ(first->width(), 50);
    EXPECT_EQ(second->width(), 300 - 50);
    dragBarBy({5000, 0});
    EXPECT_EQ(second->width(), 60);
    EXPECT_EQ(first->width(), 300 - 60);
    EXPECT_EQ(bar->positionRange(), std::make_pair(50, 240));

    bar->setMinSizes(200, 200);
    EXPECT_EQ(bar->moveTo(10), 200) << "when both minimums cannot be met the first pane's wins";
    EXPECT_EQ(first->width(), 200);
    EXPECT_EQ(second->width(), 100);
    EXPECT_EQ(second->getX() + second->width(), 300 + t);
}

TEST_F(Splitters, PanesOneAboveTheOtherSplitUpwardFromTheBottom) {
    build(Splitter::kAboveEachOther);
    const int t = Splitter::calcThickness();
    EXPECT_EQ(bar->size(), XY<int>(300, t));
    // Up on the screen is up in the panel.
    dragBarBy({9, 30});
    EXPECT_EQ(bar->getPosition(), 100);
    EXPECT_EQ(bar->getX(), 0);
    EXPECT_EQ(first->getY(), 0);
    EXPECT_EQ(first->height(), 100);
    EXPECT_EQ(second->getY(), 100 + t);
    EXPECT_EQ(second->getY() + second->height(), 140 + t);
    EXPECT_EQ(first->width(), 300);
    bar->moveTo(-50);
    EXPECT_EQ(first->height(), 0);
    EXPECT_EQ(second->height(), 140);
}

TEST_F(Splitters, ABarWithoutPanesOnlyReports) {
    Splitter::InitArgs sa(Splitter::kSideBySide, 100);
    bar = host->createWidget<Splitter>(sa, Glob::UserBottomLeft(100, 0));
    TestKit::pump();
    EXPECT_EQ(bar->firstPane(), nullptr);
    dragBarBy({30, 0});
    EXPECT_EQ(bar->getPosition(), 100) << "the parent lays out; the bar stays until it does";
    EXPECT_GE(count(Splitter::kMoveMsg), 1);
    EXPECT_EQ(count(Splitter::kMovedMsg), 1);
    EXPECT_EQ(bar->moveTo(-20), host->getUserArea().x1);
    EXPECT_EQ(bar->moveTo(10000), host->getUserArea().x2 - bar->width());

    Splitter::InitArgs loose(Splitter::kSideBySide, 50);
    loose.palette = host->getPalette();
    TestKit::Owned<Splitter> orphan(new Splitter(loose));
    EXPECT_EQ(orphan->moveTo(40), orphan->getPosition()) << "a bar with no parent does not move";
}

TEST_F(Splitters, APaneThatGoesLeavesTheBarHarmless) {
    build(Splitter::kSideBySide);
    Glob* doomed = second;
    host->removeWidget(doomed, true);
    EXPECT_EQ(bar->secondPane(), nullptr);
    dragBarBy({20, 0});
    EXPECT_EQ(first->width(), 150) << "with one pane gone nothing is laid out";
    bar->setPanes(first, first);
    EXPECT_EQ(bar->secondPane(), nullptr) << "one glob cannot be both panes";
    bar->setPanes(first, host);
    EXPECT_EQ(bar->secondPane(), nullptr) << "a pane must share the bar's parent";
}

TEST_F(Splitters, TheBarIsPaintedAndLightensUnderTheMouse) {
    build(Splitter::kSideBySide);
    const Palette& p = bar->getPalette();
    EXPECT_TRUE(TestKit::pixelNear(bar, 0, 10, TestKit::argb(p.window(kShadeDark)), 2));
    EXPECT_LT(PanelsTest::nearestTo(bar, BoxInt(0, 0, bar->width(), bar->height()), TestKit::argb(p.window(kShadeDarkest))), 30) << "the grip dots";
    TestKit::mouseMove(TestKit::centreOf(bar));
    EXPECT_TRUE(TestKit::pixelNear(bar, 0, 10, TestKit::argb(p.window(kShadeLight)), 2));
    EXPECT_EQ(bar->contextCursor({0, 0}), kCursorResizeHorizontal);
}
