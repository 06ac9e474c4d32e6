#include "controls/DropDownMenuButton.h"
#include "MenusTestSupport.h"
#include "draw/UifStd.h"
#include "glob/Messaging.h"
#include "value/ValAdaptor.h"

#include <algorithm>

namespace {

std::vector<UIString> rates() { return {UIString(L"23.976"), UIString(L"24"), UIString(L"25"), UIString(L"29.97")}; }

// A host that gives a drop-down new rows whenever it is about to open.
class RebuildingHost : public ControlHost {
public:
    RebuildingHost() : ControlHost(300, 100) { setupRootPos({100, 400}); }
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
        if (message == DropDownMenuButton::ddBtnClickMsg && button) {
            ++rebuilds;
            std::vector<UIString> rows;
            for (int i = 0; i <= rebuilds; ++i) rows.push_back(UIString(LightweightString<wchar_t>(L"Take " + std::to_wstring(i))));
            button->setStrings(rows, MenuItemIndex(static_cast<unsigned short>(rebuilds)));
        }
        return ControlHost::handleMessageEvent(message, sender);
    }
    DropDownMenuButton* button = nullptr;
    int rebuilds = 0;
};

class DropDowns : public MenusTest {
protected:
    DropDownMenuButton* dropDown(const DropDownMenuButton::InitArgs& a) { return add<DropDownMenuButton>(a, {20, 60}); }
    DropDownMenuButton* rateButton() { return dropDown(DropDownMenuButton::InitArgs(rates(), 120, 26)); }
    Menu* openWithClick(DropDownMenuButton* b) {
        TestKit::click(TestKit::centreOf(b));
        return b->getMenu();
    }
    int count(const std::string& message) const { return static_cast<int>(std::count(host->messages.begin(), host->messages.end(), message)); }
    static BoxInt arrowArea(const DropDownMenuButton* b) {
        // The arrow keeps within a row's height of the right edge.
        return BoxInt(b->width() - UifStd::instance().getRowHeight(), 2, b->width() - 2, b->height() - 2);
    }
};

} // namespace

TEST_F(DropDowns, AClickTellsTheOwnerThenOpensTheMenuBelowTheButton) {
    DropDownMenuButton* b = rateButton();
    EXPECT_EQ(b->getSelectedItem(), 0);
    EXPECT_EQ(b->getLabel().getString(), L"23.976");
    b->setSelectedItem(MenuItemIndex(2));
    Menu* m = openWithClick(b);
    ASSERT_NE(m, nullptr);
    EXPECT_EQ(host->messages, std::vector<std::string>{"ddBtnClickMsg"});
    EXPECT_EQ(host->senders[0], b);
    EXPECT_EQ(m->getX(), b->screenPos().x);
    EXPECT_EQ(m->getY() + m->height(), b->screenPos().y) << "the menu's top meets the button's bottom";
    EXPECT_GE(m->width(), b->width());
    EXPECT_EQ(m->markedRow(), 2);
    EXPECT_EQ(m->highlightedRow(), 2);
    EXPECT_TRUE(TestKit::pixelNear(b, 3, b->height() / 2, TestKit::argb(b->getPalette().window(kShadeDark)), 2))
        << "the button stays down while its menu is up";
}

TEST_F(DropDowns, AChoiceByMouseShowsOnTheButtonAndFiresOnce) {
    int rowCalls = 0;
    DropDownMenuButton* b = dropDown(DropDownMenuButton::InitArgs(
        std::vector<MenuItem>{MenuItem(UIString(L"Off")), MenuItem(UIString(L"Low"), WidgetCallback(countingCallback(rowCalls))),
                              MenuItem(UIString(L"High"))},
        120, 26));
    Menu* m = openWithClick(b);
    ASSERT_NE(m, nullptr);
    const BoxInt label(0, 0, b->width() - UifStd::instance().getRowHeight(), b->height());
    const int inkBefore = pixelsLike(b, label, b->getPalette().text(), 60);
    TestKit::click(rowCentre(m, 1));
    EXPECT_FALSE(b->isMenuOpen());
    EXPECT_EQ(b->getSelectedItem(), 1);
    EXPECT_EQ(b->getWidgetValue(), 1);
    EXPECT_EQ(b->getSelectedItemNameW(), L"Low");
    EXPECT_EQ(b->getLabel().getString(), L"Low");
    EXPECT_EQ(rowCalls, 1);
    EXPECT_EQ(host->messages, (std::vector<std::string>{"ddBtnClickMsg", "dropDownMenuButtonMsg"}));
    EXPECT_EQ(host->senders[1], b);
    EXPECT_GT(pixelsLike(b, label, b->getPalette().text(), 60), 3);
    EXPECT_NE(pixelsLike(b, label, b->getPalette().text(), 60), inkBefore) << "the new label was painted";
    EXPECT_TRUE(TestKit::pixelNear(b, 3, b->height() / 2, TestKit::argb(b->getPalette().window(kShadeLight)), 2)) << "up again";
}

