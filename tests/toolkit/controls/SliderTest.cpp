#include "controls/Slider.h"
#include "ControlsTestSupport.h"
#include "value/ValAdaptor.h"

#include <cmath>

namespace {

class Sliders : public ControlsTest {
protected:
    Slider* slider(double min = 0, double max = 100) {
        auto* s = add<Slider>(Slider::InitArgs(Colour(0.9, 0.3, 0.1), 220));
        s->setValueRange(min, max);
        return s;
    }
    XY<int> at(const Slider* s, double v) { return TestKit::screenPointOf(s, {s->xOf(v), s->height() / 2}); }
};

// Counts the values a bound slider asked for, and of which kind.
class Requests : public ValAdaptor<double, double> {
public:
    using ValAdaptor<double, double>::ValAdaptor;
    bool requestSetNewDataValue(const double& v, DataChangeType type) override {
        (type == kFinalChange ? finals : intermediates).push_back(v);
        return ValAdaptor<double, double>::requestSetNewDataValue(v, type);
    }
    std::vector<double> intermediates, finals;
};

} // namespace

TEST_F(Sliders, DraggingAsksForIntermediateValuesAndOneFinalValue) {
    ValServer<double> level(0.0);
    Slider* s = slider();
    Zn::Ptr<Requests> requests(new Requests(&level));
    s->setDataAdaptor(requests);
    s->setCallback(WidgetCallback("released"));
    TestKit::drag(at(s, 10), at(s, 80), 4);
    EXPECT_GE(requests->intermediates.size(), 3u);
    ASSERT_EQ(requests->finals.size(), 1u);
    EXPECT_NEAR(requests->finals[0], 80, 1.0);
    EXPECT_NEAR(level.value(), 80, 1.0);
    EXPECT_EQ(s->getPosition(), level.value());
    EXPECT_EQ(host->messages, std::vector<std::string>{"released"});
    level = 25;
    EXPECT_EQ(s->getPosition(), 25) << "the data moves the thumb";
    EXPECT_EQ(requests->finals.size(), 1u) << "without asking for a change";
}

TEST_F(Sliders, ADragSnapsToThePointOfInterest) {
    Slider* s = slider();
    s->setPointOfInterest(50);
    TestKit::mouseDown(at(s, 20));
    TestKit::mouseMove(TestKit::screenPointOf(s, {s->xOf(50) + 1, 5}));
    TestKit::mouseUp(TestKit::screenPointOf(s, {s->xOf(50) + 1, 5}));
    EXPECT_EQ(s->getPosition(), 50);
}

TEST_F(Sliders, KeysAndWheelStepByTheIncrement) {
    Slider* s = slider(0, 10);
    s->setValueIncrement(0.5);
    s->claimKbdFocus();
    TestKit::pressKey(Keys::Right);
    TestKit::pressKey(Keys::Right);
    TestKit::pressKey(Keys::Left);
    EXPECT_DOUBLE_EQ(s->getPosition(), 0.5);
    TestKit::pressKey(Keys::PageUp);
    EXPECT_DOUBLE_EQ(s->getPosition(), 5.5);
    TestKit::pressKey(Keys::End);
    EXPECT_DOUBLE_EQ(s->getPosition(), 10);
    TestKit::pressKey(Keys::Right);
    EXPECT_DOUBLE_EQ(s->getPosition(), 10) << "held at the end";
    TestKit::wheel(TestKit::centreOf(s), -1);
    EXPECT_DOUBLE_EQ(s->getPosition(), 9.5);
    s->setValueIncrement(-3);
    EXPECT_DOUBLE_EQ(s->getValueIncrement(), 0.1) << "a nonsense step falls back to a hundredth of the range";
}

TEST_F(Sliders, NaNAndReversedRangesLeaveAUsableSlider) {
    Slider* s = slider(10, 0);
    EXPECT_EQ(s->getMinValue(), 0);
    EXPECT_EQ(s->getMaxValue(), 10);
    s->setValueRange(std::nan(""), 20);
    EXPECT_EQ(s->getMinValue(), 0);
    EXPECT_EQ(s->getMaxValue(), 20);
    s->setPosition(std::nan(""));
    EXPECT_EQ(s->getPosition(), 0);
    s->setPosition(1e300);
    EXPECT_EQ(s->getPosition(), 20);
    s->setPointOfInterest(std::nan(""));
    TestKit::drag(at(s, 2), at(s, 15), 3);
    EXPECT_NEAR(s->getPosition(), 15, 0.5);
    s->setValueRange(5, 5);
    TestKit::click(at(s, 5));
    EXPECT_EQ(s->getPosition(), 5);
}

TEST_F(Sliders, TheTrackFillsInTheSliderColourUpToTheThumb) {
    Slider* s = slider();
    s->setPosition(50);
    TestKit::pump();
    const std::uint32_t fill = TestKit::argb(Colour(0.9, 0.3, 0.1));
    const int mid = s->height() / 2;
    EXPECT_TRUE(similar(TestKit::globPixel(s, s->xOf(20), mid), fill, 10));
    EXPECT_FALSE(similar(TestKit::globPixel(s, s->xOf(80), mid), fill, 10));
    s->setPosition(90);
    TestKit::pump();
    EXPECT_TRUE(similar(TestKit::globPixel(s, s->xOf(80), mid), fill, 10));
    s->setActive(false);
    TestKit::pump();
    EXPECT_FALSE(similar(TestKit::globPixel(s, s->xOf(20), mid), fill, 10)) << "an inactive slider is drawn dimmed";
    TestKit::click(at(s, 10));
    EXPECT_EQ(s->getPosition(), 90);
}
