#include "MenusTestSupport.h"
#include "controls/Button.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "glob/Messaging.h"

namespace {

class Menus : public MenusTest {
protected:
    Button* hostButton() { return add<Button>(Button::InitArgs(UIString(L"Render"), WidgetCallback("pressed"), 120, 30), {20, 20}); }
    // The box of a row's text, right of the column where a choice is marked.
    static BoxInt textArea(const Menu* m, int row) {
        BoxInt b = m->rowBox(row);
        return BoxInt(b.x1 + UifStd::instance().getTextIndent(), b.y1, b.x2, b.y2);
    }
};

std::vector<MenuItem> editRows() {
    MenuItem redo(UIString(L"Redo"), WidgetCallback("redo"));
    redo.setActive(false);
    return {MenuItem(UIString(L"Edit"), {}, kMenuItemHeading),
            MenuItem(UIString(L"Undo"), WidgetCallback("undo")),
            MenuItem(),
            redo,
            MenuItem(UIString(L"Select all"), WidgetCallback("all")),
            MenuItem(UIString(L"View"), {}, kMenuItemHeading),
            MenuItem(UIString(L"Zoom"), WidgetCallback("zoom"))};
}

} // namespace

TEST_F(Menus, TheMouseHighlightsTheRowUnderItAndAReleaseChoosesItOnce) {
    int copies = 0;
    Menu* m = popUp({MenuItem(UIString(L"Cut"), WidgetCallback("cut")), MenuItem(UIString(L"Copy"), WidgetCallback(countingCallback(copies))),
                     MenuItem(UIString(L"Paste"), WidgetCallback("paste"))});
    const IdStamp stamp = m->stamp();
    EXPECT_EQ(m->highlightedRow(), -1);
    TestKit::mouseMove(rowCentre(m, 1));
    EXPECT_EQ(m->highlightedRow(), 1);
    BoxInt lit = m->rowBox(1), plain = m->rowBox(0);
    EXPECT_TRUE(TestKit::pixelNear(m, lit.x1 + 2, lit.y1 + 2, TestKit::argb(m->highlightColour()), 2));
    EXPECT_TRUE(TestKit::pixelNear(m, plain.x1 + 2, plain.y1 + 2, TestKit::argb(m->rowBackground()), 2));
    EXPECT_GT(pixelsLike(m, textArea(m, 1), m->getPalette().text(kTextOnSelection)), 10) << "the highlighted text is painted for the highlight";
    TestKit::mouseMove(rowCentre(m, 2));
    EXPECT_EQ(m->highlightedRow(), 2);
    EXPECT_TRUE(TestKit::pixelNear(m, lit.x1 + 2, lit.y1 + 2, TestKit::argb(m->rowBackground()), 2));

    TestKit::click(rowCentre(m, 1));
    EXPECT_EQ(copies, 1);
    EXPECT_FALSE(alive(m, stamp));
    EXPECT_EQ(host->messages, std::vector<std::string>{"menu_poot"}) << "a row with a callback sends no message";
}

TEST_F(Menus, ARowWithoutACallbackPostsItsMessageToTheOwner) {
    Menu* m = popUp({MenuItem(UIString(L"Cut"), WidgetCallback("cut")), MenuItem(UIString(L"Paste"), WidgetCallback("paste"))});
    TestKit::click(rowCentre(m, 1));
    EXPECT_EQ(host->messages, (std::vector<std::string>{"paste", "menu_poot"}));
}

TEST_F(Menus, KeysMoveOverTheRowsThatCanBeChosenAndReturnChooses) {
    Menu* m = popUp(editRows());
    const int undo = 1, all = 4, zoom = 6;
    std::vector<int> seen;
    for (int key : {Keys::Down, Keys::Down, Keys::Down, Keys::Down, Keys::Up, Keys::Up}) {
        TestKit::pressKey(key);
        seen.push_back(m->highlightedRow());
    }
    EXPECT_EQ(seen, (std::vector<int>{undo, all, zoom, undo, zoom, all})) << "headings, the gap and the inactive row are passed over, round the ends";
    TestKit::pressKey(Keys::End);
    EXPECT_EQ(m->highlightedRow(), zoom);
    TestKit::pressKey(Keys::Home);
    EXPECT_EQ(m->highlightedRow(), undo);
    TestKit::pressKey('s');
    EXPECT_EQ(m->highlightedRow(), all);
    TestKit::pressKey('R');
    EXPECT_EQ(m->highlightedRow(), all) << "the only row beginning with R cannot be chosen";
    TestKit::pressKey('z');
    EXPECT_EQ(m->highlightedRow(), zoom);
    EXPECT_TRUE(host->messages.empty());
    TestKit::pressKey(Keys::Return);
    EXPECT_EQ(host->messages, (std::vector<std::string>{"zoom", "menu_poot"}));
}