TEST_F(DropDowns, TheKeyboardChoosesAndHeadingsAreNeverChoices) {
    MenuItem thirty(UIString(L"30"));
    thirty.setActive(false);
    std::vector<MenuItem> rows{MenuItem(UIString(L"Film"), {}, kMenuItemHeading),
                               MenuItem(UIString(L"24")),
                               MenuItem(UIString(L"23.976")),
                               MenuItem(UIString(L"Video"), {}, kMenuItemHeading),
                               MenuItem(UIString(L"25")),
                               thirty,
                               MenuItem(UIString(L"29.97"))};
    DropDownMenuButton* b = dropDown(DropDownMenuButton::InitArgs(rows, 120, 26));
    EXPECT_EQ(b->numChoices(), 5);
    EXPECT_EQ(b->getLabel().getString(), L"24");
    ASSERT_TRUE(b->claimKbdFocus());
    TestKit::pressKey(Keys::Return);
    Menu* m = b->getMenu();
    ASSERT_NE(m, nullptr);
    EXPECT_EQ(m->highlightedRow(), 1);
    TestKit::pressKey(Keys::Down);
    TestKit::pressKey(Keys::Down);
    EXPECT_EQ(m->highlightedRow(), 4);
    TestKit::pressKey(Keys::Down);
    EXPECT_EQ(m->highlightedRow(), 6) << "the inactive row is passed over";
    TestKit::pressKey(Keys::Return);
    EXPECT_EQ(b->getSelectedItem(), 4) << "the index counts choices, not headings";
    EXPECT_EQ(b->getSelectedItemNameW(), L"29.97");
    EXPECT_EQ(get_kbd_focus(), b);

    // Up and Down on the closed button choose the neighbour.
    std::vector<int> seen;
    for (int i = 0; i < 4; ++i) {
        TestKit::pressKey(Keys::Up);
        seen.push_back(b->getSelectedItem());
    }
    EXPECT_EQ(seen, (std::vector<int>{2, 1, 0, 0}));
    EXPECT_EQ(count("dropDownMenuButtonMsg"), 4) << "a step past the first choice changes nothing and tells no one";
    EXPECT_EQ(count("ddBtnClickMsg"), 1);
}

TEST_F(DropDowns, TheOwnerMayRebuildTheRowsWhenTheMenuIsAboutToOpen) {
    auto* owner = new RebuildingHost;
    DropDownMenuButton::InitArgs a(rates(), 120, 26);
    owner->button = owner->createWidget<DropDownMenuButton>(a, Glob::UserBottomLeft(10, 10));
    TestKit::pump();
    TestKit::click(TestKit::centreOf(owner->button));
    Menu* m = owner->button->getMenu();
    ASSERT_NE(m, nullptr);
    ASSERT_EQ(m->items().size(), 2u);
    EXPECT_EQ(m->items()[1].text().getString(), L"Take 1");
    EXPECT_EQ(m->markedRow(), 1);
    TestKit::pressKey(Keys::Escape);
    EXPECT_FALSE(owner->button->isMenuOpen());
    EXPECT_EQ(owner->button->getLabel().getString(), L"Take 1");
    EXPECT_EQ(owner->messages, std::vector<std::string>{"ddBtnClickMsg"}) << "closing without a choice tells nothing more";
}

