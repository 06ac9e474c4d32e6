#include "draw/TextStyle.h"
#include "draw/Canvas.h"
#include "draw/CanvasRenderer.h"

#include <gtest/gtest.h>

TEST(TextStyle, FontsAndBaselinesForTextPlacedByHand) {
    Glib::FontDesc ui = Glib::getDefaultFont(0), mono = Glib::getDefaultFont(1);
    EXPECT_EQ(ui, Glib::getDefaultFont());
    EXPECT_EQ(mono.name, getDefaultFontName(1));
    EXPECT_EQ(Glib::getDefaultFont(7), ui) << "unknown faces are the UI face";
    EXPECT_EQ(Canvas::createFont(Glib::FontDesc()), ui) << "an empty description is the default font";
    EXPECT_EQ(Canvas::createFont(Glib::FontDesc("", 30)).size, 30);

    int h = Glib::fontHeight(ui), a = Glib::fontAscent(ui);
    EXPECT_EQ(getFontYOffset(h, ui), -a) << "a row one line high has its baseline an ascent down";
    EXPECT_EQ(getFontYOffset(h + 10, ui), -(5 + a)) << "a taller row centres the line";
    EXPECT_EQ(getFontYOffset(2, ui), -a) << "a row lower than the line starts it at the top";
}

TEST(TextStyle, TheBoundsOfATextAreWhereItsPixelsAre) {
    Glib::FontDesc f = Glib::getDefaultFont(0);
    Glib::TextDescription t(BoxInt(10, 5, 190, 35), L"WWWW", f, Colour(1.0, 1.0, 1.0));
    BoxInt b = Glib::calcBounds(t);
    EXPECT_EQ(b.x1, 10);
    EXPECT_EQ(b.width(), Glib::measureText(L"WWWW", f).x);
    EXPECT_EQ(b.height(), Glib::fontHeight(f));
    Canvas c(200, 40);
    CanvasRenderer(&c).render(t);
    int lit = 0, outside = 0;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 200; ++x) {
            bool on = (c.pixel(x, y) & 0xFF) > 0x80;
            lit += on;
            outside += on && !b.contains({x, y});
        }
    EXPECT_GT(lit, 20);
    EXPECT_EQ(outside, 0);
    t.align = Glib::kAlignRight;
    EXPECT_EQ(Glib::calcBounds(t).x2, 190);
    t.text = L"";
    EXPECT_TRUE(Glib::calcBounds(t).isEmpty());
}