TEST_F(Menus, EscapeClosesWithoutAChoiceAndGivesTheFocusBack) {
    Button* b = hostButton();
    ASSERT_TRUE(b->claimKbdFocus());
    Menu* m = popUp(editRows(), {700, 800}, 1);
    const IdStamp stamp = m->stamp();
    EXPECT_EQ(m->highlightedRow(), 1);
    EXPECT_EQ(get_kbd_focus(), m);
    EXPECT_TRUE(GlobManager::instance().isModal(m));
    TestKit::pressKey(Keys::Escape);
    EXPECT_FALSE(alive(m, stamp));
    EXPECT_EQ(get_kbd_focus(), b);
    EXPECT_EQ(GlobManager::instance().topModal(), nullptr);
    EXPECT_EQ(host->messages, std::vector<std::string>{"menu_poot"});
}

TEST_F(Menus, APressOutsideClosesTheMenuAndGoesNoFurther) {
    Button* b = hostButton();
    Menu* m = popUp(editRows());
    const IdStamp stamp = m->stamp();
    TestKit::click(TestKit::centreOf(m));
    EXPECT_TRUE(m->isOpen()) << "a press inside, on no row that can be chosen, keeps it up";
    TestKit::click(TestKit::centreOf(b));
    EXPECT_FALSE(alive(m, stamp));
    EXPECT_EQ(host->messages, std::vector<std::string>{"menu_poot"}) << "the press that closed the menu did not reach the button";
    TestKit::click(TestKit::centreOf(b));
    EXPECT_EQ(host->messages, (std::vector<std::string>{"menu_poot", "pressed"}));
}

TEST_F(Menus, AMenuWithNoRowsOpensEmptyAndCloses) {
    Menu* m = popUp({});
    const IdStamp stamp = m->stamp();
    ASSERT_TRUE(m->isOpen());
    EXPECT_TRUE(GlobManager::instance().isRealized(m));
    EXPECT_GT(m->width(), 0);
    EXPECT_GT(m->height(), 0);
    EXPECT_EQ(m->rowAt({m->width() / 2, m->height() / 2}), -1);
    for (int key : {Keys::Down, Keys::Up, Keys::End, Keys::PageDown, int('a'), Keys::Return}) TestKit::pressKey(key);
    EXPECT_TRUE(m->isOpen());
    EXPECT_EQ(m->highlightedRow(), -1);
    EXPECT_FALSE(m->choose(0));
    TestKit::click(TestKit::centreOf(m));
    EXPECT_TRUE(m->isOpen());
    TestKit::pressKey(Keys::Escape);
    EXPECT_FALSE(alive(m, stamp));
    EXPECT_EQ(host->messages, std::vector<std::string>{"menu_poot"});
}

