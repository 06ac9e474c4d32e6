#include "ProgressTestSupport.h"

#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "logging/ProgInd.h"

namespace {

class ProgInds : public ProgressTest {
protected:
    // A realized panel on a scale, polling off so that nothing but the panel runs.
    ProgInd* make(double min = 0.0, double max = 1.0) {
        auto* p = new ProgInd(L"Copying", 100, 100, UifStd::instance().getColourScheme(), min, max, false);
        GlobManager::instance().realize(p);
        return p;
    }
    static std::wstring message(const ProgInd* p) { return p->gauge()->getMessage().str(); }
};

} // namespace

TEST_F(ProgInds, ASecondUpdateWithinTenMillisecondsIsNotShownUnlessItIsTheEnd) {
    ProgInd* p = make();
    p->update_progress(L"first", 0.2);
    EXPECT_DOUBLE_EQ(p->gauge()->getMeasure(), 0.2);
    Clock::advanceTestTime(10);
    p->update_progress(L"second", 0.5);
    EXPECT_DOUBLE_EQ(p->gauge()->getMeasure(), 0.2) << "10 ms after the last shown";
    EXPECT_EQ(message(p), L"first");
    p->update_progress(L"done", 1.0);
    EXPECT_DOUBLE_EQ(p->gauge()->getMeasure(), 1.0) << "the last value always shows";
    EXPECT_EQ(message(p), L"done");
    Clock::advanceTestTime(11);
    p->update_progress(L"again", 0.4);
    EXPECT_DOUBLE_EQ(p->gauge()->getMeasure(), 0.4) << "11 ms after";
}

TEST_F(ProgInds, TheGaugeIsPaintedWithTheBarColourOverTheMeasuredPart) {
    ProgInd* p = make();
    const Colour bar(0.9, 0.3, 0.1);
    p->update_progress(L"", 0.5, bar);
    TestKit::pump();
    Gauge* g = p->gauge();
    ASSERT_GT(g->width(), 100);
    const std::uint32_t back = TestKit::argb(p->getPalette().childWindow(kChildList));
    EXPECT_TRUE(TestKit::pixelNear(g, g->width() / 4, 2, TestKit::argb(bar), 2));
    EXPECT_TRUE(TestKit::pixelNear(g, g->width() * 3 / 4, 2, back, 2));

    Clock::advanceTestTime(20);
    p->update_progress(L"", 0.75);
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(g, g->width() * 5 / 8, 2, TestKit::argb(bar), 2)) << "the colour the gauge has is kept";
    EXPECT_TRUE(g->box().x1 >= p->getUserArea().x1 && g->box().y2 <= p->getUserArea().y2) << "the gauge is in the user area";
    EXPECT_EQ(p->height(), ProgInd::calcHeight());
}

TEST_F(ProgInds, AValueOffTheScaleShowsAClampedBarButTheEstimateUsesItAsGiven) {
    ProgInd* p = make(10.0, 20.0);
    p->showTimeRemaining(true);
    Clock::advanceTestTime(100'000);
    p->update_progress(L"", 5.0);
    EXPECT_EQ(p->gauge()->filledWidth(), 0) << "below the minimum is an empty bar";
    // Clamped, the value would be no progress at all and give no estimate; as given
    // it is half the scale behind, an estimate of -300 s.
    EXPECT_NE(message(p).find(L"-5"), std::wstring::npos) << message(p);
    Clock::advanceTestTime(20);
    p->update_progress(L"", 25.0);
    EXPECT_EQ(p->gauge()->filledWidth(), p->gauge()->width()) << "above the maximum is a full bar";
}

TEST_F(ProgInds, TheTimeLeftIsTheMeanOfTheNewEstimateAndTheLastDifferentOne) {
    ProgInd* p = make();
    p->showTimeRemaining(true);
    Clock::advanceTestTime(100'000);
    p->update_progress(L"copying", 0.5); // 100 s left
    EXPECT_EQ(message(p), L"copying  (00:01:40 left)") << "no earlier estimate";
    Clock::advanceTestTime(140'000);
    p->update_progress(L"copying", 0.75); // 80 s left
    EXPECT_EQ(message(p), L"copying  (00:01:30 left)");
    Clock::advanceTestTime(320'000);
    p->update_progress(L"copying", 0.875); // 80 s left again
    EXPECT_EQ(message(p), L"copying  (00:01:20 left)") << "an unchanged estimate shows as it is";

    p->showTimeRemaining(false);
    Clock::advanceTestTime(20);
    p->update_progress(L"copying", 0.9);
    EXPECT_EQ(message(p), L"copying") << "the bracket goes";
    Clock::advanceTestTime(20);
    p->update_progress(L"copying", 0.0);
    EXPECT_EQ(message(p), L"copying") << "nothing done gives no estimate";
}

TEST_F(ProgInds, ReportsArriveOnTheScaleAndPanelsAreMadeWhereAsked) {
    ProgInd* p = make(100.0, 300.0);
    p->updateProgress(0.25, L"rendering");
    EXPECT_DOUBLE_EQ(p->gauge()->getMeasure(), 0.25) << "0.25 of the task is 150 on the scale";
    EXPECT_EQ(message(p), L"rendering");

    TestKit::Owned<ProgInd> untitled(new ProgInd(L""));
    EXPECT_EQ(untitled->getTitle().getString(), L"Working") << "an empty title becomes the resource string";
    EXPECT_EQ(untitled->width(), ProgInd::kWidth);

    StandardPanel::InitArgs args(600, 300);
    TestKit::Owned<StandardPanel> over(new StandardPanel(args));
    over->setupRootPos({200, 300});
    ProgInd* centred = ProgInd::make(L"Over", over.get());
    EXPECT_EQ(centred->getX(), 200 + 300 - ProgInd::kWidth / 2);
    EXPECT_EQ(centred->getY(), 300 + 150 - ProgInd::calcHeight() / 2);
    EXPECT_TRUE(GlobManager::instance().isRealized(centred));
    ProgInd* placed = ProgInd::make(L"Anywhere", nullptr);
    EXPECT_GE(placed->getX(), 0);
}