TEST_F(DropDowns, BoundToAServerAChoiceStoresTheIndexAndAServerChangeOnlyShows) {
    ValServer<int> rate(2);
    DropDownMenuButton* b = rateButton();
    b->setDataAdaptor(Zn::Ptr<ValAdaptorBase<int>>(new ValAdaptor<int, int>(&rate)));
    b->getDataAdaptor()->forceWidgetUpdate(kRedraw);
    EXPECT_EQ(b->getSelectedItem(), 2);
    EXPECT_EQ(b->getLabel().getString(), L"25");

    Menu* m = openWithClick(b);
    ASSERT_NE(m, nullptr);
    TestKit::click(rowCentre(m, 3));
    EXPECT_EQ(rate.value(), 3);
    EXPECT_EQ(b->getLabel().getString(), L"29.97");
    EXPECT_EQ(count("dropDownMenuButtonMsg"), 1);

    rate = 1;
    TestKit::pump();
    EXPECT_EQ(b->getSelectedItem(), 1);
    EXPECT_EQ(b->getLabel().getString(), L"24");
    rate = 40;
    TestKit::pump();
    EXPECT_EQ(b->getSelectedItem(), -1) << "a value that is no choice shows none";
    EXPECT_TRUE(b->getLabel().empty());
    EXPECT_EQ(count("dropDownMenuButtonMsg"), 1) << "changes of the data are not choices";
    EXPECT_EQ(host->messages.size(), 2u);
}

TEST_F(DropDowns, AManagerThatRefusesKeepsTheButtonAsItWas) {
    struct Refuse : ValManagerBase<int> {
        bool requestValChange(ValServer<int>*, int&) override { return false; }
        void releaseServer(ValServer<int>*) override {}
    } refuse;
    ValServer<int> locked(0);
    locked.setManager(&refuse);
    DropDownMenuButton* b = rateButton();
    b->setDataAdaptor(Zn::Ptr<ValAdaptorBase<int>>(new ValAdaptor<int, int>(&locked)));
    Menu* m = openWithClick(b);
    ASSERT_NE(m, nullptr);
    TestKit::click(rowCentre(m, 2));
    EXPECT_EQ(locked.value(), 0);
    EXPECT_EQ(b->getSelectedItem(), 0);
    EXPECT_EQ(b->getLabel().getString(), L"23.976");
    locked.setManager(nullptr);
}

TEST_F(DropDowns, SelectionsThatPickNothingAreHarmless) {
    DropDownMenuButton* b = rateButton();
    b->setSelectedItem(MenuItemIndex(7));
    EXPECT_EQ(b->getSelectedItem(), 0) << "an index past the end leaves the selection alone";
    b->setSelectedItem(MenuItemIndex(L"60"));
    EXPECT_EQ(b->getSelectedItem(), 0);
    b->setSelectedItem(MenuItemIndex(L"25"));
    EXPECT_EQ(b->getSelectedItem(), 2);
    EXPECT_EQ(b->getLabel().getString(), L"25");

    b->setStrings(rates(), MenuItemIndex(9));
    EXPECT_EQ(b->getSelectedItem(), -1);
    EXPECT_TRUE(b->getLabel().empty());
    EXPECT_TRUE(b->getSelectedItemNameW().empty());
    int bad = -3;
    b->setNewWidgetValue(bad, kRedraw);
    EXPECT_EQ(b->getSelectedItem(), -1);

    b->setStrings(std::vector<UIString>{}, MenuItemIndex());
    EXPECT_EQ(b->numChoices(), 0);
    Menu* m = openWithClick(b);
    ASSERT_NE(m, nullptr) << "an empty list opens an empty menu";
    EXPECT_TRUE(m->items().empty());
    TestKit::pressKey(Keys::Down);
    TestKit::pressKey(Keys::Return);
    EXPECT_TRUE(b->isMenuOpen());
    TestKit::pressKey(Keys::Escape);
    EXPECT_FALSE(b->isMenuOpen());
    EXPECT_EQ(count("dropDownMenuButtonMsg"), 0);
}

