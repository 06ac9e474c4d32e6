#include "ProgressTestSupport.h"

#include "glob/GlobManager.h"
#include "logging/AutoProgressBar.h"
#include "platform/SystemWatchdog.h"

namespace {

class AutoProgressBars : public ProgressTest {
protected:
    static void steps(AutoProgressBar& bar, int n) {
        for (int i = 0; i < n; ++i) bar.inc();
    }
};

} // namespace

TEST_F(AutoProgressBars, TheBarAppearsOnlyWhenLessThanThreeQuartersAreDoneAfterASecond) {
    AutoProgressBar slow(nullptr, UIString(L"Copying"), 100);
    steps(slow, 73);
    Clock::advanceTestTime(1'000);
    slow.inc();
    EXPECT_EQ(slow.bar(), nullptr) << "exactly a second is not slow";
    Clock::advanceTestTime(1);
    slow.inc(); // 0.75
    EXPECT_EQ(slow.bar(), nullptr) << "three quarters done is nearly there";

    AutoProgressBar slower(nullptr, UIString(L"Copying"), 100);
    steps(slower, 73);
    Clock::advanceTestTime(1'001);
    slower.inc(); // 0.74
    ASSERT_NE(slower.bar(), nullptr);
    EXPECT_TRUE(GlobManager::instance().isRealized(slower.bar()));
    EXPECT_DOUBLE_EQ(slower.bar()->gauge()->getMeasure(), 0.0) << "the step that made the bar is not shown";
    slower.inc();
    EXPECT_DOUBLE_EQ(slower.bar()->gauge()->getMeasure(), 0.75) << "the next one is";
}

TEST_F(AutoProgressBars, NoStepsAtAllNeverMakeABar) {
    AutoProgressBar none(nullptr, UIString(L"Nothing"), 0);
    Clock::advanceTestTime(5'000);
    steps(none, 3);
    EXPECT_EQ(none.bar(), nullptr);
}

TEST_F(AutoProgressBars, TheTitleIsTheLiteralTextOrTheResourceStringWithAnEllipsis) {
    EXPECT_EQ(AutoProgressBar(nullptr, UIString(L"Copying clips"), 10).title(), L"Copying clips..") << "id kNoResource is the text itself";
    EXPECT_EQ(AutoProgressBar(nullptr, UIString(L"ignored", 350), 10).title(), L"Working..");
    EXPECT_EQ(AutoProgressBar(nullptr, UIString(L"", UIString::kNoResource), 10).title(), L"") << "no ellipsis on nothing";

    AutoProgressBar titled(nullptr, UIString(L"Copying clips"), 10);
    Clock::advanceTestTime(2'000);
    titled.inc();
    ASSERT_NE(titled.bar(), nullptr);
    EXPECT_EQ(titled.bar()->getTitle().getString(), L"Copying clips..");
}

TEST_F(AutoProgressBars, TheBarAndLifeSupportEndWithTheCounterEvenWhenSomebodyElseDeletedTheBar) {
    IdStamp stamp;
    {
        AutoProgressBar bar(nullptr, UIString(L"Copying"), 10);
        EXPECT_TRUE(SystemWatchdog::onLifeSupport());
        Clock::advanceTestTime(2'000);
        bar.inc();
        ASSERT_NE(bar.bar(), nullptr);
        stamp = bar.bar()->stamp();
    }
    EXPECT_FALSE(SystemWatchdog::onLifeSupport());
    EXPECT_EQ(GlobManager::instance().find(stamp), nullptr) << "the bar went with the counter";

    AutoProgressBar bar(nullptr, UIString(L"Copying"), 10);
    Clock::advanceTestTime(2'000);
    bar.inc();
    ASSERT_NE(bar.bar(), nullptr);
    delete bar.bar();
    EXPECT_EQ(bar.bar(), nullptr);
    Clock::advanceTestTime(20);
    bar.inc(); // neither reaches the dead bar nor crashes; a new one is made
    ASSERT_NE(bar.bar(), nullptr);
    GlobManager::instance().requestDeletion(bar.bar());
    TestKit::pump();
    EXPECT_EQ(bar.bar(), nullptr);
}

TEST_F(AutoProgressBars, ABarOverAPanelIsCentredOnIt) {
    StandardPanel::InitArgs args(800, 400);
    TestKit::Owned<StandardPanel> over(new StandardPanel(args));
    over->setupRootPos({100, 100});
    AutoProgressBar bar(over.get(), UIString(L"Copying"), 10);
    Clock::advanceTestTime(2'000);
    bar.inc();
    ASSERT_NE(bar.bar(), nullptr);
    EXPECT_EQ(bar.bar()->getX() + ProgInd::kWidth / 2, 100 + 400);
}
