#include "ListsTestSupport.h"

#include "controls/ScrollBar.h"
#include "controls/ScrollList.h"
#include "core/FunctionCallback.h"

using TestKit::argb;
using TestKit::Owned;
using TestKit::pixelNear;

namespace {

class ScrollListTest : public ::testing::Test {
protected:
    void SetUp() override {
        host = std::make_unique<Owned<MessageLog>>(makeHost(300, 300));
        row = UifStd::instance().getRowHeight();
    }
    void TearDown() override {
        host.reset();
        TestKit::reset();
    }
    ScrollList* make(int rows, int visible = 5, bool multi = false) {
        ScrollList::InitArgs a(200, static_cast<unsigned short>(visible * row), numberedRows(rows));
        a.multiSelect = multi;
        return addTo<ScrollList>(host->get(), a, Glob::BottomLeft(10, 10));
    }
    // The middle of a row's left margin, where no text is drawn, on the screen.
    XY<int> rowPoint(const ScrollList* l, int index) const {
        BoxInt b = l->itemBox(index);
        return TestKit::screenPointOf(l, {b.x1 + 1, (b.y1 + b.y2) / 2});
    }
    MessageLog& log() { return *host->get(); }

    std::unique_ptr<Owned<MessageLog>> host;
    int row = 0;
};

} // namespace

TEST_F(ScrollListTest, PaintsTheRowsInViewWithTheSelectionAndText) {
    ScrollList* l = make(20);
    EXPECT_EQ(l->numVisibleRows(), 5);
    const Palette& p = l->getPalette();
    l->select(2);
    TestKit::pump();
    BoxInt sel = l->itemBox(2), other = l->itemBox(3);
    EXPECT_EQ(sel.y2, l->listArea().y2 - 2 * row);
    EXPECT_TRUE(pixelNear(l, sel.x1 + 1, sel.y1 + 1, argb(p.selection(kSelectionUnfocused)), 1));
    EXPECT_TRUE(pixelNear(l, other.x1 + 1, other.y1 + 1, argb(p.childWindow(kChildList)), 1));
    EXPECT_GT(TestKit::countPixels(l, other, p.text(), 40), 10);
    EXPECT_GT(TestKit::countPixels(l, sel, p.text(kTextOnSelection), 40), 10);
    // The scroll bar takes the right edge and the rows stop short of it.
    EXPECT_EQ(l->scrollBar()->getX(), l->width() - ScrollBar::thickness());
    EXPECT_EQ(l->listArea().x2, l->scrollBar()->getX());

    // Scrolled by two rows, the selected row is at the top.
    l->scrollTo(2);
    TestKit::pump();
    EXPECT_EQ(l->itemBox(2).y2, l->listArea().y2);
    EXPECT_TRUE(pixelNear(l, 1, l->listArea().y2 - 2, argb(p.selection(kSelectionUnfocused)), 1));
    EXPECT_EQ(l->itemAt({5, l->listArea().y2 - 1}), 2);
    EXPECT_EQ(l->itemAt({5, 0}), 6);
    EXPECT_EQ(l->itemAt({l->listArea().x2 + 1, 5}), -1);
}

