#include "controls/CycleButton.h"
#include "ControlsTestSupport.h"
#include "draw/FontDesc.h"

namespace {
class CycleButtons : public ControlsTest {
protected:
    CycleButton* cycle() { return add<CycleButton>(CycleButton::InitArgs({L"Off", L"Slow", L"Fast"}, WidgetCallback("speed"), 100, 28)); }
};
} // namespace

TEST_F(CycleButtons, ClicksStepThroughTheStatesAndWrap) {
    CycleButton* c = cycle();
    EXPECT_EQ(c->getPickState(), 0);
    EXPECT_EQ(c->getLabel().getString(), WString(L"Off"));
    for (int i = 0; i < 3; ++i) TestKit::click(TestKit::centreOf(c));
    TestKit::pump();
    EXPECT_EQ(c->getPickState(), 0);
    EXPECT_EQ(host->messages.size(), 3u);
    TestKit::click(TestKit::centreOf(c), Event::kLeft, Modifiers::Shift);
    EXPECT_EQ(c->getPickState(), 2) << "shift steps back";
    EXPECT_EQ(c->getLabel().getString(), WString(L"Fast"));
}

TEST_F(CycleButtons, StatesOutOfRangeAndEmptyListsAreHarmless) {
    CycleButton* c = cycle();
    c->setPickState(9);
    EXPECT_EQ(c->getPickState(), 2);
    c->setPickStrings({L"Only"});
    EXPECT_EQ(c->getPickState(), 0);
    c->setPickStrings({});
    TestKit::click(TestKit::centreOf(c));
    EXPECT_EQ(c->getPickState(), 0);
    EXPECT_TRUE(c->getLabel().getString().empty());
    EXPECT_TRUE(host->messages.empty()) << "nothing to step to, nothing to report";
}

TEST_F(CycleButtons, ArrowKeysStepAFocusedButton) {
    CycleButton* c = cycle();
    c->claimKbdFocus();
    TestKit::pressKey(Keys::Down);
    TestKit::pressKey(Keys::Down);
    TestKit::pressKey(Keys::Up);
    EXPECT_EQ(c->getPickState(), 1);
}

TEST_F(CycleButtons, IconsStandForTheirStatesAndAMissingOneLeavesTheLabel) {
    CycleButton* c = add<CycleButton>(CycleButton::InitArgs({L"Hidden", L"Shown", L"Third"}, WidgetCallback("eye"), 40, 28));
    const std::uint32_t face = TestKit::globPixel(c, 3, 14);
    const BoxInt middle(12, 6, 28, 22);
    c->setPickIcons({getIconPath(L"eye-closed"), getIconPath(L"eye-open"), L"/no/such/icon.png"});
    TestKit::pump();
    EXPECT_TRUE(c->showsIcon());
    EXPECT_TRUE(c->getLabel().getString().empty()) << "the label is kept off an icon";
    const int closedInk = inkPixels(c, middle, face);
    EXPECT_GT(closedInk, 20);
    TestKit::click(TestKit::centreOf(c));
    EXPECT_TRUE(c->showsIcon());
    EXPECT_NE(inkPixels(c, middle, face), closedInk) << "each state paints its own icon";
    TestKit::click(TestKit::centreOf(c));
    EXPECT_FALSE(c->showsIcon());
    EXPECT_EQ(c->getLabel().getString(), WString(L"Third"));
    EXPECT_GT(inkPixels(c, BoxInt(0, 6, 40, 22), face), 0) << "the label is painted instead";

    c->setPickStrings({});
    EXPECT_EQ(c->numStates(), 3u) << "icons alone make states";
    EXPECT_EQ(c->getPickState(), 2);
}
