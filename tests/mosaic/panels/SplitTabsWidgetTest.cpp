#include "panels/SplitTabsWidget.h"
#include "controls/StandardPanel.h"
#include "draw/UifStd.h"
#include "testkit/TestKit.h"

namespace {

// Counts the hooks, as a derived panel would use them.
class CountingSplitTabs : public SplitTabsWidget {
public:
    using SplitTabsWidget::SplitTabsWidget;
    void handleTabsMerge() override { ++merges; }
    void handleTabsSplit() override { ++splits; }
    int merges = 0;
    int splits = 0;
};

class SplitTabs : public TestKit::ScreenTest {
protected:
    static SplitTabsWidget::Page page(const char* name, unsigned short minWidth = 0) {
        auto* p = new StandardPanel(StandardPanel::InitArgs(50, 50));
        p->setName(name);
        p->setMinSize(minWidth, 0);
        return {p, UIString(LightweightString<wchar_t>(LightweightString<char>(name).size(), L'x'))};
    }
    CountingSplitTabs* make(int width, int rightPages = 2, unsigned short minRight = 0) {
        SplitTabsWidget::InitArgs args(static_cast<unsigned short>(width), 300);
        args.leftPages = {page("L1"), page("L2")};
        for (int i = 0; i < rightPages; ++i) args.rightPages.push_back(page(i == 0 ? "R1" : "R2", minRight));
        args.coalesceWidth = 400;
        tabs = TestKit::realize(new CountingSplitTabs(args), {100, 100});
        TestKit::pump();
        return tabs;
    }
    static std::vector<Glob*> pagesOf(const TabbedDialogue* t) {
        std::vector<Glob*> out;
        for (int i = 0; t && i < t->numTabs(); ++i) out.push_back(t->getPage(i));
        return out;
    }
    static Glob* named(const char* name) { return TestKit::find(name); }

    CountingSplitTabs* tabs = nullptr;
};

} // namespace

TEST_F(SplitTabs, WithNoRightPagesTheTabsAreAlwaysOneGroup) {
    make(900, 0);
    EXPECT_TRUE(tabs->isCoalesced());
    EXPECT_EQ(tabs->splitter(), nullptr);
    EXPECT_EQ(pagesOf(tabs->leftTabs()), (std::vector<Glob*>{named("L1"), named("L2")}));
    EXPECT_EQ(tabs->leftTabs()->width(), 900);
}

TEST_F(SplitTabs, NarrowingMergesTheSamePagesAndWideningSplitsThemAgain) {
    make(800);
    ASSERT_FALSE(tabs->isCoalesced());
    Glob* r1 = named("R1");
    Glob* r2 = named("R2");
    EXPECT_EQ(pagesOf(tabs->rightTabs()), (std::vector<Glob*>{r1, r2}));
    EXPECT_NEAR(tabs->leftTabs()->width(), 400 - Splitter::calcThickness() / 2, 1);
    EXPECT_EQ(tabs->leftTabs()->getTabTitle(0).getString(), WString(L"xx"));

    tabs->resize(399, 300);
    EXPECT_TRUE(tabs->isCoalesced());
    EXPECT_EQ(tabs->merges, 1);
    EXPECT_EQ(pagesOf(tabs->leftTabs()), (std::vector<Glob*>{named("L1"), named("L2"), r1, r2})) << "the same page objects";
    EXPECT_EQ(tabs->leftTabs()->width(), 399);
    tabs->leftTabs()->selectTab(3);
    EXPECT_TRUE(r2->isVisible());
    tabs->resize(390, 300);
    EXPECT_EQ(tabs->merges, 1) << "already merged";

    tabs->resize(600, 300);
    EXPECT_FALSE(tabs->isCoalesced());
    EXPECT_EQ(tabs->splits, 1);
    EXPECT_EQ(pagesOf(tabs->leftTabs()), (std::vector<Glob*>{named("L1"), named("L2")}));
    EXPECT_EQ(pagesOf(tabs->rightTabs()), (std::vector<Glob*>{r1, r2}));
    EXPECT_EQ(tabs->leftTabs()->width() + Splitter::calcThickness() + tabs->rightTabs()->width(), 600);
    TestKit::pump();
    EXPECT_TRUE(TestKit::find("L1")->isShowing() && r1->isShowing()) << "each group shows its first page";
}

TEST_F(SplitTabs, AGroupNarrowerThanItsWidestPageMergesAndTheSplitterStopsAtIt) {
    make(800, 2, 300);
    ASSERT_FALSE(tabs->isCoalesced());
    TestKit::drag(tabs->splitter(), {200, 0});
    ASSERT_FALSE(tabs->isCoalesced());
    EXPECT_EQ(tabs->rightTabs()->width(), 300 + 2 * TabbedDialogue::calcBorderSize(tabs->tabFlags()))
        << "the drag stops where the right pages still fit";
    EXPECT_LE(tabs->getSplitPos(), 1.0f);
    tabs->resize(600, 300);
    EXPECT_TRUE(tabs->isCoalesced()) << "the right group would be too narrow";
}

TEST_F(SplitTabs, TheTabStyleChoosesTallEvenTabs) {
    SplitTabsWidget::InitArgs args(500, 300);
    args.leftPages = {page("L1")};
    args.tabStyle = 1;
    auto* w = TestKit::realize(new SplitTabsWidget(args), {100, 100});
    EXPECT_EQ(w->tabFlags(), 180u);
    EXPECT_EQ(w->leftTabs()->tabsBox().height(), TabbedDialogue::tabHeight(180));
    EXPECT_GT(TabbedDialogue::tabHeight(180), TabbedDialogue::tabHeight(48));
}

TEST_F(SplitTabs, ResizingByTheGripAcrossTheCoalesceWidthMergesAndSplits) {
    make(600);
    tabs->setResizable(true);
    TestKit::pump();
    const XY<int> corner = TestKit::screenPointOf(tabs, {tabs->width() - 2, 2});
    TestKit::drag(corner, corner + XY<int>(-300, 0));
    EXPECT_EQ(tabs->width(), 300);
    EXPECT_TRUE(tabs->isCoalesced());
    const XY<int> again = TestKit::screenPointOf(tabs, {tabs->width() - 2, 2});
    TestKit::drag(again, again + XY<int>(300, 0));
    EXPECT_FALSE(tabs->isCoalesced());
    EXPECT_EQ(tabs->merges, 1);
    EXPECT_EQ(tabs->splits, 1);
}
