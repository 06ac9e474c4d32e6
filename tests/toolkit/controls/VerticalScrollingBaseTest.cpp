#include "ListsTestSupport.h"

#include "controls/ScrollBar.h"
#include "controls/VerticalScrollingBase.h"
#include "draw/CanvasRenderer.h"

using TestKit::argb;
using TestKit::Owned;
using TestKit::pixelNear;

namespace {

// A row of one colour.
class ColourRow : public Glob {
public:
    struct InitArgs : GlobCreationInfo {
        Colour colour;
        InitArgs(int h, const Colour& c) : GlobCreationInfo(0, static_cast<unsigned short>(h)), colour(c) {}
    };
    explicit ColourRow(const InitArgs& a) : Glob(a), colour(a.colour) {}
    void drawBackground() override { CanvasRenderer(canvas()).fill(colour); }
    Colour colour;
};

Colour shade(int i) { return Colour(0.1 + 0.08 * i, 0.9 - 0.08 * i, 0.5); }

class VerticalScrollingBaseTest : public ::testing::Test {
protected:
    void SetUp() override {
        host = std::make_unique<Owned<MessageLog>>(makeHost(320, 320));
        gap = UifStd::instance().getRowGap();
    }
    void TearDown() override {
        host.reset();
        TestKit::reset();
    }
    VerticalScrollingBase* make(int rowCount, unsigned flags = 0, int h = 200) {
        VerticalScrollingBase::InitArgs a(240, static_cast<unsigned short>(h), flags);
        auto* s = host->get()->createWidget<VerticalScrollingBase>(a, Glob::BottomLeft(20, 20));
        for (int i = 0; i < rowCount; ++i) s->createManagedWidget<ColourRow>(ColourRow::InitArgs(40, shade(i)));
        host->get()->redraw();
        TestKit::pump();
        return s;
    }
    // The colour shown at a height of the view, counted from the view's top.
    std::uint32_t shownAt(VerticalScrollingBase* s, int fromTop) { return TestKit::globPixel(s, 10, s->viewHeight() - 1 - fromTop); }

    std::unique_ptr<Owned<MessageLog>> host;
    int gap = 0;
};

} // namespace

TEST_F(VerticalScrollingBaseTest, RowsStackDownwardFromTheTopAndTheBarAppearsOnlyWhenTheyDoNotFit) {
    VerticalScrollingBase* s = make(3);
    ASSERT_EQ(s->rows.size(), 3u);
    EXPECT_EQ(s->content->height(), 3 * 40 + 2 * gap);
    EXPECT_EQ(s->rows[0]->width(), 240 - ScrollBar::thickness());
    WidgetDetails first = s->content->getWidget(s->rows[0]);
    EXPECT_EQ(first.position.origin, kTopLeft);
    EXPECT_EQ(first.sibling, nullptr);
    WidgetDetails second = s->content->getWidget(s->rows[1]);
    EXPECT_EQ(second.position.origin, kSiblingRelative);
    EXPECT_EQ(second.sibling, s->rows[0]);
    EXPECT_FALSE(s->scrollBar()->isVisible());
    EXPECT_EQ(shownAt(s, 0), argb(shade(0)));
    EXPECT_EQ(shownAt(s, 40 + gap), argb(shade(1)));
    // Below the rows the panel shows through.
    EXPECT_EQ(shownAt(s, 3 * 40 + 2 * gap + 5), argb(s->getPalette().window()));

    for (int i = 3; i < 8; ++i) s->createManagedWidget<ColourRow>(ColourRow::InitArgs(40, shade(i)));
    TestKit::pump();
    EXPECT_TRUE(s->scrollBar()->isVisible());
    EXPECT_EQ(s->maxScrollOffset(), 8 * 40 + 7 * gap - 200);
    EXPECT_NEAR(s->scrollBar()->thumbSize(), 200.0 / (8 * 40 + 7 * gap), 1e-9);
    EXPECT_EQ(s->scrollOffset(), 0);
}

