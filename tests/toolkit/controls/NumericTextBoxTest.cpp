#include "TextControlKit.h"

#include "controls/NumericTextBox.h"
#include "value/ValAdaptor.h"

using namespace TextControlKit;

namespace {

class NumericTextBoxTest : public TextControlTest {
protected:
    void SetUp() override {
        panel = makePanel();
        NumericTextBox::InitArgs args(UIString(L"50"), 120, static_cast<unsigned short>(TextBox::calcHeight()));
        box = panel->createWidget<NumericTextBox>(args, Glob::BottomLeft(10, 10));
        set_kbd_focus(box);
        TestKit::pump();
    }
    void enter(const wchar_t* text) {
        TestKit::pressKey('a', Modifiers::Control);
        TestKit::typeText(text);
        TestKit::pressKey(Keys::Return);
    }

    NumericTextBox* box = nullptr;
};

} // namespace

TEST_F(NumericTextBoxTest, ACommittedValueOutsideTheRangeOrNoNumberIsCorrected) {
    box->setRange(0, 100);
    enter(L"250");
    EXPECT_EQ(box->getString(), L"100");
    enter(L"-3.5");
    EXPECT_EQ(box->getString(), L"0");
    enter(L"42.25");
    EXPECT_EQ(box->getString(), L"42.25") << "a number within the range stands";
    enter(L"..");
    EXPECT_EQ(box->getString(), L"42.25") << "no number at all goes back to the last good value";
    enter(L"7e1");
    EXPECT_EQ(box->getString(), L"70");

    box->setValueRange(10, -10);
    EXPECT_EQ(box->getMin(), -10.0) << "bounds the wrong way round are swapped";
    enter(L"12");
    EXPECT_EQ(box->getString(), L"10");
    box->clearValueRange();
    enter(L"12345.5");
    EXPECT_EQ(box->getString(), L"12345.5") << "with no range any number stands";
}

TEST_F(NumericTextBoxTest, OnlyTheCharactersOfANumberCanBeTyped) {
    TestKit::pressKey('a', Modifiers::Control);
    TestKit::typeText(L"x1,5 kg-");
    EXPECT_EQ(box->getString(), L"15-");
}

TEST_F(NumericTextBoxTest, ArrowsStepTheValueWithinTheRangeAndCommitIt) {
    ValServer<int> server(50);
    auto adaptor = Zn::Ptr<ValAdaptor<LightweightString<wchar_t>, int>>(new ValAdaptor<LightweightString<wchar_t>, int>(&server));
    box->setDataAdaptor(adaptor);
    box->setRange(0, 60);
    box->setStep(5);
    TestKit::pressKey(Keys::Up);
    EXPECT_EQ(box->getString(), L"55");
    EXPECT_EQ(server.value(), 55);
    TestKit::pressKey(Keys::Up);
    TestKit::pressKey(Keys::Up);
    EXPECT_EQ(server.value(), 60) << "stepping stops at the end of the range";
    TestKit::pressKey(Keys::PageDown);
    EXPECT_EQ(server.value(), 10);
    TestKit::pressKey(Keys::PageDown);
    EXPECT_EQ(server.value(), 0);

    enter(L"75");
    EXPECT_EQ(server.value(), 60) << "the corrected value is what is stored";
    server = 20;
    EXPECT_EQ(box->getString(), L"20");
    EXPECT_DOUBLE_EQ(box->getValue(), 20.0);
}

TEST_F(NumericTextBoxTest, ValuesSetByCodeAreHeldToTheRange) {
    box->setRange(-1, 1);
    box->setValue(5);
    EXPECT_EQ(box->getString(), L"1");
    box->setValue(-0.5);
    EXPECT_EQ(box->getString(), L"-0.5");
    box->setValueRange(std::nan(""), 3);
    EXPECT_EQ(box->getMax(), 1.0) << "a NaN bound is refused";
}
