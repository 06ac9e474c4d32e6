#include "colour/ColourPicker.h"
#include "colour/DropDownColourPickerButton.h"
#include "params/ColourAdaptor.h"
#include "params/GenericParam.h"
#include "params/TitledGlob.h"
#include "params/UIBuilder.h"
#include "testkit/TestKit.h"

#include <gtest/gtest.h>

namespace {

class ColourRows : public TestKit::ScreenTest {};

} // namespace

TEST_F(ColourRows, AColourParameterGetsASwatchRowWhosePickerWritesItOpaque) {
    auto* panel = TestKit::realize(new StandardPanel(StandardPanel::InitArgs(400, 200)), {100, 100});
    Zn::Ptr<GenericParam::iParam> param(new GenericParam::ColourParam(UIString(L"Tint"), "tint", UIString(), NormalisedRGB(0.0f, 0.0f, 1.0f, 0.5f)));
    Glob* row = UIBuilder::createWidget(param, panel, 300, 0, Glob::UserTopLeft(0, 0), {});
    auto* titled = dynamic_cast<TitledGlob<DropDownColourPickerButton>*>(row);
    ASSERT_NE(titled, nullptr);
    EXPECT_STREQ(row->idstring(), "TitledDropDownColourPickerButton");
    TestKit::pump();
    EXPECT_EQ(titled->control()->getColour(), NormalisedRGB(0.0f, 0.0f, 1.0f));

    DropDownColourPickerButton* b = titled->control();
    ASSERT_EQ(TestKit::find<Glob>("tint"), row) << "the row is named by its parameter";
    ASSERT_TRUE(TestKit::click(b));
    TestKit::pump();
    ASSERT_NE(b->getDropDown(), nullptr);
    ASSERT_TRUE(TestKit::typeInto("R", L"255"));
    TestKit::pressKey(Keys::Return);
    TestKit::pump();
    const auto& colour = dynamic_cast<GenericParam::ColourParam&>(*param).getValue();
    EXPECT_EQ(colour, NormalisedRGB(1.0f, 0.0f, 1.0f, 1.0f));
    EXPECT_EQ(titled->control()->getColour(), NormalisedRGB(1.0f, 0.0f, 1.0f));
}

TEST(ColourAdaptors, WithNoServerTheColourIsAllZeroAndAWriteIsStoredOpaque) {
    ColourAdaptor none(nullptr);
    EXPECT_EQ(none.getDataValue(), ColourData(0.0, 0.0, 0.0, kColourSpaceRGB, 0.0));
    EXPECT_TRUE(none.requestSetNewDataValue(ColourData(0.5, 0.5, 0.5, kColourSpaceRGB, 0.2), kFinalChange));

    ValServer<NormalisedRGB> server(NormalisedRGB(0.0f, 0.0f, 0.0f, 0.3f));
    ColourAdaptor bound(&server);
    bound.requestSetNewDataValue(ColourData(120.0, 1.0, 1.0, kColourSpaceHSV, 0.2), kFinalChange);
    EXPECT_EQ(server.value(), NormalisedRGB(0.0f, 1.0f, 0.0f, 1.0f));
}
