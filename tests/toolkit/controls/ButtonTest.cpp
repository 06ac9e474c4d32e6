#include "ControlsTestSupport.h"
#include "controls/ButtonWidget.h"
#include "controls/PushButton.h"
#include "draw/UifStd.h"
#include "value/ValAdaptor.h"

namespace {

class Buttons : public ControlsTest {
protected:
    Button* button(const WidgetCallback& cb = WidgetCallback("pressed")) { return add<Button>(Button::InitArgs(L"Apply", cb, 120, 30)); }
    // A point of the face clear of the label and the rounded corners.
    static XY<int> facePoint(const Glob* b) { return {6, b->height() / 2}; }
    std::uint32_t face(const Glob* b) { return TestKit::globPixel(b, facePoint(b).x, facePoint(b).y); }
};

} // namespace

TEST_F(Buttons, AClickSendsTheMessageToTheOwnerOrCallsTheCallback) {
    Button* b = button();
    TestKit::click(b);
    ASSERT_EQ(host->messages, std::vector<std::string>{"pressed"});
    EXPECT_EQ(host->senders[0], b);

    int calls = 0;
    std::string name;
    b->setCallback(WidgetCallback(countingCallback(calls, &name), "viaCallback"));
    TestKit::click(b);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(name, "viaCallback");
    EXPECT_EQ(host->messages.size(), 1u) << "a callback replaces the message";
}

TEST_F(Buttons, ReleasingOutsideOrWhileInactiveDoesNotClick) {
    Button* b = button();
    TestKit::mouseDown(TestKit::centreOf(b));
    TestKit::mouseMove(TestKit::screenPointOf(b, {b->width() + 30, 5}));
    TestKit::mouseUp(TestKit::screenPointOf(b, {b->width() + 30, 5}));
    EXPECT_TRUE(host->messages.empty());
    b->setActive(false);
    TestKit::click(b);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(Buttons, TheKeyboardClicksAFocusedButton) {
    Button* b = button();
    ASSERT_TRUE(b->claimKbdFocus());
    TestKit::pressKey(Keys::Space);
    TestKit::pressKey(Keys::Return);
    TestKit::pressKey('x');
    EXPECT_EQ(host->messages.size(), 2u);
}

TEST_F(Buttons, TheFaceShowsHoverPressFocusAndInactivity) {
    Button* b = button();
    const Palette& p = b->getPalette();
    EXPECT_TRUE(TestKit::pixelNear(b, facePoint(b).x, facePoint(b).y, TestKit::argb(p.window(kShadeLight)), 2));
    TestKit::mouseMove(TestKit::centreOf(b));
    EXPECT_TRUE(TestKit::pixelNear(b, facePoint(b).x, facePoint(b).y, TestKit::argb(p.window(kShadeLighter)), 2));
    TestKit::mouseDown(TestKit::centreOf(b));
    EXPECT_TRUE(TestKit::pixelNear(b, facePoint(b).x, facePoint(b).y, TestKit::argb(p.window(kShadeDark)), 2));
    TestKit::mouseUp(TestKit::centreOf(b));
    b->claimKbdFocus();
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(b, 0, b->height() / 2, TestKit::argb(p.selection(kSelectionFocused)), 60)) << "a focus ring";
    const std::uint32_t light = TestKit::argb(p.window(kShadeLighter));
    EXPECT_GT(inkPixels(b, BoxInt(20, 4, 100, 26), light), 30) << "the label is painted";
    b->setActive(false);
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(b, facePoint(b).x, facePoint(b).y, TestKit::argb(p.window(kShadeNormal)), 2));
}

TEST_F(Buttons, AFlatButtonShowsItsFaceOnlyUnderTheMouse) {
    Button* b = button();
    b->setStyle(Button::kFlat, Button::kFlat);
    TestKit::mouseMove({5, 5});
    EXPECT_TRUE(TestKit::pixelNear(b, facePoint(b).x, facePoint(b).y, TestKit::argb(host->getPalette().window()), 2));
    TestKit::mouseMove(TestKit::centreOf(b));
    EXPECT_TRUE(TestKit::pixelNear(b, facePoint(b).x, facePoint(b).y, TestKit::argb(b->getPalette().window(kShadeLighter)), 2));
}

TEST_F(Buttons, SizesFollowTheLabelAndTheRowHeight) {
    EXPECT_EQ(Button::calcHeight(), UifStd::instance().getRowHeight());
    EXPECT_GT(Button::calcWidth(L"A much longer label"), Button::calcWidth(L"OK"));
    EXPECT_GT(Button::calcWidth(L""), 0);
}

TEST_F(Buttons, TheDefaultPushButtonCarriesTheDoItColour) {
    auto* ok = add<PushButton>(PushButton::InitArgs(L"OK", WidgetCallback("ok"), 100, 30));
    const std::uint32_t doIt = TestKit::argb(ok->getPalette().doIt());
    EXPECT_EQ(inkPixels(ok, BoxInt(10, 0, 90, 6), doIt, 10), 80 * 6) << "no do-it colour before it is the default";
    ok->setDefault(true);
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(ok, 50, 3, doIt, 2));
}

