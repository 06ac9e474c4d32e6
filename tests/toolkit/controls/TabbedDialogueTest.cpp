#include "controls/TabbedDialogue.h"
#include "PanelsTestSupport.h"
#include "controls/Button.h"
#include "draw/UifStd.h"

#include <algorithm>

namespace {

class Tabs : public ControlsTest {
protected:
    void SetUp() override {
        ControlsTest::SetUp();
        TabbedDialogue::InitArgs args(360, 170);
        tabs = host->createWidget<TabbedDialogue>(args, Glob::UserBottomLeft(10, 10));
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(tabs->addTab(titles[i]), i);
            pages[i] = page(colours[i]);
            EXPECT_TRUE(tabs->addPageForTab(static_cast<unsigned char>(i), pages[i]));
        }
        TestKit::pump();
    }
    StandardPanel* page(const Colour& c) const {
        StandardPanel::InitArgs pa(10, 10);
        pa.canvas = host->canvas();
        pa.palette = makeWindowPalette(c);
        return new StandardPanel(pa);
    }
    XY<int> tabCentre(int i) const {
        const BoxInt b = tabs->tabBox(i);
        return TestKit::screenPointOf(tabs, {(b.x1 + b.x2) / 2, (b.y1 + b.y2) / 2});
    }
    int changes() const { return static_cast<int>(std::count(host->messages.begin(), host->messages.end(), TabbedDialogue::kTabChangedMsg)); }
    bool shows(int i) const {
        const BoxInt p = tabs->pageBox();
        return similar(TestKit::globPixel(tabs, (p.x1 + p.x2) / 2, (p.y1 + p.y2) / 2), TestKit::argb(colours[i]), 2);
    }

    TabbedDialogue* tabs = nullptr;
    StandardPanel* pages[3] = {};
    const wchar_t* titles[3] = {L"General", L"Audio", L"Video"};
    Colour colours[3] = {Colour(0.8, 0.1, 0.1), Colour(0.1, 0.7, 0.1), Colour(0.1, 0.2, 0.9)};
};

} // namespace

TEST_F(Tabs, TheFirstTabShowsAndEachPageFillsThePageArea) {
    EXPECT_EQ(tabs->numTabs(), 3);
    EXPECT_EQ(tabs->getSelectedTab(), 0);
    EXPECT_TRUE(shows(0));
    const BoxInt area = tabs->pageBox();
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(pages[i]->box(), area);
        EXPECT_EQ(pages[i]->isVisible(), i == 0);
        EXPECT_EQ(tabs->getPage(i), pages[i]);
    }
    EXPECT_EQ(tabs->tabsBox().y2, tabs->height());
    EXPECT_EQ(tabs->tabsBox().height(), TabbedDialogue::tabHeight(0));
    EXPECT_LT(area.y2, tabs->tabsBox().y1);
    EXPECT_LT(tabs->tabBox(0).x2, tabs->tabBox(1).x2);
    EXPECT_EQ(tabs->tabAt({tabs->tabBox(1).x1 + 2, tabs->tabBox(1).y1 + 2}), 1);
    EXPECT_EQ(tabs->tabAt({area.x1 + 5, area.y1 + 5}), -1);

    const Palette& p = tabs->getPalette();
    EXPECT_GT(inkPixels(tabs, tabs->tabBox(1), TestKit::argb(p.window(kShadeDark))), 20) << "the titles are written";
    EXPECT_TRUE(TestKit::pixelNear(tabs, tabs->tabBox(1).x1 + 3, tabs->tabBox(1).y1 + 3, TestKit::argb(p.window(kShadeDark)), 2))
        << "an unselected tab is darker";

    tabs->resize(420, 200);
    EXPECT_EQ(pages[2]->box(), tabs->pageBox()) << "pages follow the dialogue's size";
    EXPECT_EQ(tabs->pageBox().width(), 420 - 2 * TabbedDialogue::calcBorderSize());
    EXPECT_EQ(TabbedDialogue::calcHeightForContents(100, TabbedDialogue::tabHeight(0)),
              100 + TabbedDialogue::tabHeight(0) + 2 * TabbedDialogue::calcBorderSize());
    EXPECT_GT(TabbedDialogue::tabHeight(TabbedDialogue::kTallTabs), TabbedDialogue::tabHeight(0));
}

TEST_F(Tabs, AClickOnATabSwitchesPagesAndTellsTheOwner) {
    TestKit::click(tabCentre(2));
    EXPECT_EQ(tabs->getSelectedTab(), 2);
    EXPECT_TRUE(shows(2));
    EXPECT_FALSE(pages[0]->isVisible());
    EXPECT_EQ(changes(), 1);
    EXPECT_EQ(host->senders.back(), tabs);

    TestKit::click(tabCentre(2));
    EXPECT_EQ(changes(), 1) << "the tab already selected changes nothing";
    tabs->selectTab(1);
    TestKit::pump();
    EXPECT_TRUE(shows(1));
    EXPECT_EQ(changes(), 1) << "the owner's own change is not reported back";
    tabs->selectTab(0, kRedraw, true);
    TestKit::pump();
    EXPECT_EQ(changes(), 2);
    tabs->selectTab(7);
    tabs->selectTab(-1);
    EXPECT_EQ(tabs->getSelectedTab(), 0) << "a tab past the end is ignored";

    tabs->setActive(false);
    EXPECT_FALSE(pages[1]->isActive());
    TestKit::click(tabCentre(1));
    EXPECT_EQ(tabs->getSelectedTab(), 0) << "an inactive dialogue ignores clicks";
}

