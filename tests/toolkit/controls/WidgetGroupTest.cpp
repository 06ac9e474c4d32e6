#include "controls/WidgetGroup.h"
#include "PanelsTestSupport.h"
#include "controls/Button.h"
#include "draw/UifStd.h"

namespace {

class Groups : public ControlsTest {
protected:
    WidgetGroup* group(const UIString& title, int w = 240, int h = 120) {
        return add<WidgetGroup>(WidgetGroup::InitArgs(title, static_cast<unsigned short>(w), static_cast<unsigned short>(h)), {10, 10});
    }
    static std::uint32_t line(const Glob* g, eWindowShade s = kShadeDarker) { return TestKit::argb(g->getPalette().window(s)); }
};

} // namespace

TEST_F(Groups, TheFrameRunsRoundTheGroupAndTheLegendBreaksItsTopLine) {
    WidgetGroup* g = group(L"Audio");
    const BoxInt f = g->frameBox();
    const BoxInt legend = g->legendBox();
    ASSERT_FALSE(legend.isEmpty());
    EXPECT_TRUE(TestKit::pixelNear(g, f.x1, f.y1 + 20, line(g), 2)) << "left side";
    EXPECT_TRUE(TestKit::pixelNear(g, f.x2 - 1, f.y1 + 20, line(g), 2)) << "right side";
    EXPECT_TRUE(TestKit::pixelNear(g, f.x1 + 40, f.y1, line(g), 2)) << "bottom";
    EXPECT_TRUE(TestKit::pixelNear(g, f.x2 - 10, f.y2 - 1, line(g), 2)) << "top, right of the legend";
    EXPECT_TRUE(TestKit::pixelNear(g, f.x1 + 2, f.y2 - 1, line(g), 2)) << "top, left of the legend";
    int lineInLegend = 0;
    for (int x = legend.x1 + 1; x < legend.x2 - 1; ++x)
        if (similar(TestKit::globPixel(g, x, f.y2 - 1), line(g), 2)) ++lineInLegend;
    EXPECT_LT(lineInLegend, legend.width() / 4) << "the line stops for the legend";
    EXPECT_LT(PanelsTest::nearestTo(g, legend, TestKit::argb(g->getPalette().subheadingText())), 30) << "the legend is painted";

    g->setActive(false);
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(g, f.x1, f.y1 + 20, line(g, kShadeDark), 2)) << "an inactive frame is fainter";
    EXPECT_GT(PanelsTest::nearestTo(g, legend, TestKit::argb(g->getPalette().subheadingText())), 30);
}

TEST_F(Groups, ChildrenGoInsideTheFrameAndBelowTheLegend) {
    WidgetGroup* g = group(L"Video");
    const BoxInt u = g->getUserArea();
    const BoxInt f = g->frameBox();
    EXPECT_GT(u.x1, f.x1);
    EXPECT_LT(u.x2, f.x2);
    EXPECT_GT(u.y1, f.y1);
    EXPECT_LE(u.y2, g->legendBox().y1);
    Button::InitArgs a(L"Inside", WidgetCallback("in"), 0, 24);
    Button* b = g->createWidget<Button>(a, Glob::UserTopLeft(0, 0));
    EXPECT_EQ(b->width(), u.width()) << "a child of width 0 takes the user area's width";
    EXPECT_EQ(b->getX(), u.x1);
    EXPECT_EQ(b->getY() + b->height(), u.y2);

    g->setActive(false);
    EXPECT_FALSE(b->isActive());
    g->setActive(true);
    EXPECT_TRUE(b->isActive());

    g->setTitle(UIString());
    EXPECT_GT(g->getUserArea().y2, u.y2) << "without a legend the user area rises";
    EXPECT_EQ(b->getY() + b->height(), g->getUserArea().y2) << "the children follow";
    EXPECT_TRUE(g->legendBox().isEmpty());
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(g, (f.x1 + f.x2) / 2, g->frameBox().y2 - 1, line(g), 2)) << "the top line is whole";
    EXPECT_FALSE(g->hasTitleBar());
}

TEST_F(Groups, SizesFollowTheContentsAndDegenerateSizesAreSafe) {
    const UifStd& u = UifStd::instance();
    const XY<int> size = WidgetGroup::calcSizeForContents({200, 100}, L"Legend");
    WidgetGroup* g = add<WidgetGroup>(WidgetGroup::InitArgs(L"Legend", static_cast<unsigned short>(size.x), static_cast<unsigned short>(size.y)));
    EXPECT_EQ(g->getUserArea().size(), XY<int>(200, 100));
    const int rows = WidgetGroup::calcHeightForRows(3, u.getRowHeight(), u.getRowGap());
    EXPECT_EQ(rows - WidgetGroup::calcHeightForRows(2, u.getRowHeight(), u.getRowGap()), u.getRowHeight() + u.getRowGap());
    EXPECT_EQ(WidgetGroup::calcHeightForRows(-2, u.getRowHeight(), u.getRowGap()), WidgetGroup::calcHeightForRows(0, 0, 0));
    EXPECT_EQ(WidgetGroup::calcSizeForContents({-5, -5}, UIString()), WidgetGroup::calcSizeForContents({0, 0}, UIString()));

    g->resize(0, 0);
    EXPECT_TRUE(g->getUserArea().isEmpty());
    EXPECT_GE(g->getUserArea().x2, g->getUserArea().x1);
    g->resize(8, 8);
    TestKit::pump();
    EXPECT_LE(g->legendBox().x2, std::max(g->legendBox().x1, g->frameBox().x2));
}
