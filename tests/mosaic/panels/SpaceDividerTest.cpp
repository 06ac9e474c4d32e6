#include "panels/SpaceDivider.h"
#include "controls/StandardPanel.h"
#include "testkit/TestKit.h"

namespace {

class Divider : public TestKit::ScreenTest {
protected:
    static StandardPanel* pane(const char* name, unsigned short minSize = 0) {
        auto* p = new StandardPanel(StandardPanel::InitArgs(50, 50));
        p->setName(name);
        p->setMinSize(minSize, minSize);
        return p;
    }
    SpaceDivider* make(Splitter::Orientation o, float pos = 0.5f, unsigned short minSecond = 0) {
        SpaceDivider::InitArgs args(400, 300, o, pane("one"), pane("two", minSecond), pos);
        divider = TestKit::realize(new SpaceDivider(args), {100, 100});
        TestKit::pump();
        return divider;
    }
    Glob* one() const { return divider->getWidget(SpaceDivider::kFirst); }
    Glob* two() const { return divider->getWidget(SpaceDivider::kSecond); }
    static int t() { return Splitter::calcThickness(); }

    SpaceDivider* divider = nullptr;
};

} // namespace

TEST_F(Divider, TheSplitIsAClampedFractionThatSurvivesResizing) {
    make(Splitter::kSideBySide, 0.25f);
    EXPECT_EQ(one()->width(), 100 - t() / 2);
    EXPECT_EQ(one()->width() + t() + two()->width(), 400);
    EXPECT_EQ(divider->getSplitter()->getX(), one()->width());
    EXPECT_EQ(two()->getX(), one()->width() + t());
    EXPECT_EQ(two()->height(), 300);

    divider->resize(800, 300);
    EXPECT_NEAR(one()->width(), 200 - t() / 2, 1) << "the fraction, not the width, is kept";
    for (int i = 0; i < 5; ++i) divider->resize(800, 300);
    EXPECT_NEAR(divider->getSplitPos(), 0.25f, 0.002f) << "repeated layouts do not creep";

    divider->setSplitPos(1.5f);
    EXPECT_EQ(divider->getSplitPos(), 1.0f);
    EXPECT_EQ(two()->width(), 0);
    divider->setSplitPos(-1.0f);
    EXPECT_EQ(divider->getSplitPos(), 0.0f);
    EXPECT_EQ(one()->width(), 0);
}

TEST_F(Divider, OneAboveTheOtherTheFirstIsTheLowerAndThePositionCountsFromTheBottom) {
    make(Splitter::kAboveEachOther, 0.25f);
    EXPECT_EQ(one()->getY(), 0);
    EXPECT_EQ(one()->height(), 75 - t() / 2);
    EXPECT_GT(two()->getY(), one()->getY());
    EXPECT_EQ(one()->height() + t() + two()->height(), 300);
    EXPECT_EQ(one()->width(), 400);

    TestKit::drag(divider->getSplitter(), {0, 60});
    EXPECT_NEAR(one()->height(), 135 - t() / 2, 2) << "dragging up gives the lower widget more";
    EXPECT_NEAR(divider->getSplitPos(), 0.45f, 0.01f);
}

TEST_F(Divider, DraggingStopsHalfTheBarFromTheEndOrAtAChildsMinimum) {
    make(Splitter::kSideBySide);
    TestKit::drag(divider->getSplitter(), {-100, 0});
    EXPECT_NEAR(one()->width(), 100 - t() / 2, 2);
    TestKit::drag(divider->getSplitter(), {-500, 0});
    EXPECT_EQ(one()->width(), 0) << "the bar's middle stops half its thickness from the edge";
    EXPECT_GE(divider->getSplitPos(), 0.0f);
    TestKit::drag(divider->getSplitter(), {900, 0});
    EXPECT_LE(divider->getSplitPos(), 1.0f);
    EXPECT_EQ(two()->width(), 0);

    TestKit::reset();
    make(Splitter::kSideBySide, 0.5f, 120);
    TestKit::drag(divider->getSplitter(), {150, 0});
    EXPECT_EQ(two()->width(), 120) << "the second widget's minimum stops the drag";
    const float held = divider->getSplitPos();
    TestKit::drag(divider->getSplitter(), {40, 0});
    EXPECT_EQ(two()->width(), 120);
    EXPECT_EQ(divider->getSplitPos(), held) << "the position is what the child accepted";
    EXPECT_EQ(one()->width() + t() + two()->width(), 400);
}

TEST_F(Divider, HidingAWidgetGivesTheOtherAllTheRoomAndShowingItRestoresTheSplit) {
    make(Splitter::kSideBySide, 0.3f);
    const int before = one()->width();
    divider->setWidgetVisible(SpaceDivider::kSecond, false);
    EXPECT_EQ(one()->width(), 400);
    EXPECT_FALSE(divider->getSplitter()->isVisible());
    divider->setWidgetVisible(SpaceDivider::kSecond, false);
    EXPECT_EQ(one()->width(), 400) << "hiding twice changes nothing";
    divider->setWidgetVisible(SpaceDivider::kSecond, true);
    EXPECT_EQ(one()->width(), before);
    EXPECT_TRUE(divider->getSplitter()->isVisible());
    EXPECT_NEAR(divider->getSplitPos(), 0.3f, 0.003f);

    GlobHandle<Glob> gone(two());
    divider->destroyWidget(SpaceDivider::kSecond, kRedraw);
    EXPECT_EQ(divider->getWidget(SpaceDivider::kSecond), nullptr);
    EXPECT_EQ(divider->getSplitter(), nullptr);
    EXPECT_EQ(one()->width(), 400);
    TestKit::pump();
    EXPECT_FALSE(gone);
    divider->setSplitPos(0.1f);
    divider->setWidgetVisible(SpaceDivider::kSecond, true);
    EXPECT_EQ(one()->width(), 400) << "with one widget left nothing divides";
}
