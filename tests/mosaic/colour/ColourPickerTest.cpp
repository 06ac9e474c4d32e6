#include "colour/ColourPicker.h"
#include "colour/ComponentTextBox.h"
#include "colour/DropDownColourPickerButton.h"
#include "controls/ColRect.h"
#include "controls/Slider.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "testkit/TestKit.h"
#include "value/ValAdaptor.h"

#include <string>
#include <vector>

namespace {

// The parent of a picker or a button: records the messages it hears and their colours.
class Owner : public StandardPanel {
public:
    Owner() : StandardPanel(InitArgs(400, 400)) {}
    int handleMessageEvent(const LightweightString<char>& message, Glob*) override {
        heard.push_back(message.str());
        return 1;
    }
    int handleDataMessageEvent(const LightweightString<char>& message, Glob*, const Zn::Ptr<iObject>& data) override {
        heard.push_back(message.str());
        if (auto e = Zn::dynamicCast<DropDownColourPickerButton::Event>(data)) colours.push_back(e->colour);
        return 1;
    }
    std::vector<std::string> heard;
    std::vector<ColourData> colours;
};

// Counts what reaches the outside and can answer with another colour, as a value would.
class Outside : public ValAdaptor<ColourData, ColourData> {
public:
    using ValAdaptor::ValAdaptor;
    bool requestSetNewDataValue(const ColourData& c, DataChangeType type) override {
        ++requests;
        return ValAdaptor::requestSetNewDataValue(c, type);
    }
    int requests = 0;
};

ColourData rgb(double r, double g, double b) { return ColourData(r, g, b, kColourSpaceRGB, 1.0); }

std::wstring text(const char* box) { return TestKit::find<ComponentTextBox>(box)->getString().str(); }

class Pickers : public TestKit::ScreenTest {
protected:
    void SetUp() override { owner = TestKit::realize(new Owner, {100, 100}); }
    ColourPicker* addPicker(unsigned int flags, const ColourData& c = rgb(0.2, 0.4, 0.6)) {
        ColourPicker::InitArgs args(flags, c);
        const XY<int> size = ColourPicker::calcSize(flags);
        args.width = static_cast<unsigned short>(size.x);
        args.height = static_cast<unsigned short>(size.y);
        auto* p = owner->createWidget<ColourPicker>(args, Glob::BottomLeft(0, 0));
        TestKit::pump();
        return p;
    }
    Owner* owner = nullptr;
};

} // namespace

TEST_F(Pickers, EveryPartShowsTheColourAndAnEditGoesOutToAdaptorAndCaller) {
    ColourPicker* p = addPicker(ColourPicker::kRGBParts);
    EXPECT_EQ(text("R"), L"51");
    EXPECT_EQ(text("B"), L"153");
    EXPECT_EQ(text("#"), L"336699");
    EXPECT_EQ(p->alphaBox(), nullptr) << "no alpha group without its flag";
    auto outside = Zn::Ptr<Outside>(new Outside());
    ValServer<ColourData> value(rgb(0.2, 0.4, 0.6));
    outside->registerWith(&value);
    p->ColourDataValWidget::setDataAdaptor(outside);
    p->set_caller(owner, "picked");

    ASSERT_TRUE(TestKit::typeInto("R", L"255"));
    TestKit::pressKey(Keys::Return);
    TestKit::pump();
    EXPECT_NEAR(p->getColour().getRed(), 1.0, 1e-9);
    EXPECT_NEAR(value.value().getRed(), 1.0, 1e-9);
    EXPECT_EQ(outside->requests, 1) << "the echo from the value is not sent back out";
    EXPECT_EQ(text("#"), L"FF6699");
    EXPECT_NE(std::find(owner->heard.begin(), owner->heard.end(), "picked"), owner->heard.end());

    // From outside: an equal colour changes nothing; a new one reaches every part.
    value = rgb(1.0, 0.4, 0.6);
    EXPECT_EQ(outside->requests, 1);
    value = rgb(0.0, 0.0, 1.0);
    EXPECT_EQ(text("R"), L"0");
    EXPECT_EQ(outside->requests, 1);
}

TEST_F(Pickers, SetColourTellsNoPartAndTheEyeDropperMessageSetsAnOpaqueColour) {
    ColourPicker* p = addPicker(ColourPicker::kRGBParts | ColourPicker::kAlphaGroup, ColourData(0.1, 0.2, 0.3, kColourSpaceRGB, 0.5));
    p->setColour(rgb(1.0, 1.0, 1.0));
    EXPECT_EQ(text("R"), L"26") << "the parts keep the old colour until asked again";
    EXPECT_EQ(p->getColour(), rgb(1.0, 1.0, 1.0));

    // Pure red: hue 0, saturation 1, value 1/255.
    sendMessage("colour_eye_dropper HSV 0 1 0.00392157", p, nullptr);
    TestKit::pump();
    ColourData c = p->getColour();
    c.setColourSpace(kColourSpaceRGB);
    EXPECT_NEAR(c.getRed(), 1.0, 1e-5);
    EXPECT_NEAR(c.getGreen(), 0.0, 1e-9);
    EXPECT_DOUBLE_EQ(c.getAlpha(), 1.0);
    EXPECT_EQ(text("R"), L"255");

    const ColourData before = p->getColour();
    sendMessage("colour_eye_dropper RGB 120 1 0.00392157", p, nullptr);
    sendMessage("colour_eye_dropper HSV 120", p, nullptr);
    TestKit::pump();
    EXPECT_EQ(p->getColour(), before) << "only the HSV message is taken, and a short one changes nothing";
}

