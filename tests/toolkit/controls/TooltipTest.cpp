#include "PanelsTestSupport.h"
#include "controls/Button.h"
#include "controls/TextLabel.h"
#include "controls/TipWindowBase.h"
#include "draw/UifStd.h"
#include "glob/InputDispatcher.h"
#include "platform/Clock.h"

namespace {

class Tooltips : public ControlsTest {
protected:
    void SetUp() override {
        ControlsTest::SetUp();
        Clock::setTestTime(100000);
        TipWindowBase::setTooltipDelay(500);
        button = add<Button>(Button::InitArgs(L"Render", WidgetCallback("render"), 120, 30), {20, 100});
        button->setContextString(L"Renders the timeline");
        TestKit::mouseMove({5, 5});
    }
    void TearDown() override {
        ControlsTest::TearDown();
        TipWindowBase::setTooltipDelay(defaultDelay);
        TipWindowBase::setTooltipsEnabled(true);
        Clock::clearTestTime();
    }
    static void tickAfter(int ms) {
        Clock::advanceTestTime(ms);
        GlobManager::instance().tickTimers();
        TestKit::pump();
    }
    static WString tipText() {
        TipWindowBase* t = TipWindowBase::currentTooltip();
        return t ? t->getText().getString() : WString(L"(none)");
    }

    const int defaultDelay = TipWindowBase::tooltipDelay();
    Button* button = nullptr;
};

} // namespace

TEST_F(Tooltips, RestingOnAGlobOpensItsTipBelowThePointer) {
    const XY<int> at = TestKit::centreOf(button);
    TestKit::mouseMove(at);
    tickAfter(499);
    EXPECT_EQ(TipWindowBase::currentTooltip(), nullptr);
    tickAfter(1);
    TipWindowBase* tip = TipWindowBase::currentTooltip();
    ASSERT_NE(tip, nullptr);
    EXPECT_EQ(tipText(), WString(L"Renders the timeline"));
    EXPECT_TRUE(GlobManager::instance().isRealized(tip));
    EXPECT_GE(tip->getX(), at.x);
    EXPECT_LT(tip->getY() + tip->height(), at.y) << "below the pointer, clear of it";
    EXPECT_GT(inkPixels(tip, tip->textBox(), TestKit::argb(tip->getPalette().window(kShadeLightest))), 30);
    EXPECT_EQ(GlobManager::instance().input().hover(), button) << "the tip does not take the hover";

    TestKit::mouseMove(at + XY<int>(10, 3));
    tickAfter(100);
    EXPECT_EQ(TipWindowBase::currentTooltip(), tip) << "moving within the glob keeps the tip";
    TestKit::mouseMove({5, 5});
    EXPECT_EQ(TipWindowBase::currentTooltip(), nullptr) << "leaving the glob closes it at once";
}

TEST_F(Tooltips, MovingBeforeTheDelayStartsTheWaitAgain) {
    const XY<int> at = TestKit::centreOf(button);
    TestKit::mouseMove(at);
    tickAfter(400);
    TestKit::mouseMove(at + XY<int>(20, 0));
    tickAfter(400);
    EXPECT_EQ(TipWindowBase::currentTooltip(), nullptr);
    tickAfter(100);
    EXPECT_NE(TipWindowBase::currentTooltip(), nullptr);
}

TEST_F(Tooltips, AClickPutsTheTipAwayUntilTheMouseComesBack) {
    const XY<int> at = TestKit::centreOf(button);
    TestKit::mouseMove(at);
    tickAfter(600);
    ASSERT_NE(TipWindowBase::currentTooltip(), nullptr);
    TestKit::click(at);
    EXPECT_EQ(TipWindowBase::currentTooltip(), nullptr);
    EXPECT_EQ(host->messages, std::vector<std::string>{"render"}) << "the click still reaches the button";
    tickAfter(2000);
    EXPECT_EQ(TipWindowBase::currentTooltip(), nullptr);
    TestKit::mouseMove({5, 5});
    TestKit::mouseMove(at);
    tickAfter(600);
    EXPECT_NE(TipWindowBase::currentTooltip(), nullptr);
    TestKit::pressKey('a');
    EXPECT_EQ(TipWindowBase::currentTooltip(), nullptr) << "a key puts it away too";
}

TEST_F(Tooltips, AChildWithoutATipShowsItsAncestorsWithDetails) {
    StandardPanel::InitArgs pa(200, 60);
    auto* panel = host->createWidget<StandardPanel>(pa, Glob::UserBottomLeft(180, 20));
    panel->setContextString(L"Audio levels", L"Drag to change");
    TextLabel::InitArgs la(L"Left", 80, 24);
    auto* label = panel->createWidget<TextLabel>(la, Glob::UserBottomLeft(10, 10));
    TestKit::mouseMove(TestKit::centreOf(label));
    tickAfter(600);
    EXPECT_EQ(tipText(), WString(L"Audio levels\nDrag to change"));
    TipWindowBase* tip = TipWindowBase::currentTooltip();
    ASSERT_NE(tip, nullptr);
    EXPECT_GE(tip->height(), 2 * Glib::fontHeight(UifStd::instance().getDefaultFont())) << "two lines";
}

TEST_F(Tooltips, TheTipGoesWithItsGlobAndNothingShowsWhenTipsAreOff) {
    TestKit::mouseMove(TestKit::centreOf(button));
    tickAfter(600);
    ASSERT_NE(TipWindowBase::currentTooltip(), nullptr);
    button->setVisible(false);
    tickAfter(50);
    EXPECT_EQ(TipWindowBase::currentTooltip(), nullptr) << "a hidden glob keeps no tip";
    button->setVisible(true);
    TestKit::mouseMove({5, 5});
    TestKit::mouseMove(TestKit::centreOf(button));
    tickAfter(600);
    ASSERT_NE(TipWindowBase::currentTooltip(), nullptr);
    Glob* doomed = button;
    host->removeWidget(doomed, true);
    tickAfter(50);
    EXPECT_EQ(TipWindowBase::currentTooltip(), nullptr) << "nor does a dead one";
    tickAfter(5000);
    EXPECT_EQ(TipWindowBase::currentTooltip(), nullptr);

    button = add<Button>(Button::InitArgs(L"Again", WidgetCallback("again"), 120, 30), {20, 100});
    button->setContextString(L"Another tip");
    TipWindowBase::setTooltipsEnabled(false);
    EXPECT_FALSE(TipWindowBase::tooltipsEnabled());
    TestKit::mouseMove(TestKit::centreOf(button));
    tickAfter(5000);
    EXPECT_EQ(TipWindowBase::currentTooltip(), nullptr);
    TipWindowBase::setTooltipsEnabled(true);
    TestKit::mouseMove(TestKit::centreOf(button) + XY<int>(5, 0));
    tickAfter(600);
    EXPECT_EQ(tipText(), WString(L"Another tip"));
    TipWindowBase::closeTooltip();
    EXPECT_EQ(TipWindowBase::currentTooltip(), nullptr);
    TipWindowBase::setTooltipDelay(-10);
    EXPECT_EQ(TipWindowBase::tooltipDelay(), 0);
}