TEST_F(Menus, HeadingsHaveTheirOwnStyleAndCannotBeChosen) {
    Menu* m = popUp({MenuItem(UIString(L"Formats"), {}, kMenuItemHeading), MenuItem(UIString(L"1080p25"), WidgetCallback("hd"))});
    BoxInt heading = m->rowBox(0), row = m->rowBox(1);
    EXPECT_TRUE(TestKit::pixelNear(m, heading.x2 - 3, heading.y1 + 2, TestKit::argb(m->headingBackground()), 2));
    EXPECT_TRUE(TestKit::pixelNear(m, row.x2 - 3, row.y1 + 2, TestKit::argb(m->rowBackground()), 2));
    const Colour subheading = m->getPalette().subheadingText();
    EXPECT_GT(pixelsLike(m, heading, subheading), 10);
    EXPECT_EQ(pixelsLike(m, row, subheading), 0);
    EXPECT_GT(pixelsLike(m, row, m->getPalette().text()), 10);

    TestKit::mouseMove(rowCentre(m, 0));
    EXPECT_EQ(m->highlightedRow(), -1);
    m->setHighlightedRow(0);
    EXPECT_EQ(m->highlightedRow(), -1);
    TestKit::click(rowCentre(m, 0));
    EXPECT_TRUE(m->isOpen());
    EXPECT_FALSE(m->choose(0));
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(Menus, InactiveRowsAreDimmedAndIgnoreClicks) {
    MenuItem off(UIString(L"Export"), WidgetCallback("export"));
    off.setActive(false);
    Menu* m = popUp({MenuItem(UIString(L"Import"), WidgetCallback("import")), off});
    EXPECT_EQ(pixelsLike(m, m->rowBox(1), m->getPalette().text(), 12), 0);
    EXPECT_GT(pixelsLike(m, m->rowBox(0), m->getPalette().text(), 12), 10);
    TestKit::click(rowCentre(m, 1));
    EXPECT_TRUE(m->isOpen());
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(Menus, TheSecondTextStandsAtTheRightOfItsRow) {
    MenuItem save(UIString(L"Save"), WidgetCallback("save"));
    save.setSecondText(UIString(L"Ctrl+S"));
    Menu* m = popUp({save, MenuItem(UIString(L"Disk||(120 GB)"))});
    const int gap = UifStd::instance().getWidgetGap();
    for (int row : {0, 1}) {
        BoxInt b = m->rowBox(row);
        BoxInt right(b.x2 - gap - 12, b.y1, b.x2 - gap, b.y2);
        EXPECT_GT(pixelsLike(m, right, m->getPalette().text(), 60), 3) << "row " << row;
    }
    EXPECT_GT(m->width(), UifStd::instance().measure(UIString(L"Save")).x + UifStd::instance().measure(UIString(L"Ctrl+S")).x);
}

TEST_F(Menus, ALongMenuScrollsToKeepTheHighlightInSight) {
    std::vector<MenuItem> rows;
    for (int i = 0; i < 200; ++i) {
        std::string name = "r" + std::to_string(i);
        rows.emplace_back(UIString(LightweightString<wchar_t>(std::wstring(name.begin(), name.end()))), WidgetCallback(name.c_str()));
    }
    Menu::InitArgs args(rows);
    args.maxHeight = 10 * UifStd::instance().getRowHeight();
    auto* m = new Menu(args);
    m->popUpAt(host, {700, 900});
    TestKit::pump();
    EXPECT_LE(m->height(), args.maxHeight);
    EXPECT_LT(m->visibleRowCount(), 10);
    EXPECT_GT(m->visibleRowCount(), 0);
    EXPECT_TRUE(m->rowBox(m->visibleRowCount()).isEmpty());

    TestKit::pressKey(Keys::End);
    EXPECT_EQ(m->highlightedRow(), 199);
    EXPECT_EQ(m->firstVisibleRow() + m->visibleRowCount(), 200);
    EXPECT_FALSE(m->rowBox(199).isEmpty());
    EXPECT_TRUE(m->rowBox(0).isEmpty());
    TestKit::pressKey(Keys::PageUp);
    EXPECT_EQ(m->highlightedRow(), 199 - m->visibleRowCount());
    TestKit::pressKey(Keys::Home);
    EXPECT_EQ(m->firstVisibleRow(), 0);

    TestKit::wheel(TestKit::centreOf(m), -1);
    const int first = m->firstVisibleRow();
    EXPECT_GT(first, 0);
    TestKit::click(rowCentre(m, first + 1));
    EXPECT_EQ(host->messages.front(), "r" + std::to_string(first + 1));
}

TEST_F(Menus, AMenuStaysOnTheScreen) {
    const Screen& screen = GlobManager::instance().screen();
    Menu* corner = popUp(editRows(), {screen.width() - 4, 10});
    EXPECT_LE(corner->getX() + corner->width(), screen.width());
    EXPECT_GE(corner->getY(), 0);
    corner->close();
    TestKit::pump();

    Menu::InitArgs args(editRows());
    auto* low = new Menu(args);
    const BoxInt anchor(300, 4, 400, 30);
    low->popUpBelow(host, anchor);
    TestKit::pump();
    EXPECT_EQ(low->getY(), anchor.y2) << "with no room below the anchor it opens above";
    EXPECT_EQ(low->getX(), anchor.x1);
}

TEST_F(Menus, OverAModalPanelTheMenuStandsOnTopAndTakesTheMouse) {
    auto* dialog = new ControlHost(300, 200);
    dialog->setupRootPos({600, 600});
    dialog->setModalContextGlob(dialog);
    TestKit::pump();
    Menu::InitArgs args(editRows());
    auto* m = new Menu(args);
    m->popUpAt(dialog, {650, 780});
    TestKit::pump();
    EXPECT_EQ(GlobManager::instance().roots().back(), m);
    TestKit::click(rowCentre(m, 4));
    EXPECT_EQ(dialog->messages, (std::vector<std::string>{"all", "menu_poot"}));
    EXPECT_EQ(GlobManager::instance().topModal(), dialog);
}