TEST_F(Pickers, ActivityFollowsTheFlagsAndTheLuminanceSliderStaysInactive) {
    ColourPicker* p = addPicker(ColourPicker::kHSVParts);
    p->setActive(false, kNoRedraw);
    EXPECT_FALSE(p->hueBox()->isActive());
    EXPECT_TRUE(p->componentBox(0)->isActive()) << "the RGB parts react only with their flag";
    p->setActive(true, kNoRedraw);
    EXPECT_TRUE(p->hueBox()->isActive());
    EXPECT_FALSE(p->luminanceSlider()->isActive());
    EXPECT_STREQ(ColourPicker::getDisplayName(ColourData::kAlpha), "A");
    EXPECT_EQ(TestKit::argb(ColourPicker::getSliderColour(static_cast<ColourData::ComponentID>(7))), TestKit::argb(Colour()));
}

namespace {

class PickerButtons : public Pickers {
protected:
    DropDownColourPickerButton* addButton(XY<int> at = {20, 20}) {
        DropDownColourPickerButton::InitArgs args(24, 24);
        auto* b = owner->createWidget<DropDownColourPickerButton>(args, Glob::BottomLeft(at.x, at.y));
        b->setName("swatch");
        b->setColour(NormalisedRGB(0.0f, 0.0f, 1.0f));
        TestKit::pump();
        return b;
    }
};

} // namespace

TEST_F(PickerButtons, TheSwatchFollowsEachChangeTheOwnerHearsItAndAClickOutsideCloses) {
    DropDownColourPickerButton* b = addButton();
    ASSERT_TRUE(TestKit::click("swatch"));
    TestKit::pump();
    ColourPicker* p = b->getDropDown();
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(b->getState(), Button::kButtonDown);
    EXPECT_EQ(text("B"), L"255");
    EXPECT_EQ(p->getY(), b->screenPos().y + b->height() - 1) << "over the button, sharing a pixel";

    ASSERT_TRUE(TestKit::typeInto("R", L"255"));
    TestKit::pressKey(Keys::Return);
    TestKit::pump();
    EXPECT_EQ(b->getColour(), NormalisedRGB(1.0f, 0.0f, 1.0f));
    ASSERT_FALSE(owner->colours.empty());
    EXPECT_NEAR(owner->colours.back().getRed(), 1.0, 1e-9);
    EXPECT_EQ(owner->heard.back(), DropDownColourPickerButton::kColourChangedMsg);
    EXPECT_EQ(b->getDropDown(), p) << "the picker stays open after a change";

    TestKit::click({1500, 900});
    TestKit::pump();
    EXPECT_EQ(b->getDropDown(), nullptr);
    EXPECT_EQ(b->getState(), Button::kButtonUp);
}

TEST_F(PickerButtons, NearTheTopThePickerOpensBelowAndEndAlignmentLinesUpRightEdges) {
    const int top = GlobManager::instance().screen().height();
    owner->setupRootPos({300, top - 400});
    DropDownColourPickerButton* b = addButton({100, 370});
    b->setDropAlignment(kAlignEnd);
    ASSERT_TRUE(TestKit::click("swatch"));
    TestKit::pump();
    ColourPicker* p = b->getDropDown();
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(p->getY() + p->height(), b->screenPos().y + 1) << "under the button";
    EXPECT_EQ(p->getX() + p->width(), b->screenPos().x + b->width());
}

TEST_F(PickerButtons, WithAnAdaptorThePickerWritesTheValueAndNoEventIsSent) {
    DropDownColourPickerButton* b = addButton();
    ValServer<ColourData> value(rgb(0.0, 1.0, 0.0));
    auto adaptor = Zn::Ptr<ValAdaptorBase<ColourData>>(new ValAdaptor<ColourData, ColourData>(&value));
    b->setDataAdaptor(adaptor);
    adaptor->forceWidgetUpdate(kNoRedraw);
    ASSERT_TRUE(TestKit::click("swatch"));
    TestKit::pump();
    ASSERT_TRUE(TestKit::typeInto("R", L"255"));
    TestKit::pressKey(Keys::Return);
    TestKit::pump();
    EXPECT_EQ(b->getColour(), NormalisedRGB(1.0f, 1.0f, 0.0f));
    EXPECT_NEAR(value.value().getRed(), 1.0, 1e-9);
    EXPECT_TRUE(owner->colours.empty());
}
