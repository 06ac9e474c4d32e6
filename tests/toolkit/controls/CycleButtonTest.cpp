#include "ControlsTestSupport.h"
#include "controls/CycleButton.h"

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
    TestKit::pump();
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