TEST_F(Buttons, AButtonWidgetOffersItsValueAndShowsTheValueItIsGiven) {
    struct Counter : ButtonWidget<int> {
        using ButtonWidget<int>::ButtonWidget;
        int nextValue() const override { return getWidgetValue() + 1; }
        UIString labelFor(const int& v) const override { return UIString(WString(std::to_wstring(v))); }
    };
    ValServer<int> clicks(5);
    Button::InitArgs args(L"", WidgetCallback("counted"), 80, 30);
    args.canvas = host->canvas();
    auto* c = new Counter(args);
    host->addChild(c, Glob::UserBottomLeft(20, 20));
    auto adaptor = Zn::Ptr<ValAdaptorBase<int>>(new ValAdaptor<int, int>(&clicks));
    c->setDataAdaptor(adaptor);
    adaptor->forceWidgetUpdate(kRedraw);
    EXPECT_EQ(c->getLabel().getString(), WString(L"5"));
    TestKit::pump();
    TestKit::click(c);
    EXPECT_EQ(clicks.value(), 6);
    EXPECT_EQ(c->getLabel().getString(), WString(L"6"));
    EXPECT_EQ(host->messages, std::vector<std::string>{"counted"});
    clicks = 40;
    EXPECT_EQ(c->getWidgetValue(), 40);
    EXPECT_EQ(host->messages.size(), 1u) << "a value from the data does not click";
}

TEST_F(Buttons, StatesComeThroughOneVirtualAndShowTheirColours) {
    struct Recording : Button {
        using Button::Button;
        void switchState(button_state s, bool redraw) override {
            seen.push_back(s);
            Button::switchState(s, redraw);
        }
        std::vector<button_state> seen;
    };
    auto* b = add<Recording>(Button::InitArgs(L"", WidgetCallback(), 60, 30));
    b->setLatching(true);
    b->setStateColour(Button::kButtonDown, Colour(0.0, 0.0, 1.0));
    TestKit::click(TestKit::centreOf(b));
    TestKit::pump();
    EXPECT_EQ(b->getState(), Button::kButtonDown);
    EXPECT_TRUE(b->isLatched());
    TestKit::mouseMove({5, 5});
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(b, b->width() / 2, b->height() / 2, 0xFF0000FFu, 2)) << "the down state's own colour";

    b->setState(7, 1);
    EXPECT_EQ(b->getState(), Button::kButtonUp) << "a number that names no state counts as up";
    EXPECT_EQ(b->seen.size(), 3u);
}

TEST_F(Buttons, AClickCanComeOnThePressAndMouseClicksCanBeIgnoredWhileKeysStillWork) {
    Button* b = button();
    b->setMessageOnMouseUp(false);
    TestKit::mouseDown(TestKit::centreOf(b));
    EXPECT_EQ(host->messages.size(), 1u) << "the press itself clicks";
    TestKit::mouseUp(TestKit::centreOf(b));
    EXPECT_EQ(host->messages.size(), 1u) << "and the release adds nothing";

    b->setMessageOnMouseUp(true);
    b->setIgnoreMouseClicks(true);
    TestKit::click(b);
    EXPECT_EQ(host->messages.size(), 1u);
    ASSERT_TRUE(b->claimKbdFocus());
    TestKit::pressKey(Keys::Space);
    EXPECT_EQ(host->messages.size(), 2u);
}

TEST_F(Buttons, OwnColoursPaintTheFaceAndTheLabelUpAndDown) {
    Button* b = button();
    b->setLatching(true);
    b->setCols(Colour(0.0, 0.5, 0.0), Colour(1.0, 1.0, 0.0));
    b->setDownCols(Colour(0.0, 0.0, 0.5), Colour(1.0, 0.0, 1.0));
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(b, facePoint(b).x, facePoint(b).y, 0xFF008000u, 2));
    EXPECT_GT(TestKit::countPixels(b, BoxInt(20, 4, 100, 26), Colour(1.0, 1.0, 0.0), 60), 10) << "a yellow label";
    b->setLatched(true);
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(b, facePoint(b).x, facePoint(b).y, 0xFF000080u, 2));
    EXPECT_GT(TestKit::countPixels(b, BoxInt(20, 4, 100, 26), Colour(1.0, 0.0, 1.0), 60), 10) << "a magenta label";
}

TEST_F(Buttons, AnIconOrAGlyphStandsLeftOfTheLabelAndAutoResizeMakesRoomForIt) {
    Button* b = button();
    b->autoResize();
    const int plain = b->width();
    EXPECT_EQ(plain, Button::calcWidth(L"Apply"));
    EXPECT_EQ(b->height(), 30) << "the height stays";

    b->setIcon(L"/no/such/icon.png");
    b->autoResize();
    EXPECT_FALSE(b->hasIcon());
    EXPECT_EQ(b->width(), plain) << "an icon that cannot be read takes no room";

    b->setGlyph(ArrowGlyph::kRight);
    b->autoResize();
    EXPECT_GT(b->width(), plain + 20);
    TestKit::pump();
    const std::uint32_t face = TestKit::globPixel(b, 2, b->height() / 2);
    EXPECT_GT(inkPixels(b, BoxInt(4, 4, 26, 26), face, 60), 20) << "the arrow is painted at the left";

    b->setIcon(getIconPath(L"poot"));
    EXPECT_TRUE(b->hasIcon()) << "a shipped icon is found";
    b->setLabel(UIString());
    b->autoResize();
    EXPECT_EQ(b->width(), b->height()) << "an icon alone makes a square button";
}
