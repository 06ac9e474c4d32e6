#include "ListsTestSupport.h"

#include "controls/ScrollBar.h"

#include <cmath>
#include <limits>

using TestKit::argb;
using TestKit::Owned;
using TestKit::pixelNear;

namespace {

class ScrollBarTest : public ::testing::Test {
protected:
    void SetUp() override {
        host = std::make_unique<Owned<MessageLog>>(makeHost(300, 300));
        t = ScrollBar::thickness();
    }
    void TearDown() override {
        host.reset();
        TestKit::reset();
    }
    ScrollBar* make(ScrollBar::eOrientation o, int length, double size, double pos = 0.0) {
        ScrollBar::InitArgs a(o, static_cast<unsigned short>(length), size, pos);
        return addTo<ScrollBar>(host->get(), a, Glob::BottomLeft(10, 10));
    }
    XY<int> at(const ScrollBar* b, int x, int y) const { return TestKit::screenPointOf(b, {x, y}); }
    MessageLog& log() { return *host->get(); }

    std::unique_ptr<Owned<MessageLog>> host;
    int t = 0;
};

} // namespace

TEST_F(ScrollBarTest, PartsAreLaidOutAlongTheAxisWithTheThumbSizedByTheVisibleShare) {
    ScrollBar* v = make(ScrollBar::kVertical, 200, 0.25);
    EXPECT_EQ(v->width(), t);
    EXPECT_EQ(v->backArrowBox(), BoxInt(0, 200 - t, t, 200));
    EXPECT_EQ(v->forwardArrowBox(), BoxInt(0, 0, t, t));
    int track = 200 - 2 * t;
    int thumb = static_cast<int>(std::lround(track * 0.25));
    // Position 0 puts the thumb against the up arrow, 1 against the down arrow.
    EXPECT_EQ(v->thumbBox(), BoxInt(0, 200 - t - thumb, t, 200 - t));
    v->setThumbPos(1.0);
    EXPECT_EQ(v->thumbBox(), BoxInt(0, t, t, t + thumb));

    ScrollBar::InitArgs ha(ScrollBar::kHorizontal, 120, 0.5, 0.5);
    ScrollBar* h = host->get()->createWidget<ScrollBar>(ha, Glob::BottomLeft(50, 250));
    EXPECT_EQ(h->height(), t);
    EXPECT_EQ(h->backArrowBox(), BoxInt(0, 0, t, t));
    int htrack = 120 - 2 * t, hthumb = static_cast<int>(std::lround(htrack * 0.5));
    int offset = static_cast<int>(std::lround((htrack - hthumb) * 0.5));
    EXPECT_EQ(h->thumbBox(), BoxInt(t + offset, 0, t + offset + hthumb, t));
}

TEST_F(ScrollBarTest, PaintsTrackThumbAndArrowGlyphs) {
    ScrollBar* v = make(ScrollBar::kVertical, 200, 0.25);
    const Palette& p = v->getPalette();
    BoxInt thumb = v->thumbBox();
    XY<int> mid((thumb.x1 + thumb.x2) / 2, (thumb.y1 + thumb.y2) / 2);
    EXPECT_TRUE(pixelNear(v, mid.x, mid.y, argb(p.window(kShadeLighter)), 1));
    EXPECT_TRUE(pixelNear(v, mid.x, thumb.y1 - 5, argb(p.window(kShadeDark)), 1));
    // The thumb stands clear of the track's edges.
    EXPECT_TRUE(pixelNear(v, 0, mid.y, argb(p.window(kShadeDark)), 1));

    // The up arrow's triangle: ink at its middle, the arrow's face at its corner.
    BoxInt up = v->backArrowBox();
    int cx = up.x1 + up.width() / 2, cy = up.y1 + up.height() / 2;
    EXPECT_TRUE(pixelNear(v, cx, cy, argb(p.text()), 1));
    EXPECT_TRUE(pixelNear(v, up.x1 + 1, up.y2 - 2, argb(p.window()), 1));
    // It points up: one pixel wide at the top of the glyph, wide at the bottom.
    int half = t / 4, base = cy - (half + 1) / 2;
    EXPECT_TRUE(pixelNear(v, cx - half, base, argb(p.text()), 1));
    EXPECT_TRUE(pixelNear(v, cx - 1, base + half, argb(p.window()), 1));
    EXPECT_TRUE(pixelNear(v, cx, base + half, argb(p.text()), 1));

    // With everything in view there is no thumb and the glyphs are dimmed.
    v->setThumbSize(1.0);
    TestKit::pump();
    EXPECT_TRUE(pixelNear(v, mid.x, mid.y, argb(p.window(kShadeDark)), 1));
    EXPECT_TRUE(pixelNear(v, cx, cy, argb(p.text(kTextDimmed)), 1));
}

