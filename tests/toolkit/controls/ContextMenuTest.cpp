#include "MenusTestSupport.h"
#include "controls/Button.h"

namespace {

// A panel whose context menu is filled once and reviewed before each opening.
class ClipPanel : public StandardPanel {
public:
    explicit ClipPanel(const InitArgs& a) : StandardPanel(a) {}
    void initialiseMenu() override {
        ++initialised;
        addMenuItem(MenuItem(UIString(L"Copy"), WidgetCallback("copy")));
        addMenuItem(MenuItem(UIString(L"Paste"), WidgetCallback("paste")), false);
    }
    void reviewMenu(const Event* e) override {
        ++reviews;
        reviewedAt = e ? e->screenPos() : XY<int>(-1, -1);
        setMenuItemActive(1, canPaste);
    }
    int initialised = 0, reviews = 0;
    bool canPaste = false;
    XY<int> reviewedAt;
};

class ContextMenus : public MenusTest {
protected:
    ClipPanel* clipPanel() {
        StandardPanel::InitArgs a(200, 120);
        return add<ClipPanel>(a, {150, 40});
    }
};

} // namespace

TEST_F(ContextMenus, ARightPressOpensThePanelsRowsAtThePointer) {
    ClipPanel* p = clipPanel();
    const XY<int> at = TestKit::screenPointOf(p, {60, 50});
    TestKit::click(at, Event::kRight);
    Menu* m = p->getOpenMenu();
    ASSERT_NE(m, nullptr);
    EXPECT_EQ(m->logicalParent(), p);
    EXPECT_EQ(m->getX(), at.x);
    EXPECT_EQ(m->getY() + m->height(), at.y) << "the menu hangs down from the pointer";
    ASSERT_EQ(m->items().size(), 2u);
    EXPECT_EQ(p->reviewedAt, at);

    TestKit::click(rowCentre(m, 1));
    EXPECT_TRUE(m->isOpen()) << "paste is inactive until the review allows it";
    TestKit::click(rowCentre(m, 0));
    EXPECT_EQ(p->getOpenMenu(), nullptr);
    EXPECT_TRUE(host->messages.empty()) << "the panel, not its parent, hears its menu";
}

TEST_F(ContextMenus, RowsAreFilledOnceAndReviewedBeforeEveryOpening) {
    struct Recording : ClipPanel {
        using ClipPanel::ClipPanel;
        int handleMessageEvent(const LightweightString<char>& m, Glob*) override {
            heard.push_back(m.str());
            return 1;
        }
        std::vector<std::string> heard;
    };
    StandardPanel::InitArgs a(200, 120);
    auto* p = add<Recording>(a, {150, 40});
    TestKit::click(p, Event::kRight);
    TestKit::pressKey(Keys::Escape);
    p->canPaste = true;
    TestKit::click(p, Event::kRight);
    Menu* m = p->getOpenMenu();
    ASSERT_NE(m, nullptr);
    TestKit::click(rowCentre(m, 1));
    EXPECT_EQ(p->initialised, 1);
    EXPECT_EQ(p->reviews, 2);
    EXPECT_EQ(p->menuItems().size(), 2u);
    EXPECT_EQ(p->heard, (std::vector<std::string>{"menu_poot", "paste", "menu_poot"}));
}

TEST_F(ContextMenus, APanelWithoutRowsOpensNoMenu) {
    auto* p = add<StandardPanel>(StandardPanel::InitArgs(200, 120), {150, 40});
    const std::size_t roots = GlobManager::instance().roots().size();
    TestKit::click(p, Event::kRight);
    EXPECT_EQ(p->getOpenMenu(), nullptr);
    EXPECT_EQ(GlobManager::instance().roots().size(), roots);
    TestKit::click(host, Event::kLeft);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(ContextMenus, TheMenuTitleShowsAboveTheRows) {
    ClipPanel* p = clipPanel();
    p->setMenuTitle(UIString(L"Clip"));
    TestKit::click(p, Event::kRight);
    Menu* m = p->getOpenMenu();
    ASSERT_NE(m, nullptr);
    EXPECT_EQ(m->getTitle().getString(), L"Clip");
    EXPECT_TRUE(m->hasTitleBar());
    EXPECT_GE(m->titleBarBox().y1, m->rowBox(0).y2);
}

TEST_F(ContextMenus, APanelThatGoesTakesItsMenuWithIt) {
    ClipPanel* p = clipPanel();
    TestKit::click(p, Event::kRight);
    Menu* m = p->getOpenMenu();
    ASSERT_NE(m, nullptr);
    const IdStamp stamp = m->stamp();
    Glob* doomed = p;
    host->removeWidget(doomed, true);
    TestKit::pump();
    EXPECT_FALSE(alive(m, stamp));
    EXPECT_EQ(GlobManager::instance().topModal(), nullptr);
    Button* b = add<Button>(Button::InitArgs(UIString(L"Go"), WidgetCallback("go"), 80, 30), {10, 10});
    TestKit::click(b);
    EXPECT_EQ(host->messages, std::vector<std::string>{"go"}) << "input is back to normal";
}