TEST_F(ScrollListTest, ClicksSelectAndModifiersBuildAMultipleSelection) {
    ScrollList* l = make(10, 5, true);
    TestKit::click(rowPoint(l, 1));
    EXPECT_EQ(l->getSelection(), std::vector<int>({1}));
    EXPECT_EQ(log().count(ScrollList::selectionChangedMsg), 1);
    EXPECT_EQ(log().senders.back(), l);
    TestKit::click(rowPoint(l, 3), Event::kLeft, Modifiers::Control);
    EXPECT_EQ(l->getSelection(), std::vector<int>({1, 3}));
    TestKit::click(rowPoint(l, 1), Event::kLeft, Modifiers::Control);
    EXPECT_EQ(l->getSelection(), std::vector<int>({3}));
    // A Ctrl click moves the anchor that a Shift click extends from.
    TestKit::click(rowPoint(l, 0), Event::kLeft, Modifiers::Shift);
    EXPECT_EQ(l->getSelection(), std::vector<int>({0, 1}));
    // The range stays anchored where it began.
    TestKit::click(rowPoint(l, 4), Event::kLeft, Modifiers::Shift);
    EXPECT_EQ(l->getSelection(), std::vector<int>({1, 2, 3, 4}));
    EXPECT_EQ(l->getSelectedIndex(), 4);

    // In a single-selection list the modifiers change nothing.
    l->setMultiSelect(false);
    EXPECT_EQ(l->getSelection(), std::vector<int>({4}));
    TestKit::click(rowPoint(l, 0), Event::kLeft, Modifiers::Control);
    TestKit::click(rowPoint(l, 2), Event::kLeft, Modifiers::Shift);
    EXPECT_EQ(l->getSelection(), std::vector<int>({2}));

    // Selecting in code tells nobody unless asked.
    log().clear();
    l->select(5);
    l->setSelected(6, true);
    TestKit::pump();
    EXPECT_TRUE(log().messages.empty());
    l->select(7, true);
    TestKit::pump();
    EXPECT_EQ(log().count(ScrollList::selectionChangedMsg), 1);
}

TEST_F(ScrollListTest, KeysMoveTheSelectionAndKeepItInView) {
    ScrollList* l = make(20);
    TestKit::click(rowPoint(l, 0));
    ASSERT_TRUE(l->hasKbdFocus());
    TestKit::pressKey(Keys::Down);
    TestKit::pressKey(Keys::Down);
    EXPECT_EQ(l->getSelectedIndex(), 2);
    TestKit::pressKey(Keys::PageDown);
    EXPECT_EQ(l->getSelectedIndex(), 6);
    EXPECT_EQ(l->getFirstVisible(), 2);
    TestKit::pressKey(Keys::End);
    EXPECT_EQ(l->getSelectedIndex(), 19);
    EXPECT_EQ(l->getFirstVisible(), 15);
    TestKit::pressKey(Keys::Down);
    EXPECT_EQ(l->getSelectedIndex(), 19);
    TestKit::pressKey(Keys::Home);
    EXPECT_EQ(l->getSelectedIndex(), 0);
    EXPECT_EQ(l->getFirstVisible(), 0);
    TestKit::pressKey(Keys::Up);
    EXPECT_EQ(l->getSelectedIndex(), 0);

    // Type-ahead finds the next row that starts with the letter, wrapping round.
    l->setItems({L"apple", L"banana", L"avocado", L"cherry"});
    TestKit::pressKey('a');
    EXPECT_EQ(l->getSelectedIndex(), 0);
    TestKit::pressKey('A');
    EXPECT_EQ(l->getSelectedIndex(), 2);
    TestKit::pressKey('a');
    EXPECT_EQ(l->getSelectedIndex(), 0);
    TestKit::pressKey('z');
    EXPECT_EQ(l->getSelectedIndex(), 0);

    // Shift with the arrows extends a multiple selection; Space toggles.
    l->setMultiSelect(true);
    TestKit::pressKey(Keys::Down, Modifiers::Shift);
    TestKit::pressKey(Keys::Down, Modifiers::Shift);
    EXPECT_EQ(l->getSelection(), std::vector<int>({0, 1, 2}));
    TestKit::pressKey(Keys::Space);
    EXPECT_EQ(l->getSelection(), std::vector<int>({0, 1}));
}