TEST_F(ScrollBarTest, ArrowsAndWheelSendArrowMessagesWithoutMovingTheThumb) {
    ScrollBar* v = make(ScrollBar::kVertical, 200, 0.25, 0.5);
    TestKit::click(at(v, t / 2, 200 - t / 2));
    TestKit::click(at(v, t / 2, t / 2));
    TestKit::wheel(at(v, t / 2, 100), 1);
    TestKit::wheel(at(v, t / 2, 100), -2);
    std::vector<std::string> expected = {ScrollBar::upButtonPressedMsg, ScrollBar::downButtonPressedMsg, ScrollBar::upButtonPressedMsg,
                                         ScrollBar::downButtonPressedMsg};
    EXPECT_EQ(log().messages, expected);
    for (Glob* s : log().senders) EXPECT_EQ(s, v);
    EXPECT_DOUBLE_EQ(v->thumbPos(), 0.5);

    log().clear();
    ScrollBar::InitArgs ha(ScrollBar::kHorizontal, 150, 0.3);
    ScrollBar* h = host->get()->createWidget<ScrollBar>(ha, Glob::BottomLeft(60, 250));
    TestKit::pump();
    TestKit::click(at(h, 2, t / 2));
    TestKit::click(at(h, 148, t / 2));
    expected = {ScrollBar::leftButtonPressedMsg, ScrollBar::rightButtonPressedMsg};
    EXPECT_EQ(log().messages, expected);
    for (const std::string& m : log().messages) EXPECT_TRUE(ScrollBar::isScrollBarMsg(m.c_str()));
    EXPECT_FALSE(ScrollBar::isScrollBarMsg("ScrollBar"));
}

TEST_F(ScrollBarTest, TrackClicksPageTowardsTheMouseUntilTheEnd) {
    ScrollBar* v = make(ScrollBar::kVertical, 200, 0.25);
    // A page is a quarter of the content, a third of the thumb's range.
    XY<int> below = at(v, t / 2, t + 3);
    TestKit::click(below);
    EXPECT_NEAR(v->thumbPos(), 1.0 / 3.0, 1e-9);
    TestKit::click(below);
    TestKit::click(below);
    EXPECT_DOUBLE_EQ(v->thumbPos(), 1.0);
    EXPECT_EQ(log().count(ScrollBar::thumbMovedMsg), 3);
    // Already at the end: no move, no message.
    TestKit::click(below);
    EXPECT_EQ(log().count(ScrollBar::thumbMovedMsg), 3);
    TestKit::click(at(v, t / 2, 200 - t - 3));
    EXPECT_NEAR(v->thumbPos(), 2.0 / 3.0, 1e-9);
    EXPECT_EQ(log().count(ScrollBar::thumbMovedMsg), 4);
}

