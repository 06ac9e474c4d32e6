#include "controls/TitleMenuButton.h"
#include "MenusTestSupport.h"
#include "draw/UifStd.h"

namespace {

class TitledMenus : public MenusTest {
protected:
    TitleMenuButton* titled(unsigned short buttonWidth = 0, unsigned short width = 300) {
        TitleMenuButton::InitArgs a(UIString(L"Frame rate"), {UIString(L"24"), UIString(L"25"), UIString(L"30")}, buttonWidth, width, 28);
        return add<TitleMenuButton>(a, {10, 80});
    }
};

} // namespace

TEST_F(TitledMenus, TheTitleIsAtTheLeftAndTheButtonAtTheRight) {
    TitleMenuButton* t = titled();
    DropDownMenuButton* b = t->getBtn();
    ASSERT_NE(b, nullptr);
    EXPECT_EQ(b->getX() + b->width(), t->width());
    EXPECT_EQ(b->width(), DropDownMenuButton::calcWidth(b->getItems(), b->getFont())) << "automatic width fits the entries";
    EXPECT_EQ(t->getTitleText().getString(), L"Frame rate");
    const BoxInt title(0, 0, b->getX(), t->height());
    EXPECT_GT(pixelsLike(t, title, t->getPalette().text(), 60), 10);
    EXPECT_EQ(t->getSelectedItem(), 0);
    EXPECT_EQ(t->getSelectedItemNameW(), L"24");

    TitleMenuButton* fixed = titled(150);
    EXPECT_EQ(fixed->getBtn()->width(), 150);
    fixed->resize(400, 28);
    EXPECT_EQ(fixed->getBtn()->getX() + 150, 400) << "the button follows the right edge";

    TitleMenuButton* cramped = titled(0, 60);
    EXPECT_EQ(cramped->getBtn()->width(), 30) << "a long title leaves the button half the row";
}

TEST_F(TitledMenus, TheButtonsMessagesReachTheOwnerFromTheTitledWidget) {
    TitleMenuButton* t = titled();
    t->getBtn()->setCallback(WidgetCallback("rateChanged"));
    TestKit::click(TestKit::centreOf(t->getBtn()));
    Menu* m = t->getBtn()->getMenu();
    ASSERT_NE(m, nullptr);
    TestKit::click(rowCentre(m, 2));
    EXPECT_EQ(host->messages, (std::vector<std::string>{"ddBtnClickMsg", "rateChanged"}));
    EXPECT_EQ(host->senders, (std::vector<Glob*>{t, t}));
    EXPECT_EQ(t->getSelectedItem(), 2);
}

TEST_F(TitledMenus, SelectionAndRowsGoThroughToTheButton) {
    TitleMenuButton* t = titled();
    t->setSelectedItem(MenuItemIndex(L"30"));
    EXPECT_EQ(t->getBtn()->getSelectedItem(), 2);
    t->setSelectedItem(MenuItemIndex(5));
    EXPECT_EQ(t->getSelectedItem(), 2);
    t->setStrings(std::vector<UIString>{UIString(L"50"), UIString(L"59.94 drop frame")}, MenuItemIndex(1));
    EXPECT_EQ(t->getSelectedItemNameW(), L"59.94 drop frame");
    EXPECT_EQ(t->getBtn()->width(), DropDownMenuButton::calcWidth(t->getBtn()->getItems(), t->getBtn()->getFont())) << "the button fits its new rows";
    t->setActive(false);
    EXPECT_FALSE(t->getBtn()->isActive());
    TestKit::click(TestKit::centreOf(t->getBtn()));
    EXPECT_FALSE(t->getBtn()->isMenuOpen());
    EXPECT_TRUE(host->messages.empty());
}