TEST_F(VerticalScrollingBaseTest, StackingUpwardPutsTheNewestRowAtTheBottomAndShowsIt) {
    VerticalScrollingBase* s = make(2, VerticalScrollingBase::kStackUpward);
    EXPECT_EQ(s->rows[1]->getY(), 0);
    EXPECT_EQ(s->rows[0]->getY(), 40 + gap);
    // With room to spare the rows sit at the bottom of the view.
    EXPECT_EQ(TestKit::globPixel(s, 10, 5), argb(shade(1)));
    EXPECT_EQ(TestKit::globPixel(s, 10, 40 + gap + 5), argb(shade(0)));

    for (int i = 2; i < 7; ++i) s->createManagedWidget<ColourRow>(ColourRow::InitArgs(40, shade(i)));
    TestKit::pump();
    for (std::size_t i = 0; i + 1 < s->rows.size(); ++i) EXPECT_EQ(s->rows[i]->getY(), s->rows[i + 1]->getY() + 40 + gap);
    EXPECT_EQ(s->scrollOffset(), s->maxScrollOffset());
    EXPECT_EQ(TestKit::globPixel(s, 10, 5), argb(shade(6)));
    s->scrollTo(0);
    TestKit::pump();
    EXPECT_EQ(shownAt(s, 0), argb(shade(0)));

    // Taking the newest away lets the one before it down to the bottom.
    s->removeManagedWidget(s->rows.back());
    EXPECT_EQ(s->rows.back()->getY(), 0);
    EXPECT_EQ(s->content->height(), 6 * 40 + 5 * gap);
}

TEST_F(VerticalScrollingBaseTest, TheWheelTheBarAndKeysScrollAndRowsAreClippedToTheView) {
    VerticalScrollingBase* s = make(10);
    int step = UifStd::instance().getRowHeight();
    TestKit::wheel(TestKit::centreOf(s), -1);
    EXPECT_EQ(s->scrollOffset(), 3 * step);
    TestKit::wheel(TestKit::centreOf(s), 4);
    EXPECT_EQ(s->scrollOffset(), 0);
    ScrollBar* bar = s->scrollBar();
    TestKit::click(TestKit::screenPointOf(bar, {bar->width() / 2, 2}));
    EXPECT_EQ(s->scrollOffset(), step);
    BoxInt thumb = bar->thumbBox();
    XY<int> grab = TestKit::screenPointOf(bar, {bar->width() / 2, (thumb.y1 + thumb.y2) / 2});
    TestKit::drag(grab, grab - XY<int>(0, 1000));
    EXPECT_EQ(s->scrollOffset(), s->maxScrollOffset());
    EXPECT_EQ(TestKit::globPixel(s, 10, 1), argb(shade(9)));

    s->handleKeyboardEvent(Keys::Home);
    EXPECT_EQ(s->scrollOffset(), 0);
    s->handleKeyboardEvent(Keys::PageDown);
    EXPECT_EQ(s->scrollOffset(), 200 - step);
    s->handleKeyboardEvent(Keys::End);
    EXPECT_EQ(s->scrollOffset(), s->maxScrollOffset());

    // Scrolled by half a row, the top row is cut at the view's edge, not painted over the host.
    s->scrollTo(20);
    TestKit::pump();
    EXPECT_EQ(shownAt(s, 0), argb(shade(0)));
    EXPECT_EQ(shownAt(s, 20 + gap), argb(shade(1)));
    EXPECT_TRUE(pixelNear(host->get(), 30, 20 + s->height() + 3, argb(host->get()->getPalette().window())));
}

TEST_F(VerticalScrollingBaseTest, RevealRemoveClearAndResize) {
    VerticalScrollingBase* s = make(10);
    s->revealWidget(s->rows[7]);
    int bottomOf7 = 8 * 40 + 7 * gap;
    EXPECT_EQ(s->scrollOffset(), bottomOf7 - 200);
    s->revealWidget(s->rows[1]);
    EXPECT_EQ(s->scrollOffset(), 40 + gap);
    s->revealWidget(s->rows[2]);
    EXPECT_EQ(s->scrollOffset(), 40 + gap);
    s->revealWidget(host->get()); // not a row: nothing happens
    EXPECT_EQ(s->scrollOffset(), 40 + gap);

    Glob* third = s->rows[2];
    s->removeManagedWidget(s->rows[1]);
    EXPECT_EQ(s->rows.size(), 9u);
    EXPECT_EQ(s->rows[1], third);
    EXPECT_EQ(third->getY() + 40 + gap, s->rows[0]->getY());

    // Wider panel, wider rows; a very small or negative size breaks nothing.
    s->resize(300, 150);
    EXPECT_EQ(s->rows[0]->width(), 300 - ScrollBar::thickness());
    s->resize(-20, -20);
    s->redraw();
    TestKit::pump();
    EXPECT_EQ(s->viewHeight(), 0);
    s->resize(240, 200);
    s->clearManagedWidgets();
    EXPECT_TRUE(s->rows.empty());
    EXPECT_EQ(s->content->height(), 0);
    EXPECT_EQ(s->content->numChildren(), 0u);
    EXPECT_EQ(s->scrollOffset(), 0);
    TestKit::wheel(TestKit::centreOf(s), -1);
    EXPECT_EQ(s->scrollOffset(), 0);
}
