#include "controls/StandardPanel.h"
#include "draw/UifStd.h"
#include "imaging/AngleIndicatorWidget.h"
#include "imaging/CornerHighlightWidget.h"
#include "imaging/RibbonWidget.h"
#include "testkit/TestKit.h"

#include <utility>
#include <vector>

namespace {

class Dial : public AngleIndicatorWidget {
public:
    using AngleIndicatorWidget::AngleIndicatorWidget;
    Angle getAngle() const override { return angle; }
    void setAngle(int kind, Angle a) override {
        changes.emplace_back(kind, a);
        angle = a;
    }
    Angle getDefaultAngle() const override { return 0.0; }
    Colour getCentreColour() const override { return Colour(1.0, 0.0, 0.0, true); }

    Angle angle = 0.0;
    std::vector<std::pair<int, Angle>> changes;
};

class SmallWidgets : public TestKit::ScreenTest {
protected:
    template <class T, class Args>
    T* make(Args args) {
        StandardPanel::InitArgs p(100, 100);
        p.palette = UifStd::instance().getColourScheme();
        panel = TestKit::realize(new StandardPanel(p));
        T* w = panel->createWidget<T>(args, Glob::BottomLeft(10, 10));
        TestKit::pump();
        return w;
    }
    Dial* dial(int size = 41) { return make<Dial>(StandardPanel::InitArgs(static_cast<unsigned short>(size), static_cast<unsigned short>(size))); }
    // An event at a point of the widget.
    static Event at(const Glob* g, Event::Type type, XY<int> local, Event::Button b = Event::kLeft) {
        Event e = Event::mouse(type, TestKit::screenPointOf(g, local), b);
        e.setLocalPos(local);
        return e;
    }
    std::uint32_t backdrop() const { return TestKit::argb(panel->getCol()); }

    StandardPanel* panel = nullptr;
};

} // namespace

TEST(AngleDifference, IsTheShortWayRound) {
    EXPECT_EQ(calcSmallestDifference(350, 10), 20);
    EXPECT_EQ(calcSmallestDifference(10, 350), 20);
    EXPECT_EQ(calcSmallestDifference(0, 180), 180);
}

TEST_F(SmallWidgets, TheDialMeasuresClockwiseFromStraightUpAndTheCentreIs270) {
    Dial* d = dial();
    const XY<int> c = d->getCentre();
    EXPECT_EQ(d->calcAngleToPos(c), 270.0);
    EXPECT_EQ(d->calcAngleToPos(c + XY<int>(0, 10)), 360.0) << "straight up is reached from the left half";
    EXPECT_EQ(d->calcAngleToPos(c + XY<int>(10, 0)), 90.0);
    EXPECT_DOUBLE_EQ(d->calcAngleToPos(c + XY<int>(10, -10)), 135.0);
    EXPECT_DOUBLE_EQ(d->calcAngleToPos(c + XY<int>(-10, -10)), 225.0);
    EXPECT_DOUBLE_EQ(d->calcAngleToPos(c + XY<int>(-10, 10)), 315.0);
}

TEST_F(SmallWidgets, ThePressNearTheNeedleDragsItAndOneTwentyDegreesAwayResets) {
    Dial* d = dial();
    const XY<int> right = d->getCentre() + XY<int>(10, 0);
    d->angle = 110.0;
    EXPECT_EQ(d->handleMouseEvent(at(d, Event::kMouseDown, right)), 1);
    ASSERT_EQ(d->changes.size(), 1U);
    EXPECT_EQ(d->changes[0], std::make_pair(3, 0.0)) << "exactly twenty degrees off is a reset";
    d->handleMouseEvent(at(d, Event::kMouseUp, right));

    d->changes.clear();
    EXPECT_EQ(d->handleMouseEvent(at(d, Event::kMouseDown, d->getCentre() + XY<int>(-10, 0))), 1);
    EXPECT_TRUE(d->changes.empty()) << "a click on a dial at its default does nothing";

    d->angle = 100.0;
    d->handleMouseEvent(at(d, Event::kMouseDown, right));
    d->handleMouseEvent(at(d, Event::kMouseMove, d->getCentre() + XY<int>(0, -10)));
    d->handleMouseEvent(at(d, Event::kMouseUp, d->getCentre() + XY<int>(0, -10)));
    const std::vector<std::pair<int, Angle>> drag = {{0, 90.0}, {1, 180.0}, {2, 180.0}};
    EXPECT_EQ(d->changes, drag);
    EXPECT_EQ(d->handleMouseEvent(at(d, Event::kMouseDown, right, Event::kRight)), 0) << "other buttons away from the needle";
}

TEST_F(SmallWidgets, TheWheelStepsADegreeAcrossTheTurn) {
    Dial* d = dial();
    Event up = at(d, Event::kMouseWheel, {1, 1});
    up = Event::wheel(up.screenPos(), 1);
    d->angle = 359.5;
    d->handleMouseEvent(up);
    EXPECT_DOUBLE_EQ(d->angle, 0.5);
    d->handleMouseEvent(Event::wheel(up.screenPos(), -1));
    EXPECT_DOUBLE_EQ(d->angle, 359.5);
}