TEST_F(DropDowns, APressOutsideClosesTheMenuWithNoChoice) {
    DropDownMenuButton* b = rateButton();
    Menu* m = openWithClick(b);
    ASSERT_NE(m, nullptr);
    TestKit::click(TestKit::screenPointOf(host, {300, 150}));
    EXPECT_FALSE(b->isMenuOpen());
    ASSERT_NE(openWithClick(b), nullptr);
    TestKit::click(TestKit::centreOf(b));
    EXPECT_FALSE(b->isMenuOpen()) << "a click on the button closes its menu and does not open it again";
    EXPECT_EQ(b->getSelectedItem(), 0);
    EXPECT_EQ(host->messages, (std::vector<std::string>{"ddBtnClickMsg", "ddBtnClickMsg"}));
}

TEST_F(DropDowns, TheArrowAndTheLabelArePaintedAndDimmedWhenInactive) {
    DropDownMenuButton* b = rateButton();
    const Colour ink = b->getPalette().text();
    EXPECT_GT(pixelsLike(b, arrowArea(b), ink, 30), 6);
    EXPECT_GT(pixelsLike(b, BoxInt(0, 0, b->width() / 2, b->height()), ink, 60), 6);
    b->setEnabledState(false);
    TestKit::pump();
    EXPECT_EQ(pixelsLike(b, arrowArea(b), ink, 30), 0);
    EXPECT_GT(pixelsLike(b, arrowArea(b), b->getPalette().text(kTextDimmed), 30), 6);
    EXPECT_EQ(openWithClick(b), nullptr);
    EXPECT_FALSE(b->displayMenu());
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(DropDowns, CalcWidthFitsTheWidestChoiceBesideTheArrow) {
    const Glib::FontDesc font = UifStd::instance().getDefaultFont();
    const int narrow = DropDownMenuButton::calcWidth(std::vector<UIString>{UIString(L"24")}, font);
    const int wide = DropDownMenuButton::calcWidth(std::vector<UIString>{UIString(L"24"), UIString(L"A much longer entry")}, font);
    EXPECT_GT(wide, narrow);
    EXPECT_GT(wide, UifStd::instance().measure(UIString(L"A much longer entry")).x + UifStd::instance().getRowHeight() / 2) << "room for the arrow";
    EXPECT_EQ(DropDownMenuButton::calcWidth(UIString(L"24"), font), narrow);
    EXPECT_EQ(DropDownMenuButton::calcWidth(
                  std::vector<MenuItem>{MenuItem(UIString(L"A much longer heading"), {}, kMenuItemHeading), MenuItem(UIString(L"24"))}, font),
              narrow)
        << "headings never show on the button";
    EXPECT_GT(DropDownMenuButton::calcWidth(std::vector<UIString>{UIString(L"Media||(120 GB)")}, font),
              DropDownMenuButton::calcWidth(std::vector<UIString>{UIString(L"Media")}, font));
}

TEST_F(DropDowns, AButtonWithALabelOfItsOwnKeepsItWhileTheChoiceChanges) {
    DropDownMenuButton* b = rateButton();
    b->useSelectedForButtonDisplay(false);
    b->setLabel(UIString(L"Rate"));
    Menu* m = openWithClick(b);
    ASSERT_NE(m, nullptr);
    TestKit::click(rowCentre(m, 3));
    EXPECT_EQ(b->getSelectedItem(), 3);
    EXPECT_EQ(b->getLabel().getString(), L"Rate");
    b->useSelectedForButtonDisplay(true);
    EXPECT_EQ(b->getLabel().getString(), L"29.97");
    b->setStrings(std::vector<UIString>{UIString(L"Media||(120 GB)")});
    EXPECT_EQ(b->getLabel().getString(), L"Media (120 GB)");
    EXPECT_EQ(b->getSelectedItemNameW(), L"Media||(120 GB)");
}

TEST_F(DropDowns, AButtonThatGoesTakesItsMenuWithIt) {
    DropDownMenuButton* b = rateButton();
    Menu* m = openWithClick(b);
    ASSERT_NE(m, nullptr);
    const IdStamp stamp = m->stamp();
    Glob* doomed = b;
    host->removeWidget(doomed, true);
    TestKit::pump();
    EXPECT_FALSE(alive(m, stamp));
    EXPECT_EQ(GlobManager::instance().topModal(), nullptr);
    EXPECT_EQ(host->messages, std::vector<std::string>{"ddBtnClickMsg"});
}
