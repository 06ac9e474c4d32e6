#include "colour/AlphaSliderAdaptor.h"
#include "colour/AlphaTextAdaptor.h"
#include "colour/ColourComponentAdaptor.h"
#include "colour/HexColourAdaptor.h"
#include "colour/LuminanceAdaptor.h"
#include "colour/RGBComponentAdaptor.h"

#include <gtest/gtest.h>

namespace {

using Text = LightweightString<wchar_t>;

// 0 to 255 of a component in RGB.
int byteOf(const ColourData& c, int i) {
    ColourData rgb = c;
    rgb.setColourSpace(kColourSpaceRGB);
    return static_cast<int>(rgb.getComponent(static_cast<ColourData::ComponentID>(i)) * 255.0 + 0.5);
}

} // namespace

TEST(ColourAdaptors, ComponentBoxesRoundHalfUpWhereTheHexBoxTruncates) {
    ValServer<ColourData> server(ColourData(0.5, 0.5, 0.5, kColourSpaceRGB, 0.5));
    EXPECT_EQ(ColourComponentAdaptor(0, kColourSpaceRGB, &server).getDataValue(), L"128");
    EXPECT_EQ(HexColourAdaptor(&server).getDataValue(), L"7F7F7F");
    EXPECT_EQ(AlphaTextAdaptor(&server).getDataValue(), L"128");
    server = ColourData(1.0, 0.0, 0.0, kColourSpaceRGB, 1.0);
    EXPECT_EQ(AlphaTextAdaptor(&server).getDataValue(), L"255");
    EXPECT_EQ(ColourComponentAdaptor(0, kColourSpaceHSV, &server).getDataValue(), L"0.00");
    EXPECT_EQ(ColourComponentAdaptor(1, kColourSpaceHSV, &server).getDataValue(), L"100.00");
    server = ColourData(2.0, -1.0, 0.25, kColourSpaceRGB, 1.0);
    EXPECT_EQ(HexColourAdaptor(&server).getDataValue(), L"FF003F") << "out of range components are held to a byte";
}

TEST(ColourAdaptors, TextIsScaledBackIntoTheColourInItsOwnSpace) {
    ValServer<ColourData> server(ColourData(0.2, 0.4, 0.6, kColourSpaceRGB, 1.0));
    ColourComponentAdaptor green(1, kColourSpaceRGB, &server);
    EXPECT_TRUE(green.requestSetNewDataValue(L"300", kFinalChange));
    EXPECT_EQ(server.value().getGreen(), 1.0);
    green.requestSetNewDataValue(L"", kFinalChange);
    EXPECT_EQ(server.value().getGreen(), 0.0);
    EXPECT_EQ(server.value().getColourSpace(), kColourSpaceRGB);

    ColourComponentAdaptor(7, kColourSpaceRGB, &server).requestSetNewDataValue(L"51", kFinalChange);
    EXPECT_DOUBLE_EQ(server.value().getAlpha(), 0.2) << "a component above 3 is alpha";

    server = ColourData(10.0, 0.5, 0.5, kColourSpaceHSV, 1.0);
    ColourComponentAdaptor(0, kColourSpaceHSV, &server).requestSetNewDataValue(L"400", kFinalChange);
    EXPECT_EQ(server.value().getHue(), 400.0) << "a hue is taken as typed";
    ColourComponentAdaptor(1, kColourSpaceHSV, &server).requestSetNewDataValue(L"150", kFinalChange);
    EXPECT_EQ(server.value().getSaturation(), 1.5) << "no upper bound on a percentage";
}

TEST(ColourAdaptors, AHexTextIsPaddedInFrontAndMakesTheColourRGB) {
    ValServer<ColourData> server(ColourData(120.0, 1.0, 1.0, kColourSpaceHSV, 0.4));
    HexColourAdaptor hex(&server);
    hex.requestSetNewDataValue(L"abc", kFinalChange);
    const ColourData c = server.value();
    EXPECT_EQ(c.getColourSpace(), kColourSpaceRGB);
    EXPECT_EQ(byteOf(c, 0), 0);
    EXPECT_EQ(byteOf(c, 1), 10);
    EXPECT_EQ(byteOf(c, 2), 188);
    EXPECT_EQ(c.getAlpha(), 0.4);
    hex.requestSetNewDataValue(L"FF", kFinalChange);
    EXPECT_EQ(hex.getDataValue(), L"0000FF");
    hex.requestSetNewDataValue(L"12345678", kFinalChange);
    EXPECT_EQ(hex.getDataValue(), L"123456") << "only the first six digits count";
    hex.requestSetNewDataValue(L"zz", kFinalChange);
    EXPECT_EQ(hex.getDataValue(), L"000000") << "digits never reached stay 0";
}

TEST(ColourAdaptors, WithoutAServerTheyShowDefaultsAndChangeNothing) {
    ColourComponentAdaptor component(0, kColourSpaceRGB, nullptr);
    EXPECT_EQ(component.getDataValue(), L"---");
    EXPECT_FALSE(component.requestSetNewDataValue(L"12", kFinalChange));
    AlphaTextAdaptor alpha(nullptr);
    EXPECT_EQ(alpha.getDataValue(), L"255");
    EXPECT_TRUE(alpha.requestSetNewDataValue(L"3", kFinalChange));
    HexColourAdaptor hex(nullptr);
    EXPECT_EQ(hex.getDataValue(), L"000000");
    EXPECT_TRUE(hex.requestSetNewDataValue(L"FFFFFF", kFinalChange));
    EXPECT_EQ(RGBComponentAdaptor(0, nullptr).getDataValue(), 0.0);
}

TEST(ColourAdaptors, SlidersKeepTheSpaceTheColourHadWhenTheyWereMade) {
    ValServer<ColourData> server(ColourData(0.0, 1.0, 0.5, kColourSpaceHSV, 1.0));
    RGBComponentAdaptor green(1, &server);
    LuminanceAdaptor value(&server);
    AlphaSliderAdaptor alpha(&server);
    EXPECT_EQ(green.getDataValue(), 0.0);
    EXPECT_EQ(value.getDataValue(), 0.5);
    green.requestSetNewDataValue(1.0, kIntermediateChange);
    EXPECT_EQ(server.value().getColourSpace(), kColourSpaceHSV);
    EXPECT_EQ(byteOf(server.value(), 0), 128);
    EXPECT_EQ(byteOf(server.value(), 1), 255);
    value.requestSetNewDataValue(0.25, kIntermediateChange);
    EXPECT_EQ(server.value().getValue(), 0.25);
    alpha.requestSetNewDataValue(0.5, kFinalChange);
    EXPECT_EQ(server.value().getAlpha(), 0.5);
}
