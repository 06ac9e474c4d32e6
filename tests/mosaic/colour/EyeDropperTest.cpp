#include "colour/ColEyeDropBase.h"
#include "colour/ColourPicker.h"
#include "colour/ComponentTextBox.h"
#include "colour/MagnifyTool.h"
#include "colour/colourEyeDropper.h"
#include "controls/Slider.h"
#include "controls/TipWindowBase.h"
#include "draw/UifStd.h"
#include "glob/glib_setCursor.h"
#include "platform/CommandRegistrar.h"
#include "platform/EditorPreferences.h"
#include "testkit/TestKit.h"

#include <string>

namespace {

StandardPanel* patch(const Colour& c, XY<int> at, int w = 40, int h = 40) {
    auto* p = new StandardPanel(StandardPanel::InitArgs(static_cast<unsigned short>(w), static_cast<unsigned short>(h)));
    p->setCol(c, false);
    return TestKit::realize(p, at);
}

std::wstring text(const char* box) { return TestKit::find<ComponentTextBox>(box)->getString().str(); }

class EyeDroppers : public TestKit::ScreenTest {
protected:
    void SetUp() override {
        ColourPicker::InitArgs args(ColourPicker::kRGBParts, ColourData(0.0, 0.0, 0.0, kColourSpaceRGB, 1.0));
        const XY<int> size = ColourPicker::calcSize(args.flags);
        args.width = static_cast<unsigned short>(size.x);
        args.height = static_cast<unsigned short>(size.y + 40);
        picker = TestKit::realize(new ColourPicker(args), {100, 100});
        colourEyeDropper::InitArgs dropperArgs(30, 30);
        dropper = picker->createWidget<colourEyeDropper>(dropperArgs, Glob::BottomLeft(4, 4));
        dropper->setName("dropper");
        TestKit::pump();
    }
    // Presses and releases the dropper: the capture starts at the release.
    void startCapture() {
        ASSERT_TRUE(TestKit::click("dropper"));
        TestKit::pump();
        ASSERT_TRUE(dropper->enabled());
    }
    ColourPicker* picker = nullptr;
    colourEyeDropper* dropper = nullptr;
};

} // namespace

TEST_F(EyeDroppers, AClickOnAnotherPanelSendsItsExactBytesWhileTheMagnifierFollows) {
    patch(Colour(51 / 255.0, 153 / 255.0, 204 / 255.0), {900, 500});
    startCapture();
    EXPECT_EQ(glib_forcedCursor(), kCursorEyeDropper);
    EXPECT_FALSE(TipWindowBase::tooltipsEnabled());
    TestKit::mouseMove({920, 520});
    MagnifyTool* m = dropper->magnifier();
    ASSERT_NE(m, nullptr);
    EXPECT_EQ(m->size(), XY<int>(130, 130));
    EXPECT_EQ(XY<int>(m->getX(), m->getY()), XY<int>(920 + 15, 520 - 130));

    TestKit::click({920, 520});
    TestKit::pump();
    EXPECT_EQ(text("R"), L"51");
    EXPECT_EQ(text("G"), L"153");
    EXPECT_EQ(text("B"), L"204");
    EXPECT_FALSE(dropper->enabled());
    EXPECT_EQ(dropper->magnifier(), nullptr);
    EXPECT_EQ(dropper->getState(), Button::kButtonUp);
    EXPECT_FALSE(glib_forcedCursor().has_value());
    EXPECT_TRUE(TipWindowBase::tooltipsEnabled());
}

TEST_F(EyeDroppers, AnAreaHalfBlackHalfWhiteGivesTheTruncatedMean) {
    patch(Colour(0.0, 0.0, 0.0), {800, 600}, 20, 20);
    patch(Colour(1.0, 1.0, 1.0), {820, 600}, 20, 20);
    startCapture();
    TestKit::drag({810, 610}, {829, 610});
    TestKit::pump();
    EXPECT_EQ(text("R"), L"127");
    EXPECT_EQ(text("B"), L"127");
}

TEST_F(EyeDroppers, EscapeOrAClickOnTheDropperEndTheCaptureWithNothingTaken) {
    patch(Colour(1.0, 0.0, 0.0), {900, 500});
    const ColourData before = picker->getColour();
    startCapture();
    TestKit::mouseMove({920, 520});
    TestKit::pressKey(Keys::Escape);
    TestKit::pump();
    EXPECT_FALSE(dropper->enabled());
    EXPECT_TRUE(glib_mouseContextLogicEnabled());
    EXPECT_TRUE(TipWindowBase::tooltipsEnabled());
    TestKit::click({920, 520});
    TestKit::pump();
    EXPECT_EQ(picker->getColour(), before) << "after Escape the click is an ordinary one";

    startCapture();
    TestKit::click(TestKit::centreOf(dropper));
    TestKit::pump();
    EXPECT_FALSE(dropper->enabled());
    EXPECT_EQ(picker->getColour(), before);
}