TEST_F(Tabs, CtrlTabCyclesEvenFromAControlOnAPage) {
    Button::InitArgs ba(L"Focus", WidgetCallback("b"), 80, 24);
    Button* b = pages[0]->createWidget<Button>(ba, Glob::UserBottomLeft(5, 5));
    ASSERT_TRUE(b->claimKbdFocus());
    TestKit::pressKey(Keys::Tab, Modifiers::Control);
    EXPECT_EQ(tabs->getSelectedTab(), 1);
    TestKit::pressKey(Keys::Tab, Modifiers::Control);
    TestKit::pressKey(Keys::Tab, Modifiers::Control);
    EXPECT_EQ(tabs->getSelectedTab(), 0) << "it wraps round";
    TestKit::pressKey(Keys::Tab, Modifiers::Control | Modifiers::Shift);
    EXPECT_EQ(tabs->getSelectedTab(), 2);
    TestKit::pump();
    EXPECT_EQ(changes(), 4);
    TestKit::pressKey(Keys::Tab);
    EXPECT_EQ(tabs->getSelectedTab(), 2) << "a plain Tab is not the dialogue's";
}

TEST_F(Tabs, WithoutTheirFlagsThePagesHaveNoFrameAndCtrlTabIsLeftAlone) {
    TabbedDialogue::InitArgs args(200, 100, TabbedDialogue::kEvenTabs);
    auto* bare = host->createWidget<TabbedDialogue>(args, Glob::UserBottomLeft(10, 10));
    bare->addTab(UIString(L"One"));
    bare->addTab(UIString(L"Two"));
    const BoxInt user = bare->getUserArea();
    EXPECT_EQ(bare->pageBox(), BoxInt(user.x1, user.y1, user.x2, bare->tabsBox().y1)) << "the pages reach the edges";
    EXPECT_GT(tabs->pageBox().x1, tabs->getUserArea().x1) << "a framed dialogue keeps its frame clear";
    ASSERT_TRUE(bare->claimKbdFocus());
    TestKit::pressKey(Keys::Tab, Modifiers::Control);
    EXPECT_EQ(bare->getSelectedTab(), 0);
}

TEST_F(Tabs, RemovingPagesKeepsASensibleSelection) {
    tabs->selectTab(1);
    Glob* handed = tabs->removePage(1, false);
    ASSERT_EQ(handed, pages[1]);
    EXPECT_EQ(handed->parent(), nullptr) << "the caller owns a page taken out";
    delete handed;
    EXPECT_EQ(tabs->numTabs(), 2);
    EXPECT_EQ(tabs->getSelectedTab(), 1);
    EXPECT_EQ(tabs->getTabTitle(1).getString(), WString(L"Video"));
    TestKit::pump();
    EXPECT_TRUE(shows(2)) << "the next tab takes the removed one's place";

    EXPECT_EQ(tabs->removePage(1, true), nullptr);
    EXPECT_EQ(tabs->getSelectedTab(), 0);
    EXPECT_EQ(tabs->removePage(9, true), nullptr) << "past the end: nothing";
    EXPECT_EQ(tabs->numTabs(), 1);
    tabs->removePage(0, true);
    EXPECT_EQ(tabs->getSelectedTab(), -1);
    EXPECT_EQ(tabs->getPage(0), nullptr);
    TestKit::pressKey(Keys::Tab, Modifiers::Control);

    StandardPanel* spare = page(colours[0]);
    EXPECT_FALSE(tabs->addPageForTab(3, spare)) << "a page for a tab that does not exist is refused";
    delete spare;
    EXPECT_TRUE(tabs->tabBox(0).isEmpty());
}

TEST_F(Tabs, ANewPageForATabReplacesTheOldAndTitlesCanChange) {
    StandardPanel* other = page(Colour(0.9, 0.9, 0.1));
    const IdStamp oldStamp = pages[0]->stamp();
    Glob* old = pages[0];
    EXPECT_TRUE(tabs->addPageForTab(0, other));
    EXPECT_FALSE(EventHandler::valid(old, oldStamp)) << "the old page is destroyed";
    EXPECT_FALSE(tabs->addPageForTab(1, other)) << "one page cannot serve two tabs";
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(tabs, tabs->pageBox().x1 + 20, tabs->pageBox().y1 + 20, TestKit::argb(Colour(0.9, 0.9, 0.1)), 2));

    const int before = tabs->tabBox(0).width();
    tabs->setTabTitle(0, L"General settings for the whole project");
    EXPECT_GT(tabs->tabBox(0).width(), before);
    tabs->setTabTitle(5, L"nothing");
    EXPECT_EQ(tabs->getTabTitle(5).getString(), WString());
    tabs->resize(60, 40);
    TestKit::pump();
    EXPECT_LE(tabs->tabBox(0).x2, 60) << "tabs that do not fit are cut";
    EXPECT_TRUE(tabs->tabBox(2).isEmpty());
    EXPECT_GE(tabs->pageBox().height(), 0);
}