TEST_F(ScrollListTest, DoubleClickAndReturnActivateThroughTheCallbackOrTheOwner) {
    ScrollList* l = make(8);
    TestKit::click(rowPoint(l, 3));
    TestKit::click(rowPoint(l, 3));
    EXPECT_EQ(log().count(ScrollList::itemActivatedMsg), 1);
    TestKit::pressKey(Keys::Return);
    EXPECT_EQ(log().count(ScrollList::itemActivatedMsg), 2);

    int activated = -1, selected = 0;
    l->setActivationCallback(WidgetCallback(Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new FunctionCallback<NotifyMsg, int>(
        std::function<int(const NotifyMsg&)>([&](const NotifyMsg&) { return activated = l->getSelectedIndex(); })))));
    l->setSelectionCallback(WidgetCallback(Zn::Ptr<iCallbackBase<int, NotifyMsg>>(
        new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([&](const NotifyMsg&) { return ++selected; })))));
    TestKit::pressKey(Keys::Down);
    TestKit::pressKey(Keys::Return);
    EXPECT_EQ(activated, 4);
    EXPECT_EQ(selected, 1);
    EXPECT_EQ(log().count(ScrollList::itemActivatedMsg), 2);
}

TEST_F(ScrollListTest, WheelAndScrollBarScrollTheRowsAndTheThumbFollows) {
    ScrollList* l = make(20);
    ScrollBar* bar = l->scrollBar();
    EXPECT_DOUBLE_EQ(bar->thumbSize(), 5.0 / 20.0);
    TestKit::wheel(TestKit::centreOf(l), -1);
    EXPECT_EQ(l->getFirstVisible(), 3);
    EXPECT_DOUBLE_EQ(bar->thumbPos(), 3.0 / 15.0);
    TestKit::wheel(TestKit::centreOf(l), 5);
    EXPECT_EQ(l->getFirstVisible(), 0);

    TestKit::click(TestKit::screenPointOf(bar, {bar->width() / 2, 2}));
    EXPECT_EQ(l->getFirstVisible(), 1);
    TestKit::click(TestKit::screenPointOf(bar, {bar->width() / 2, bar->height() - 2}));
    EXPECT_EQ(l->getFirstVisible(), 0);
    // A track click pages by about a screenful.
    TestKit::click(TestKit::screenPointOf(bar, {bar->width() / 2, bar->forwardArrowBox().y2 + 2}));
    EXPECT_EQ(l->getFirstVisible(), 5);
    // Dragging the thumb to the end shows the last rows.
    BoxInt thumb = bar->thumbBox();
    XY<int> grab = TestKit::screenPointOf(bar, {bar->width() / 2, (thumb.y1 + thumb.y2) / 2});
    TestKit::drag(grab, grab - XY<int>(0, 500));
    EXPECT_EQ(l->getFirstVisible(), 15);
    EXPECT_EQ(l->itemAt({5, 1}), 19);
}

TEST_F(ScrollListTest, EmptyListsAndOutOfRangeRequestsDoNothing) {
    ScrollList* l = make(0);
    TestKit::click(l);
    TestKit::pressKey(Keys::Down);
    TestKit::pressKey(Keys::End);
    TestKit::pressKey(Keys::Return);
    TestKit::pressKey('r');
    TestKit::wheel(TestKit::centreOf(l), -1);
    EXPECT_EQ(l->getSelectedIndex(), -1);
    EXPECT_TRUE(log().messages.empty());
    EXPECT_DOUBLE_EQ(l->scrollBar()->thumbSize(), 1.0);
    EXPECT_TRUE(pixelNear(l, 5, l->height() - 5, argb(l->getPalette().childWindow(kChildList)), 1));

    l->setItems(numberedRows(3));
    l->select(99);
    EXPECT_EQ(l->getSelectedIndex(), -1);
    l->setSelected(-4, true);
    l->scrollTo(50);
    EXPECT_EQ(l->getFirstVisible(), 0);
    EXPECT_EQ(l->getItem(7), LightweightString<wchar_t>());
    l->setLineHeight(0);
    EXPECT_EQ(l->getLineHeight(), row);

    // Shrinking the list below one row, and then to nothing, keeps it usable.
    l->setItems(numberedRows(30));
    l->select(29);
    l->resize(20, 5);
    TestKit::pump();
    EXPECT_EQ(l->numVisibleRows(), 0);
    l->resize(-10, -10);
    l->redraw();
    TestKit::pump();
    l->resize(200, 5 * row);
    EXPECT_EQ(l->getFirstVisible(), 25);
    EXPECT_TRUE(l->isSelected(29));
}
