#include "draw/Canvas.h"
#include "draw/CanvasRenderer.h"
#include "draw/Screen.h"
#include "draw/StateSaver.h"
#include "testkit/TestKit.h"

#include <gtest/gtest.h>

#include <cairo.h>
#include <filesystem>

namespace {
const Colour kBlack(0, 0, 0), kRed(1, 0, 0), kGreen(0, 1, 0);
}

TEST(Canvas, RectanglesFillExactlyTheirPixelsBottomUp) {
    Canvas c(40, 30);
    CanvasRenderer r(&c);
    r.fill(kBlack);
    r.render(Glib::RectDescription(BoxInt(2, 3, 12, 8), kRed));
    EXPECT_EQ(c.pixel(2, 3), 0xFFFF0000u);
    EXPECT_EQ(c.pixel(11, 7), 0xFFFF0000u);
    EXPECT_EQ(c.pixel(12, 7), 0xFF000000u);
    EXPECT_EQ(c.pixel(11, 8), 0xFF000000u);
    EXPECT_EQ(c.pixel(1, 3), 0xFF000000u);
    EXPECT_EQ(c.pixel(2, 2), 0xFF000000u);
    // Row 3 counted from the bottom is image row 26 counted from the top.
    cairo_surface_flush(c.surface());
    auto* data = cairo_image_surface_get_data(c.surface());
    auto px = *reinterpret_cast<std::uint32_t*>(data + 26 * cairo_image_surface_get_stride(c.surface()) + 2 * 4);
    EXPECT_EQ(px, 0xFFFF0000u);
    EXPECT_EQ(c.pixel(-1, 0), 0u);
    EXPECT_EQ(c.pixel(40, 0), 0u);
}

TEST(Canvas, LinesLightThePixelsBetweenTheirEnds) {
    Canvas c(20, 20);
    CanvasRenderer r(&c);
    r.fill(kBlack);
    r.render(Glib::LineDescription({3, 5}, {12, 5}, kGreen));
    for (int x = 3; x <= 12; ++x) EXPECT_EQ(c.pixel(x, 5), 0xFF00FF00u) << x;
    EXPECT_EQ(c.pixel(2, 5), 0xFF000000u);
    EXPECT_EQ(c.pixel(13, 5), 0xFF000000u);
    EXPECT_EQ(c.pixel(7, 4), 0xFF000000u);
    EXPECT_EQ(c.pixel(7, 6), 0xFF000000u);
    r.render(Glib::LineDescription({15, 2}, {15, 17}, kRed));
    EXPECT_EQ(c.pixel(15, 2), 0xFFFF0000u);
    EXPECT_EQ(c.pixel(15, 17), 0xFFFF0000u);
    EXPECT_EQ(c.pixel(15, 18), 0xFF000000u);
}

TEST(Canvas, OriginAndClipConfinePainting) {
    Canvas c(50, 50);
    CanvasRenderer r(&c);
    r.fill(kBlack);
    c.takeModifiedArea();
    c.pushOrigin({10, 20}, BoxInt(10, 20, 20, 25));
    r.render(Glib::RectDescription(BoxInt(0, 0, 100, 100), kRed));
    c.popOrigin();
    EXPECT_EQ(c.pixel(10, 20), 0xFFFF0000u);
    EXPECT_EQ(c.pixel(19, 24), 0xFFFF0000u);
    EXPECT_EQ(c.pixel(20, 24), 0xFF000000u);
    EXPECT_EQ(c.pixel(10, 25), 0xFF000000u);
    EXPECT_EQ(c.pixel(9, 20), 0xFF000000u);
    EXPECT_EQ(c.modifiedArea(), BoxInt(10, 20, 20, 25));
    // Popping more than was pushed does nothing.
    c.popOrigin();
    EXPECT_EQ(c.origin(), XY<int>(0, 0));
}

TEST(Canvas, EllipsesAndRoundedRectanglesStayInsideTheirBoxes) {
    Canvas c(40, 40);
    CanvasRenderer r(&c);
    r.fill(kBlack);
    r.render(Glib::EllipseDescription({20, 20}, {10, 5}, kGreen));
    EXPECT_EQ(c.pixel(20, 20), 0xFF00FF00u);
    EXPECT_EQ(c.pixel(20, 27), 0xFF000000u);
    EXPECT_EQ(c.pixel(31, 20), 0xFF000000u);
    Glib::RectDescription round(BoxInt(0, 0, 10, 10), kRed);
    round.cornerRadius = 4;
    r.render(round);
    EXPECT_EQ(c.pixel(5, 5), 0xFFFF0000u);
    EXPECT_EQ(c.pixel(0, 0), 0xFF000000u);
}

TEST(Screen, CompositesLayersInOrderAndWritesPNG) {
    Screen s(100, 80);
    Canvas below(60, 40), above(60, 40);
    CanvasRenderer(&below).fill(kRed);
    CanvasRenderer(&above).fill(kGreen);
    s.composite({{&below, {0, 0}}, {&above, {30, 20}}});
    EXPECT_EQ(s.pixel(10, 10), 0xFFFF0000u);
    EXPECT_EQ(s.pixel(40, 30), 0xFF00FF00u);
    EXPECT_EQ(s.pixel(95, 75), TestKit::argb(s.desktopColour()));
    EXPECT_EQ(s.pixel(100, 0), 0u);

    auto dir = std::filesystem::temp_directory_path() / "mosaic-screen-test";
    std::filesystem::create_directories(dir);
    auto file = (dir / "screen.png").string();
    ASSERT_TRUE(s.writePNG(file.c_str(), BoxInt(0, 0, 50, 40)));
    cairo_surface_t* png = cairo_image_surface_create_from_png(file.c_str());
    ASSERT_EQ(cairo_surface_status(png), CAIRO_STATUS_SUCCESS);
    EXPECT_EQ(cairo_image_surface_get_width(png), 50);
    EXPECT_EQ(cairo_image_surface_get_height(png), 40);
    // The bottom-left pixel of the area is the last row of the image.
    auto* data = cairo_image_surface_get_data(png);
    EXPECT_EQ(*reinterpret_cast<std::uint32_t*>(data + 39 * cairo_image_surface_get_stride(png)), 0xFFFF0000u);
    cairo_surface_destroy(png);
    EXPECT_FALSE(std::filesystem::exists(file + ".tmp"));
    EXPECT_FALSE(s.writePNG((dir / "no-such-folder" / "x.png").string().c_str()));
    EXPECT_FALSE(s.writePNG(""));
    std::filesystem::remove_all(dir);
}

TEST(Canvas, ACanvasThatDiesWhileCurrentIsCurrentNoLonger) {
    auto* canvas = new Canvas(20, 20);
    Glib::setCurrentCanvas(canvas);
    delete canvas;
    EXPECT_EQ(Glib::currentCanvas(), nullptr);
    Glib::StateSaver saver; // saves nothing rather than touching the dead canvas
    Canvas other(10, 10);
    Glib::setCurrentCanvas(&other);
    EXPECT_EQ(Glib::currentCanvas(), &other);
}