TEST_F(ScrollBarTest, DraggingTheThumbFollowsTheMouseAndStopsAtTheEnds) {
    ScrollBar* v = make(ScrollBar::kVertical, 200, 0.25);
    BoxInt thumb = v->thumbBox();
    int range = (200 - 2 * t) - thumb.height();
    XY<int> grab = at(v, t / 2, (thumb.y1 + thumb.y2) / 2);
    TestKit::drag(grab, grab - XY<int>(0, range / 2));
    EXPECT_NEAR(v->thumbPos(), static_cast<double>(range / 2) / range, 1e-9);
    EXPECT_GE(log().count(ScrollBar::thumbMovedMsg), 1);
    EXPECT_TRUE(ScrollBar::isScrollBarMsg(log().messages.back().c_str()));

    BoxInt moved = v->thumbBox();
    XY<int> again = at(v, t / 2, (moved.y1 + moved.y2) / 2);
    TestKit::drag(again, again - XY<int>(0, 1000));
    EXPECT_DOUBLE_EQ(v->thumbPos(), 1.0);
    TestKit::drag(at(v, t / 2, (v->thumbBox().y1 + v->thumbBox().y2) / 2), at(v, t / 2, 1000));
    EXPECT_DOUBLE_EQ(v->thumbPos(), 0.0);

    ScrollBar::InitArgs ha(ScrollBar::kHorizontal, 200, 0.5);
    ScrollBar* h = host->get()->createWidget<ScrollBar>(ha, Glob::BottomLeft(40, 250));
    TestKit::pump();
    int hrange = (200 - 2 * t) - h->thumbBox().width();
    XY<int> hgrab = at(h, (h->thumbBox().x1 + h->thumbBox().x2) / 2, t / 2);
    TestKit::drag(hgrab, hgrab + XY<int>(hrange / 4, 0));
    EXPECT_NEAR(h->thumbPos(), static_cast<double>(hrange / 4) / hrange, 1e-9);
}

TEST_F(ScrollBarTest, HoldingAnArrowRepeatsOnTimerTicksUntilReleased) {
    ScrollBar* v = make(ScrollBar::kVertical, 200, 0.25);
    XY<int> down = at(v, t / 2, t / 2);
    TestKit::mouseMove(down);
    TestKit::mouseDown(down);
    EXPECT_EQ(log().count(ScrollBar::downButtonPressedMsg), 1);
    // A short hold is a single press.
    for (int i = 0; i < 3; ++i) GlobManager::instance().tickTimers();
    TestKit::pump();
    EXPECT_EQ(log().count(ScrollBar::downButtonPressedMsg), 1);
    for (int i = 0; i < 10; ++i) GlobManager::instance().tickTimers();
    TestKit::pump();
    int held = log().count(ScrollBar::downButtonPressedMsg);
    EXPECT_GT(held, 3);
    TestKit::mouseUp(down);
    for (int i = 0; i < 10; ++i) GlobManager::instance().tickTimers();
    TestKit::pump();
    EXPECT_EQ(log().count(ScrollBar::downButtonPressedMsg), held);
}

TEST_F(ScrollBarTest, ABarWithNothingToScrollIgnoresInputAndBadValuesAreClamped) {
    ScrollBar* v = make(ScrollBar::kVertical, 200, 1.0);
    EXPECT_FALSE(v->canScroll());
    TestKit::click(at(v, t / 2, t / 2));
    TestKit::click(at(v, t / 2, 100));
    TestKit::wheel(at(v, t / 2, 100), 1);
    EXPECT_TRUE(log().messages.empty());

    v->setThumbSize(-3.0);
    EXPECT_DOUBLE_EQ(v->thumbSize(), 0.0);
    EXPECT_GT(v->thumbBox().height(), 0); // a thumb never vanishes
    v->setThumbPos(std::numeric_limits<double>::quiet_NaN());
    EXPECT_DOUBLE_EQ(v->thumbPos(), 0.0);
    v->setThumbPos(7.0);
    EXPECT_DOUBLE_EQ(v->thumbPos(), 1.0);
    v->setThumbSize(std::numeric_limits<double>::infinity());
    EXPECT_DOUBLE_EQ(v->thumbSize(), 1.0);

    // Too short for its arrows, then no size at all: nothing overlaps, nothing breaks.
    v->setThumbSize(0.5);
    v->resize(t, t);
    EXPECT_LE(v->backArrowBox().height() + v->forwardArrowBox().height(), t);
    EXPECT_FALSE(v->canScroll());
    v->resize(-5, -5);
    EXPECT_EQ(v->width(), 0);
    TestKit::click(at(v, 0, 0));
    host->get()->redraw();
    TestKit::pump();
    EXPECT_TRUE(log().messages.empty());
}
