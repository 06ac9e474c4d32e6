// The road of one value change on the toolkit's real controls: a slider dragged
// with the mouse, a whole-number parameter that corrects the value, and a numeric
// text box on the same parameter, each showing what was stored, once.
#include "ParamTestSupport.h"
#include "controls/NumericTextBox.h"
#include "controls/Slider.h"
#include "controls/StandardPanel.h"
#include "glob/GlobManager.h"
#include "testing/TestKit.h"
#include "value/ValAdaptor.h"

#include <gtest/gtest.h>

using namespace GenericParam;

namespace {

// Counts what the data shows the controls; the controls themselves are untouched.
class CountingSlider : public Slider {
public:
    using Slider::Slider;
    void setNewWidgetValue(double& v, eRedrawFlag flag) override {
        ++shows;
        Slider::setNewWidgetValue(v, flag);
    }
    int shows = 0;
};

class CountingBox : public NumericTextBox {
public:
    using NumericTextBox::NumericTextBox;
    void setNewWidgetValue(LightweightString<wchar_t>& v, eRedrawFlag flag) override {
        ++shows;
        NumericTextBox::setNewWidgetValue(v, flag);
    }
    int shows = 0;
};

// Notes how often the slider had been shown a value when a change reached the parameter's handlers.
class SliderShowsWhenHeard : public iValueChangeHandler {
public:
    explicit SliderShowsWhenHeard(const int& shows) : shows_(shows) {}
    void valueChanged(const LightweightString<char>&, const LightweightString<wchar_t>&) override { seen.push_back(shows_); }
    std::vector<int> seen;

private:
    const int& shows_;
};

class ControlsRoad : public TestKit::ScreenTest {
protected:
    void SetUp() override {
        panel = TestKit::realize(new StandardPanel(StandardPanel::InitArgs(400, 120)));
        Slider::InitArgs sliderArgs(Colour(0.2, 0.5, 0.9), 300);
        slider = panel->createWidget<CountingSlider>(sliderArgs, Glob::UserBottomLeft(20, 70));
        slider->setValueRange(0, 10);
        NumericTextBox::InitArgs boxArgs(L"", 80, static_cast<unsigned short>(TextBox::calcHeight()));
        box = panel->createWidget<CountingBox>(boxArgs, Glob::UserBottomLeft(20, 20));
        steps.setRange(0, 8); // a range holds only for text; this road does not clamp to it
        steps.addValueConstraint(evenOnly);
        steps.addChangeHandler(heard);
        order = Zn::Ptr<SliderShowsWhenHeard>(new SliderShowsWhenHeard(slider->shows));
        steps.addChangeHandler(order);
        slider->setDataAdaptor(Zn::Ptr<ValAdaptorBase<double>>(new ValAdaptor<double, int>(&steps.server())));
        box->setDataAdaptor(Zn::Ptr<ValAdaptorBase<LightweightString<wchar_t>>>(new ValAdaptor<LightweightString<wchar_t>, int>(&steps.server())));
        TestKit::pump();
        box->shows = 0; // binding shows the box the stored value once
    }

    XY<int> on(double value) const { return TestKit::screenPointOf(slider, {slider->xOf(value), slider->height() / 2}); }

    IntParam steps{0, "steps", L"Steps", L""};
    Zn::Ptr<ParamTestSupport::Constraint> evenOnly{new ParamTestSupport::Constraint([](const LightweightString<wchar_t>& v) {
        int n = DataConvert::convert<LightweightString<wchar_t>, int>(v);
        return DataConvert::convert<int, LightweightString<wchar_t>>(n - n % 2);
    })};
    Zn::Ptr<ParamTestSupport::Recorder> heard{new ParamTestSupport::Recorder};
    Zn::Ptr<SliderShowsWhenHeard> order;
    StandardPanel* panel = nullptr;
    CountingSlider* slider = nullptr;
    CountingBox* box = nullptr;
};

} // namespace

TEST_F(ControlsRoad, ADraggedSliderStoresTheCorrectedWholeNumberAndBothControlsShowIt) {
    // Press on 1.2, move to 3.4 and let go there: one intermediate change, one final.
    TestKit::mouseDown(on(1.2));
    TestKit::mouseMove(on(3.4));
    TestKit::mouseUp(on(3.4));

    // One request per mouse event, whole numbers by truncation: the press asks
    // for 1, the move for 3, and the release for what the slider then shows.
    EXPECT_EQ(evenOnly->seen, (std::vector<LightweightString<wchar_t>>{L"1", L"3", L"2"}));
    EXPECT_EQ(steps.getValue(), 2) << "the parameter's constraint makes 3 even";
    EXPECT_DOUBLE_EQ(slider->getPosition(), 2.0) << "the dragged slider shows the stored value, not where the mouse let go";
    EXPECT_EQ(box->getString(), LightweightString<wchar_t>(L"2"));
    EXPECT_DOUBLE_EQ(box->getValue(), 2.0);

    // The echo stops: each of the three stored values reaches the handlers once and
    // each control once, and showing a value asks for no further change.
    EXPECT_EQ(heard->values, (std::vector<LightweightString<wchar_t>>{L"0", L"2", L"2"}));
    EXPECT_EQ(order->seen, (std::vector<int>{0, 1, 2})) << "the parameter's handlers hear of each change before any control shows it";
    EXPECT_EQ(slider->shows, 3);
    EXPECT_EQ(box->shows, 3);
    EXPECT_FALSE(slider->isDragging());
}

TEST_F(ControlsRoad, ANumberTypedInTheBoxMovesTheSlider) {
    TestKit::click(TestKit::centreOf(box));
    TestKit::pressKey('a', Modifiers::Control);
    TestKit::typeText(L"7");
    TestKit::pressKey(Keys::Return);

    EXPECT_EQ(steps.getValue(), 6);
    EXPECT_DOUBLE_EQ(slider->getPosition(), 6.0);
    EXPECT_EQ(box->getString(), LightweightString<wchar_t>(L"6")) << "the box that asked for 7 shows what was stored";
    EXPECT_EQ(heard->values, std::vector<LightweightString<wchar_t>>{L"6"});
    EXPECT_EQ(slider->shows, 1);

    // A key on the slider goes the same road back to the box.
    TestKit::click(on(6.0));
    TestKit::pressKey(Keys::End);
    EXPECT_EQ(steps.getValue(), 10) << "beyond the range: only text is clamped to it";
    EXPECT_EQ(box->getString(), LightweightString<wchar_t>(L"10"));
}
