#include "controls/Gauge.h"
#include "ControlsTestSupport.h"

#include <cmath>

namespace {
class Gauges : public ControlsTest {};
} // namespace

TEST_F(Gauges, TheBarFillsTheMeasuredFractionAndShowsItsMessage) {
    auto* g = add<Gauge>(Gauge::InitArgs(200, 20));
    const Colour bar(0.1, 0.6, 0.2), back(0.05, 0.05, 0.05);
    g->setCols(bar, back);
    g->setMeasure(0.25);
    g->display();
    TestKit::pump();
    EXPECT_EQ(g->filledWidth(), 50);
    EXPECT_TRUE(similar(TestKit::globPixel(g, 45, 2), TestKit::argb(bar), 2));
    EXPECT_TRUE(similar(TestKit::globPixel(g, 55, 2), TestKit::argb(back), 2));
    g->setMessage(L"00:01:30 left");
    g->setMessageColour(Colour(1, 1, 1));
    g->display();
    TestKit::pump();
    EXPECT_GT(inkPixels(g, BoxInt(60, 0, 140, 20), TestKit::argb(back), 60), 20) << "the message is painted over the bar";
}

TEST_F(Gauges, MeasuresOutsideZeroToOneAreHeld) {
    auto* g = add<Gauge>(Gauge::InitArgs(100, 10));
    g->setMeasure(1.7);
    EXPECT_EQ(g->filledWidth(), 100);
    g->setMeasure(-2);
    EXPECT_EQ(g->filledWidth(), 0);
    g->setMeasure(std::nan(""));
    EXPECT_EQ(g->getMeasure(), 0.0);
}
