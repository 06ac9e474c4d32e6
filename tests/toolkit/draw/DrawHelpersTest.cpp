#include "draw/Canvas.h"
#include "draw/CanvasRenderer.h"
#include "draw/drawDepthBox.h"
#include "draw/drawRoundedRectOutline.h"

#include <gtest/gtest.h>

namespace {
const Colour kGrey(0.5, 0.5, 0.5), kRed(1, 0, 0), kBlack(0, 0, 0);
constexpr std::uint32_t kBlackPx = 0xFF000000u;
} // namespace

TEST(DrawHelpers, ASunkenDepthBoxIsDarkAboveAndLightBelow) {
    Canvas c(40, 40);
    CanvasRenderer(&c).fill(kGrey);
    Glib::drawDepthBox(&c, BoxInt(10, 10, 30, 30), kGrey, 2, Glib::kSunkenDepth);
    const std::uint32_t top = c.pixel(20, 29), bottom = c.pixel(20, 10), inside = c.pixel(20, 20);
    EXPECT_LT(top & 0xFF, inside & 0xFF);
    EXPECT_GT(bottom & 0xFF, inside & 0xFF);
    EXPECT_EQ(c.pixel(20, 27), inside) << "two pixels thick";
    Glib::drawDepthBox(&c, BoxInt(10, 10, 30, 30), kGrey, 2, Glib::kRaisedDepth);
    EXPECT_GT(c.pixel(20, 29) & 0xFF, inside & 0xFF);
}

TEST(DrawHelpers, AnOutlineRoundsOnlyTheCornersItIsAskedTo) {
    Canvas c(60, 60);
    CanvasRenderer(&c).fill(kBlack);
    Glib::drawRoundedRectOutline(&c, BoxInt(10, 10, 50, 50), 2.0, Glib::RectDescription::kTopLeftCorner, Glib::kOutlineInside, kRed);
    EXPECT_EQ(c.pixel(10, 49), kBlackPx) << "the rounded corner leaves its tip";
    EXPECT_EQ(c.pixel(49, 49), 0xFFFF0000u);
    EXPECT_EQ(c.pixel(10, 10), 0xFFFF0000u);
    EXPECT_EQ(c.pixel(30, 10), 0xFFFF0000u);
    EXPECT_EQ(c.pixel(30, 30), kBlackPx);
    Glib::drawRoundedRectOutline(&c, BoxInt(10, 10, 50, 50), 2.0, 0, Glib::kOutlineOnEdge, kRed);
    EXPECT_EQ(c.pixel(9, 30), 0xFFFF0000u) << "on the edge, half of the line lies outside";
}

TEST(DrawHelpers, ARingOfABoxHugsItAndAnArcCoversOnlyItsAngles) {
    Canvas c(60, 60);
    CanvasRenderer r(&c);
    r.fill(kBlack);
    // Centred on (30, 30), middle line at radius 20, from 18 to 22.
    r.render(
        Glib::EllipseDescription(Zn::Box<double, Zn::BottomUpTraits>(10, 10, 50, 50), 4.0, 0.0, 90.0, kBlack, kRed, Glib::EllipseDescription::kRing));
    EXPECT_EQ(c.pixel(30, 49), 0xFFFF0000u) << "straight up is angle 0";
    EXPECT_EQ(c.pixel(49, 30), 0xFFFF0000u) << "90 degrees is to the right";
    EXPECT_EQ(c.pixel(10, 30), kBlackPx) << "270 degrees is not in the arc";
    EXPECT_EQ(c.pixel(30, 10), kBlackPx);
    EXPECT_EQ(c.pixel(38, 38), kBlackPx) << "inside the ring";
    r.render(Glib::EllipseDescription(Zn::Box<double, Zn::BottomUpTraits>(10, 10, 50, 50), 4.0, 0.0, 360.0, kRed, kRed,
                                      Glib::EllipseDescription::kFilledEllipse));
    EXPECT_EQ(c.pixel(30, 30), 0xFFFF0000u);
    EXPECT_EQ(c.pixel(10, 30), 0xFFFF0000u);
}
