#include "panels/PageIndexWidget.h"
#include "core/FunctionCallback.h"
#include "core/Utf8.h"
#include "draw/UifStd.h"
#include "testkit/TestKit.h"

#include <string>
#include <vector>

namespace {

// The page index's parent: records the pages that clicks report.
class PagerOwner : public StandardPanel {
public:
    PagerOwner() : StandardPanel(InitArgs(700, 100)) {}
    int handleDataMessageEvent(const LightweightString<char>& message, Glob*, const Zn::Ptr<iObject>& data) override {
        auto page = Zn::dynamicCast<PageIndexWidget::PageData>(data);
        if (message == PageIndexWidget::kPageChangedMsg && page) heard.push_back(page->get());
        return 1;
    }
    std::vector<int> heard;
};

class PageIndex : public TestKit::ScreenTest {
protected:
    PageIndexWidget* make(unsigned short pages, unsigned char visible, unsigned short current = 0) {
        owner = TestKit::realize(new PagerOwner, {100, 400});
        PageIndexWidget::InitArgs args(pages, visible, 600, static_cast<unsigned short>(UifStd::instance().getRowHeight()));
        args.currentPage = current;
        auto* w = owner->createWidget<PageIndexWidget>(args, Glob::UserBottomLeft(10, 10));
        TestKit::pump();
        return w;
    }
    static std::vector<std::string> labels(const PageIndexWidget* w) {
        std::vector<std::string> out;
        for (const Button* b : w->numberButtons()) out.push_back(toUTF8(b->getLabel().getString()).str());
        return out;
    }
    static int latched(const PageIndexWidget* w) {
        int which = -1, count = 0;
        for (std::size_t i = 0; i < w->numberButtons().size(); ++i)
            if (w->numberButtons()[i]->isLatched()) which = static_cast<int>(i), ++count;
        return count == 1 ? which : -1;
    }
    PagerOwner* owner = nullptr;
};

} // namespace

TEST_F(PageIndex, TheWindowIsCentredOnTheCurrentPageAsFarAsTheEndsAllow) {
    PageIndexWidget* w = make(20, 5, 10);
    EXPECT_EQ(labels(w), (std::vector<std::string>{"9", "10", "11", "12", "13"}));
    EXPECT_EQ(latched(w), 2);
    w->setPages(19, 20);
    EXPECT_EQ(labels(w), (std::vector<std::string>{"16", "17", "18", "19", "20"}));
    EXPECT_EQ(latched(w), 4) << "the last button is on";
    EXPECT_FALSE(w->nextButton()->isActive());
    EXPECT_TRUE(w->prevButton()->isActive());
    w->setPages(0, 20);
    EXPECT_EQ(labels(w), (std::vector<std::string>{"1", "2", "3", "4", "5"}));
    EXPECT_FALSE(w->prevButton()->isActive());
    EXPECT_EQ(w->numberButtons()[0]->width(), w->numberButtons()[1]->width()) << "single digits are as wide as 10";
    EXPECT_TRUE(owner->heard.empty()) << "calls from code notify nobody";
}

TEST_F(PageIndex, OutOfRangePagesAreClampedAndNoPagesShowTheEmptyLabel) {
    PageIndexWidget* w = make(10, 5, 3);
    w->setPages(50, 10);
    EXPECT_EQ(w->getCurrentPage(), 9);
    EXPECT_EQ(labels(w).back(), "10");
    w->setPages(0, 0);
    EXPECT_TRUE(w->numberButtons().empty());
    EXPECT_TRUE(w->emptyLabel()->isVisible());
    EXPECT_FALSE(TestKit::find("pageStrip")->isVisible());
    EXPECT_FALSE(w->prevButton()->isActive() || w->nextButton()->isActive());
    w->setEmptyLabel(UIString(L"Nothing here"));
    TestKit::pump();
    EXPECT_GT(TestKit::inkPixels(w->emptyLabel(), BoxInt(0, 0, w->width(), w->height()), TestKit::argb(w->emptyLabel()->getPalette().window())), 30);
    w->setPages(0, 1);
    EXPECT_EQ(labels(w), std::vector<std::string>{"1"});
    EXPECT_FALSE(w->prevButton()->isActive() || w->nextButton()->isActive()) << "one page: nowhere to go";
    EXPECT_FALSE(w->emptyLabel()->isVisible());
}

TEST_F(PageIndex, NextMovesTheLatchWithoutRebuildingUntilTheStripMustScroll) {
    PageIndexWidget* w = make(20, 5, 0);
    const std::vector<Button*> first = w->numberButtons();
    TestKit::click("pageNext");
    EXPECT_EQ(w->numberButtons(), first) << "the same buttons";
    EXPECT_EQ(latched(w), 1);
    TestKit::click("pageNext");
    TestKit::click("pageNext");
    EXPECT_EQ(w->getFirstPage(), 1) << "past the left half the strip scrolls";
    EXPECT_EQ(latched(w), 2);
    EXPECT_EQ(owner->heard, (std::vector<int>{1, 2, 3}));

    w->setPages(19, 20);
    const std::vector<Button*> last = w->numberButtons();
    TestKit::click("pagePrev");
    EXPECT_EQ(w->numberButtons(), last) << "in the right half of the last window going back does not scroll";
    EXPECT_EQ(latched(w), 3);
}

TEST_F(PageIndex, AClickedNumberRebuildsTheStripAndItsButtonGoesAfterTheCall) {
    PageIndexWidget* w = make(40, 5, 0);
    Button* four = w->numberButtons()[3];
    GlobHandle<Button> clicked(four);
    TestKit::click(four);
    EXPECT_EQ(w->getCurrentPage(), 3);
    EXPECT_EQ(labels(w), (std::vector<std::string>{"2", "3", "4", "5", "6"}));
    EXPECT_EQ(latched(w), 2);
    EXPECT_EQ(owner->heard, std::vector<int>{3});
    TestKit::pump();
    EXPECT_FALSE(clicked) << "the old button is deleted once its click is over";

    TestKit::click(w->numberButtons()[2]);
    EXPECT_EQ(owner->heard.size(), 1u) << "the current page's button ignores the mouse";
    EXPECT_EQ(latched(w), 2);
}

TEST_F(PageIndex, ACallbackHearsClicksInsteadOfTheParent) {
    owner = TestKit::realize(new PagerOwner, {100, 400});
    std::vector<std::string> names;
    std::vector<int> pages;
    PageIndexWidget::InitArgs args(8, 8, 600, 30);
    args.message = "jump";
    args.callback = Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new FunctionCallback<NotifyMsg, int>([&](const NotifyMsg& m) {
        names.push_back(m.name().str());
        if (auto p = m.dataAs<PageIndexWidget::PageData>()) pages.push_back(p->get());
        return 0;
    }));
    auto* w = owner->createWidget<PageIndexWidget>(args, Glob::UserBottomLeft(0, 0));
    TestKit::pump();
    TestKit::click(w->numberButtons()[7]);
    EXPECT_EQ(names, std::vector<std::string>{"jump"});
    EXPECT_EQ(pages, std::vector<int>{7});
    EXPECT_TRUE(owner->heard.empty());
}