TEST_F(EyeDroppers, ThePixelStyleSamplesAtThePressAndTheAreaIsNeverEmpty) {
    patch(Colour(0.0, 1.0, 0.0), {900, 500});
    dropper->setDropperStyle(kSamplePixel);
    startCapture();
    TestKit::mouseDown({910, 510});
    TestKit::pump();
    EXPECT_EQ(text("G"), L"255");
    TestKit::mouseUp({910, 510});
    EXPECT_FALSE(dropper->enabled());

    dropper->setDropperStyle(kSampleArea);
    startCapture();
    TestKit::mouseDown({700, 300});
    const auto area = dropper->getAreaToSample();
    EXPECT_EQ(area.x2 - area.x1, 1.0) << "an area started at the pointer is the pointer's pixel";
    EXPECT_EQ(area.y2 - area.y1, 1.0);
    TestKit::mouseMove({690, 310});
    EXPECT_EQ(dropper->getAreaToSample().x1, 690.0);
    EXPECT_EQ(dropper->getAreaToSample().y2, 311.0);
    TestKit::mouseUp({690, 310});
}

TEST(EyeDropperMessages, TheValueTravelsDividedBy255AndParseTakesOnlyFiveFields) {
    const auto msg = ColEyeDropBase::pixelToMsg({255, 255, 255});
    double h = -1.0, s = -1.0, v = -1.0;
    ColEyeDropBase::parse(msg.c_str(), h, s, v);
    EXPECT_NEAR(255.0 * v, 1.0, 1e-5);
    EXPECT_EQ(s, 0.0);
    h = s = v = 7.0;
    ColEyeDropBase::parse("colour_eye_dropper HSV 1 2", h, s, v);
    EXPECT_EQ(v, 7.0);
    ColEyeDropBase::parse("colour_eye_dropper RGB 1 2 3", h, s, v);
    EXPECT_EQ(v, 3.0) << "the second field is not looked at";
    ColEyeDropBase::parse(nullptr, h, s, v);
    EXPECT_EQ(h, 1.0);
}

TEST_F(EyeDroppers, RangesLeaveOutGreyAndAFailedGrabIsBlack) {
    patch(Colour(0.5, 0.5, 0.5), {900, 500});
    auto grey = ColEyeDropBase::getPixelRange({905, 505, 915, 515});
    for (double d : grey) EXPECT_EQ(d, -1.0);
    auto* red = patch(Colour(1.0, 0.0, 0.0), {910, 510}, 1, 1);
    TestKit::pump();
    ASSERT_TRUE(red);
    auto one = ColEyeDropBase::getPixelRange({905, 505, 915, 515});
    EXPECT_EQ(one[0], one[1]);
    EXPECT_EQ(one[4], 1.0);
    EXPECT_EQ(ColEyeDropBase::getPixelColour({10, 10, 10, 10}), ColEyeDropBase::Triple{});
}

namespace {

class Magnifiers : public TestKit::ScreenTest {};

} // namespace

TEST_F(Magnifiers, ShowMagnifierOpensTheToolAndItsLevelOutlivesIt) {
    prefs().setPreference(MagnifyTool::levelPref, 2);
    prefs().setPreference(MagnifyTool::widthPref, 200);
    prefs().setPreference(MagnifyTool::heightPref, 220);
    TestKit::mouseMove({400, 300});
    ASSERT_TRUE(CommandRegistrar::invoke("Show Magnifier"));
    TestKit::pump();
    auto* m = TestKit::find<MagnifyTool>("MagnifyTool");
    ASSERT_NE(m, nullptr);
    EXPECT_EQ(m->size(), XY<int>(200, 220));
    EXPECT_NE(m->getTitle().getString().str().find(L" (2 : 1)"), std::wstring::npos);

    Slider* slider = m->levelSlider();
    ASSERT_TRUE(TestKit::drag(slider, {slider->xOf(4.0) - slider->width() / 2, 0}));
    TestKit::pump();
    EXPECT_EQ(m->level(), 4);
    EXPECT_NE(m->getTitle().getString().str().find(L" (4 : 1)"), std::wstring::npos);

    GlobManager::instance().requestDeletion(m);
    TestKit::pump();
    prefs().reload(); // as the next run of the program reads the file
    EXPECT_EQ(prefs().getPreference(MagnifyTool::levelPref, 0), 4);
}

TEST_F(Magnifiers, TheBareFrameShowsTheScreenAroundThePointerEnlargedAndKeepsNoPreferences) {
    prefs().setPreference(MagnifyTool::levelPref, 3);
    patch(Colour(0.0, 0.0, 1.0), {600, 600});
    TestKit::mouseMove({620, 620});
    MagnifyTool::InitArgs args(MagnifyTool::kBareFrame, 8);
    args.width = args.height = static_cast<unsigned short>(130 + 2 * UifStd::instance().getWidgetGap());
    auto* m = TestKit::realize(new MagnifyTool(args), {1000, 200});
    TestKit::pump();
    ASSERT_EQ(m->imageSize().x, 130);
    EXPECT_EQ(m->sourceBox().x2 - m->sourceBox().x1, 17) << "16 whole pixels and a part, made odd";
    EXPECT_EQ(m->sourceBox().x1, 620 - 8);
    const BoxInt user = m->getUserArea();
    EXPECT_TRUE(TestKit::pixelNear(m, user.x1 + 3, user.y2 - 3, 0xFF0000FF));
    GlobManager::instance().requestDeletion(m);
    TestKit::pump();
    EXPECT_EQ(prefs().getPreference(MagnifyTool::levelPref, 0), 3);
}
