#include "core/Colour.h"
#include "core/ColourData.h"
#include "core/Palette.h"

#include <gtest/gtest.h>

TEST(ColourData, HexconeConversionOfThePrimariesAndGreys) {
    struct Case {
        double r, g, b, h, s, v;
    } cases[] = {
        {1, 0, 0, 0, 1, 1},   {0, 1, 0, 120, 1, 1},       {0, 0, 1, 240, 1, 1}, {1, 1, 0, 60, 1, 1},
        {1, 0, 1, 300, 1, 1}, {0.5, 0.5, 0.5, 0, 0, 0.5}, {0, 0, 0, 0, 0, 0},   {0.5, 0.25, 0.25, 0, 0.5, 0.5},
    };
    for (const Case& c : cases) {
        ColourData d(c.r, c.g, c.b, kColourSpaceRGB, 1.0);
        EXPECT_NEAR(d.getHue(), c.h, 1e-9) << c.r << "," << c.g << "," << c.b;
        EXPECT_NEAR(d.getSaturation(), c.s, 1e-9);
        EXPECT_NEAR(d.getValue(), c.v, 1e-9);
        ColourData back(c.h, c.s, c.v, kColourSpaceHSV, 1.0);
        EXPECT_NEAR(back.getRed(), c.r, 1e-9);
        EXPECT_NEAR(back.getGreen(), c.g, 1e-9);
        EXPECT_NEAR(back.getBlue(), c.b, 1e-9);
    }
}

TEST(ColourData, SetColourSpaceConvertsInPlaceAndKeepsAlpha) {
    ColourData d(0.2, 0.4, 0.8, kColourSpaceRGB, 0.25);
    d.setColourSpace(kColourSpaceHSV);
    EXPECT_EQ(d.getColourSpace(), kColourSpaceHSV);
    EXPECT_NEAR(d.getComponent(ColourData::kFirst), 220.0, 1e-9);
    EXPECT_DOUBLE_EQ(d.getAlpha(), 0.25);
    d.setColourSpace(kColourSpaceRGB);
    EXPECT_NEAR(d.getRed(), 0.2, 1e-12);
    EXPECT_NEAR(d.getBlue(), 0.8, 1e-12);
    // A hue past 360 or below 0 wraps rather than reading garbage.
    EXPECT_NEAR(ColourData(480, 1, 1, kColourSpaceHSV, 1).getGreen(), 1.0, 1e-9);
    EXPECT_NEAR(ColourData(-120, 1, 1, kColourSpaceHSV, 1).getBlue(), 1.0, 1e-9);
    EXPECT_EQ(ColourData().getComponent(static_cast<ColourData::ComponentID>(7)), 0.0);
}

TEST(Colour, MixScaleAndPacking) {
    Colour black(0.0, 0.0, 0.0), white(1.0, 1.0, 1.0);
    EXPECT_EQ(asARGB(Colour::mix(black, white, 0.5)), 0xFF808080u);
    EXPECT_EQ(asARGB(scale(Colour(0.5, 0.25, 1.0), 2.0)), 0xFFFF80FFu);
    EXPECT_EQ(asARGB(Colour(0.0, 0.0, 0.0, false)), 0x00000000u);
    EXPECT_EQ(colourFromARGB(0x80FF0000u).red(), 1.0);
    NormalisedRGB n = fromColour(Colour(0.25, 0.5, 0.75));
    EXPECT_FLOAT_EQ(n.g, 0.5f);
    EXPECT_EQ(Colour(n), Colour(0.25, 0.5, 0.75));
}

TEST(Palette, ShadesStepAwayFromTheWindowColour) {
    Palette p;
    double base = p.window().red();
    EXPECT_EQ(p.window(kShadeNormal), p.window());
    EXPECT_LT(p.window(kShadeDarkest).red(), p.window(kShadeDark).red());
    EXPECT_LT(p.window(kShadeDark).red(), base);
    EXPECT_GT(p.window(kShadeLight).red(), base);
    EXPECT_GT(p.window(kShadeLightest).red(), p.window(kShadeLight).red());
    Palette light = makeWindowPalette(Colour(0.9, 0.9, 0.9));
    EXPECT_LT(light.text().red(), 0.5);
    EXPECT_EQ(makeChildPalette(p).window(), p.childWindow());
    EXPECT_EQ(makeTextPalette(Colour(1, 0, 0)).text(), Colour(1, 0, 0));
}
