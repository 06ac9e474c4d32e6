#include "TextControlKit.h"

#include "controls/TitleTextBox.h"
#include "value/ValAdaptor.h"

using namespace TextControlKit;

namespace {

class TitleTextBoxTest : public ::testing::Test {
protected:
    void SetUp() override { panel = makePanel(); }
    void TearDown() override {
        delete panel;
        TestKit::reset();
    }
    TitleTextBox* addRow(const wchar_t* legend, unsigned short entryWidth, TitleTextBox::eStyle style = TitleTextBox::kLegendLeft) {
        TitleTextBox::InitArgs args(UIString(legend), entryWidth, 300, static_cast<unsigned short>(TextBox::calcHeight()), style);
        return panel->createWidget<TitleTextBox>(args, Glob::BottomLeft(10, 10));
    }

    RecordingPanel* panel = nullptr;
};

} // namespace

TEST_F(TitleTextBoxTest, TheLegendIsDrawnLeftOfTheBoxWhoseWidthCanBeSet) {
    TitleTextBox* row = addRow(L"Clip name", 200);
    TextBox* box = row->getTextBox();
    EXPECT_EQ(box->width(), 200);
    EXPECT_EQ(box->getX(), 100);
    const Palette& p = row->getPalette();
    EXPECT_GT(countPixels(row, BoxInt(0, 0, 100, row->height()), p.text(), 40), 10) << "the legend";
    EXPECT_TRUE(TestKit::pixelNear(row, 100, row->height() / 2, TestKit::argb(p.window(kShadeDarkest)))) << "the box's frame";

    row->setTitleWidth(150);
    EXPECT_EQ(box->getX(), 150);
    EXPECT_EQ(box->width(), 150);
    row->setTitleWidth(1000);
    EXPECT_EQ(box->width(), 0) << "a title wider than the row leaves the box no room, and no harm";
    row->setTitleWidth(0);
    EXPECT_EQ(box->width(), 300);

    TitleTextBox* automatic = addRow(L"Name", 0);
    EXPECT_EQ(automatic->getTitleWidth(), TitleTextBox::calcTitleWidth(UIString(L"Name"), automatic->getFont()));
    EXPECT_EQ(automatic->getTextBox()->width(), 300 - automatic->getTitleWidth());
    EXPECT_EQ(addRow(L"", 0)->getTitleWidth(), 0);
}

TEST_F(TitleTextBoxTest, TheLegendCanStandAgainstTheBox) {
    TitleTextBox* left = addRow(L"Id", 100, TitleTextBox::kLegendLeft);
    const Palette& p = left->getPalette();
    BoxInt nearEdge(0, 0, 40, left->height()), nearBox(150, 0, 200, left->height());
    EXPECT_GT(countPixels(left, nearEdge, p.text(), 40), 0);
    EXPECT_EQ(countPixels(left, nearBox, p.text(), 40), 0);
    left->setStyle(TitleTextBox::kLegendAgainstBox);
    EXPECT_EQ(countPixels(left, nearEdge, p.text(), 40), 0);
    EXPECT_GT(countPixels(left, nearBox, p.text(), 40), 0);
}

TEST_F(TitleTextBoxTest, BindingGoesToTheBoxAndTheCallbacksToTheOwner) {
    TitleTextBox* row = addRow(L"Title", 200);
    ValServer<LightweightString<wchar_t>> server(L"first");
    using Adaptor = ValAdaptor<LightweightString<wchar_t>, LightweightString<wchar_t>>;
    row->setDataAdaptor(Zn::Ptr<Adaptor>(new Adaptor(&server)));
    EXPECT_EQ(row->getString(), L"first");
    EXPECT_EQ(row->getDataAdaptor().get(), row->getTextBox()->getDataAdaptor().get());

    row->requestCallback(StandardPanel::doItMsg, nullptr, TextBoxBase::kReturnPressed);
    EXPECT_TRUE(row->claimKbdFocus());
    EXPECT_EQ(get_kbd_focus(), row->getTextBox());
    TestKit::typeText(L"second");
    TestKit::pressKey(Keys::Return);
    EXPECT_EQ(server.value(), L"second");
    ASSERT_EQ(panel->heard.size(), 1u);
    EXPECT_EQ(panel->heard[0], StandardPanel::doItMsg);

    server = L"third";
    EXPECT_EQ(row->getWidgetValue(), L"third");

    row->setActive(false);
    EXPECT_FALSE(row->getTextBox()->isActive());
    EXPECT_NE(get_kbd_focus(), row->getTextBox()) << "an inactive box gives up the focus";
    EXPECT_FALSE(row->claimKbdFocus());
    panel->tabOrder().addTabStopsFrom(*row);
    row->setActive(true);
    EXPECT_TRUE(panel->tabOrder().incrementTabStop());
    EXPECT_EQ(get_kbd_focus(), row->getTextBox());
}
