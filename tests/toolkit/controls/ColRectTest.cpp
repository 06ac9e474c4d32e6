#include "controls/ColRect.h"
#include "PanelsTestSupport.h"
#include "value/ValAdaptor.h"

#include <cmath>
#include <limits>

namespace {

class Swatches : public ControlsTest {
protected:
    ColRect* swatch(const ColourData& c, const WidgetCallback& cb = WidgetCallback("swatch")) {
        return add<ColRect>(ColRect::InitArgs(c, cb, 60, 40));
    }
};

} // namespace

TEST_F(Swatches, TheSwatchIsFilledWithItsColourAndOutlined) {
    ColRect* s = swatch(ColourData(1.0, 0.0, 0.0, 0, 1.0));
    EXPECT_TRUE(TestKit::pixelNear(s, 30, 20, 0xFFFF0000, 1));
    const std::uint32_t outline = TestKit::argb(s->getPalette().window(kShadeDarkest));
    EXPECT_TRUE(TestKit::pixelNear(s, 0, 20, outline, 2));
    EXPECT_TRUE(TestKit::pixelNear(s, 30, 39, outline, 2));

    s->setOutline(false);
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(s, 0, 20, 0xFFFF0000, 1));

    s->setColour(ColourData(120.0, 1.0, 1.0, 2, 1.0));
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(s, 30, 20, 0xFF00FF00, 1)) << "an HSV colour is shown as its RGB";
    EXPECT_EQ(s->getColour().getColourSpace(), kColourSpaceHSV) << "the colour is kept as given";

    s->setActive(false);
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(s, 30, 20, TestKit::argb(Colour::mix(Colour(0.0, 1.0, 0.0), s->getPalette().window(), 0.5)), 2))
        << "an inactive swatch is faded towards the window";
}

TEST_F(Swatches, TranslucentColoursShowAChequerAndBadComponentsAreClamped) {
    ColRect* s = swatch(ColourData(0.0, 0.0, 1.0, 0, 0.5));
    s->setOutline(false);
    TestKit::pump();
    std::uint32_t a = TestKit::globPixel(s, 2, 2);
    bool differs = false;
    for (int x = 0; x < 40 && !differs; ++x) differs = !similar(TestKit::globPixel(s, x, 2), a, 10);
    EXPECT_TRUE(differs) << "two shades of chequer show through";
    EXPECT_GT(a & 0xFF, (a >> 16) & 0xFF) << "the blue is there";

    const double nan = std::numeric_limits<double>::quiet_NaN();
    s->setColour(ColourData(nan, 7.0, -3.0, 0, 1.0));
    EXPECT_EQ(s->displayColour(), Colour(0.0, 1.0, 0.0));
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(s, 30, 20, 0xFF00FF00, 1));
}

TEST_F(Swatches, AClickFiresTheCallbackAndLeavesTheColour) {
    const ColourData red(1.0, 0.0, 0.0, 0, 1.0);
    ColRect* s = swatch(red);
    TestKit::click(TestKit::centreOf(s));
    ASSERT_EQ(host->messages, std::vector<std::string>{"swatch"});
    EXPECT_EQ(host->senders[0], s);
    EXPECT_EQ(s->getColour(), red);

    int calls = 0;
    s->setCallback(WidgetCallback(countingCallback(calls), "picked"));
    ASSERT_TRUE(s->claimKbdFocus());
    TestKit::pressKey(Keys::Return);
    EXPECT_EQ(calls, 1);
    TestKit::pump();
    EXPECT_LT(PanelsTest::nearestTo(s, BoxInt(0, 0, 60, 40), TestKit::argb(s->getPalette().selection(kSelectionFocused))), 10)
        << "focus shows as a ring";

    s->setClickable(false);
    TestKit::click(TestKit::centreOf(s));
    EXPECT_EQ(calls, 1) << "a swatch that only shows takes no clicks";
    EXPECT_FALSE(s->acceptsKbdFocus());
}

TEST_F(Swatches, ABoundSwatchShowsItsValue) {
    ValServer<ColourData> colour(ColourData(0.0, 0.0, 1.0, 0, 1.0));
    ColRect* s = swatch(ColourData());
    auto adaptor = Zn::Ptr<ValAdaptorBase<ColourData>>(new ValAdaptor<ColourData, ColourData>(&colour));
    s->setDataAdaptor(adaptor);
    adaptor->forceWidgetUpdate(kRedraw);
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(s, 30, 20, 0xFF0000FF, 1));
    colour = ColourData(1.0, 1.0, 0.0, 0, 1.0);
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(s, 30, 20, 0xFFFFFF00, 1));
    EXPECT_EQ(s->getWidgetValue(), ColourData(1.0, 1.0, 0.0, 0, 1.0));
}