TEST_F(SmallWidgets, TheDialPaintsItsFaceNeedleAndHub) {
    Dial* d = dial();
    d->angle = 90.0;
    d->redraw();
    TestKit::pump();
    const XY<int> c = d->getCentre();
    const int indent = UifStd::instance().getIndentWidth(), r = d->getRadius();
    EXPECT_TRUE(TestKit::pixelNear(d, c.x, c.y, 0xFFFF0000)) << "the hub";
    EXPECT_TRUE(TestKit::pixelNear(d, c.x + r - indent - 1, c.y, TestKit::argb(d->getPalette().text()))) << "the needle points right";
    const Colour face = Colour::mix(Colour(1.0, 1.0, 1.0, true), d->getPalette().window(kShadeLight), 0.9);
    EXPECT_TRUE(TestKit::pixelNear(d, c.x, c.y - r / 2, TestKit::argb(face), 1)) << "the face below the hub";
    EXPECT_TRUE(TestKit::pixelNear(d, 0, 0, TestKit::argb(d->getCol()), 1)) << "the corners are the window";
}

TEST_F(SmallWidgets, ARibbonHalvesInNarrowAreasAndHangsAGradientWithASwallowTail) {
    const int row = UifStd::instance().getRowHeight(), gap = UifStd::instance().getWidgetGap();
    EXPECT_EQ(RibbonWidget::calcRibbonSize({5 * row, 10}), XY<int>(3 * gap, row));
    EXPECT_EQ(RibbonWidget::calcRibbonSize({5 * row - 1, 10}), XY<int>(3 * gap / 2, row / 2));
    const BoxInt area = RibbonWidget::calcRibbonArea(BoxInt(0, 0, 10 * row, 100), 2);
    EXPECT_EQ(area, BoxInt(2 + gap, 98 - row, 2 + gap + 3 * gap, 98));

    const Colour red(1.0, 0.0, 0.0, true);
    auto* ribbon = make<RibbonWidget>(RibbonWidget::InitArgs(10, 20, red, true));
    EXPECT_TRUE(TestKit::pixelNear(ribbon, 5, 19, TestKit::argb(red))) << "the top row in the colour itself";
    EXPECT_TRUE(TestKit::pixelNear(ribbon, 5, 17, TestKit::argb(Colour::mix(Colour(1.0, 1.0, 1.0, true), red, 0.8)), 1)) << "the band";
    EXPECT_TRUE(TestKit::pixelNear(ribbon, 0, 5, TestKit::argb(Colour(0.79, 0.0, 0.0, true)), 1)) << "darker towards the bottom";
    EXPECT_TRUE(TestKit::pixelNear(ribbon, 4, 4, TestKit::argb(Colour(0.775, 0.0, 0.0, true)), 1)) << "the tail's first row is whole";
    EXPECT_TRUE(TestKit::pixelNear(ribbon, 0, 0, TestKit::argb(Colour(0.715, 0.0, 0.0, true)), 1)) << "the tail's corner";
    EXPECT_TRUE(TestKit::pixelNear(ribbon, 1, 0, backdrop())) << "the notch";
    EXPECT_TRUE(TestKit::pixelNear(ribbon, 4, 3, backdrop())) << "the tip of the notch";

    auto* wide = make<RibbonWidget>(RibbonWidget::InitArgs(20, 6, red));
    EXPECT_TRUE(TestKit::pixelNear(wide, 10, 4, backdrop())) << "no full-width rows: the tail takes the whole height";
    EXPECT_TRUE(TestKit::pixelNear(wide, 0, 5, TestKit::argb(red)));
}

TEST_F(SmallWidgets, TheCornerIsATriangleWithItsSquareCornerTopLeft) {
    const Colour green(0.0, 1.0, 0.0, true);
    auto* corner = make<CornerHighlightWidget>(CornerHighlightWidget::InitArgs(10, 10, green));
    const std::uint32_t ink = TestKit::argb(green);
    EXPECT_TRUE(TestKit::pixelNear(corner, 0, 9, ink));
    EXPECT_TRUE(TestKit::pixelNear(corner, 9, 9, ink));
    EXPECT_TRUE(TestKit::pixelNear(corner, 0, 0, ink));
    EXPECT_TRUE(TestKit::pixelNear(corner, 1, 0, backdrop()));
    EXPECT_TRUE(TestKit::pixelNear(corner, 9, 8, backdrop()));
    EXPECT_EQ(TestKit::countPixels(corner, BoxInt(0, 0, 10, 10), green), 55);

    corner->setColour(Colour(0.0, 0.0, 1.0, true));
    TestKit::pump();
    EXPECT_EQ(TestKit::countPixels(corner, BoxInt(0, 0, 10, 10), Colour(0.0, 0.0, 1.0, true)), 55);
}
