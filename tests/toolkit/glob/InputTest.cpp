#include "Blocks.h"

#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/InputDispatcher.h"
#include "glob/Messaging.h"

using TestKit::Owned;

namespace {

class Input : public TestKit::ScreenTest {};

class Tabbable : public Block, public TabOrderable {
public:
    using Block::Block;
    Glob* tabGlob() override { return this; }
};

Block* addBlock(StandardPanel* p, const WidgetPosition& pos, int w, int h) {
    Block::InitArgs a(w, h, Colour(1, 0, 0));
    return p->createWidget<Block>(a, pos);
}

} // namespace

TEST_F(Input, ClicksGoToTheDeepestChildAndBubbleUpWhenNotConsumed) {
    Owned<StandardPanel> p(makeRootPanel(200, 100, {300, 200}));
    Block* outer = addBlock(p.get(), Glob::BottomLeft(10, 10), 100, 60);
    Block::InitArgs a(20, 20, Colour(0, 0, 1));
    auto* inner = new Block(a);
    outer->addChild(inner, Glob::BottomLeft(5, 5));

    TestKit::click({300 + 10 + 5 + 2, 200 + 10 + 5 + 3});
    ASSERT_FALSE(inner->events.empty());
    EXPECT_TRUE(outer->events.empty());
    const Event& down = inner->events[1];
    EXPECT_TRUE(mouse_down_event(down));
    EXPECT_EQ(down.pos(), XY<int>(2, 3));

    inner->consume = false;
    inner->events.clear();
    TestKit::click({300 + 10 + 5 + 2, 200 + 10 + 5 + 3});
    EXPECT_FALSE(inner->events.empty());
    ASSERT_FALSE(outer->events.empty());
    EXPECT_EQ(outer->events.back().pos(), XY<int>(7, 8));
}

TEST_F(Input, TheGlobThatTookTheButtonGetsTheDragUntilRelease) {
    Owned<StandardPanel> p(makeRootPanel(200, 100, {0, 0}));
    Block* a = addBlock(p.get(), Glob::BottomLeft(0, 0), 50, 50);
    Block* b = addBlock(p.get(), Glob::BottomLeft(100, 0), 50, 50);
    TestKit::drag({10, 10}, {120, 10});
    EXPECT_TRUE(b->events.empty());
    ASSERT_GE(a->events.size(), 3u);
    EXPECT_TRUE(mouse_up_event(a->events.back()));
    EXPECT_EQ(a->events.back().pos(), XY<int>(120, 10));
    EXPECT_EQ(GlobManager::instance().input().capture(), nullptr);
}

TEST_F(Input, ClickingAPanelRaisesItAndTheTopmostTakesTheMouse) {
    auto* back = makeRootPanel(100, 100, {0, 0}, Colour(1, 0, 0));
    auto* front = makeRootPanel(100, 100, {50, 0}, Colour(0, 0, 1));
    TestKit::pump();
    EXPECT_TRUE(TestKit::screenPixelNear(75, 50, 0xFF0000FF));
    TestKit::click({25, 50});
    EXPECT_EQ(GlobManager::instance().roots().back(), back);
    EXPECT_TRUE(TestKit::screenPixelNear(75, 50, 0xFFFF0000));
    EXPECT_TRUE(TestKit::screenPixelNear(125, 50, 0xFF0000FF));
    (void)front;
}

TEST_F(Input, KeysGoToTheFocusAndTabWalksTheTabOrder) {
    Owned<StandardPanel> p(makeRootPanel(300, 100));
    std::vector<Tabbable*> stops;
    for (int i = 0; i < 3; ++i) {
        Block::InitArgs a(40, 20, Colour(0, 1, 0));
        auto* t = p->createWidget<Tabbable>(a, Glob::BottomLeft(10 + 50 * i, 10));
        t->focusable = true;
        t->consume = false;
        p->tabOrder().addTabStop(*t);
        stops.push_back(t);
    }
    stops[1]->setActive(false, kNoRedraw);
    set_kbd_focus(stops[0]);
    TestKit::pressKey('x');
    ASSERT_FALSE(stops[0]->events.empty());
    EXPECT_EQ(stops[0]->events.front().keyCode(), 'x');

    TestKit::pressKey(Keys::Tab);
    EXPECT_EQ(get_kbd_focus(), stops[2]) << "an inactive stop is passed over";
    TestKit::pressKey(Keys::Tab);
    EXPECT_EQ(get_kbd_focus(), stops[0]) << "the order wraps";
    TestKit::pressKey(Keys::Tab, Modifiers::Shift);
    EXPECT_EQ(get_kbd_focus(), stops[2]);
    EXPECT_EQ(stops[0]->focusChanges, (std::vector<bool>{true, false, true, false}));

    Glob* doomed = stops[2];
    p->removeWidget(doomed, true);
    EXPECT_EQ(get_kbd_focus(), nullptr);
    TestKit::pressKey(Keys::Tab);
    EXPECT_EQ(get_kbd_focus(), stops[0]) << "a dead stop is passed over";
}

TEST_F(Input, AModalPanelTakesAllInput) {
    Owned<StandardPanel> under(makeRootPanel(100, 100, {0, 0}));
    Block* blocked = addBlock(under.get(), Glob::BottomLeft(0, 0), 100, 100);
    Owned<StandardPanel> dialog(makeRootPanel(50, 50, {300, 300}));
    GlobManager::instance().addModalGlob(dialog.get());
    TestKit::click({20, 20});
    EXPECT_TRUE(blocked->events.empty());
    EXPECT_EQ(GlobManager::instance().roots().back(), dialog.get());
    GlobManager::instance().removeModalGlob(dialog.get());
    TestKit::click({20, 20});
    EXPECT_FALSE(blocked->events.empty());
}

TEST_F(Input, CloseBoxAndTitleDragWork) {
    auto* p = makeRootPanel(200, 150, {100, 100});
    p->setTitle(UIString(L"Tools"));
    p->addStandardWidgets(StandardPanel::kCloseBox | StandardPanel::kTitleBar);
    IdStamp stamp = p->stamp();
    int titleMid = 150 - UifStd::instance().getTitleHeight() / 2;
    TestKit::drag({100 + 50, 100 + titleMid}, {100 + 80, 100 + titleMid - 40});
    EXPECT_EQ(XY<int>(p->getX(), p->getY()), XY<int>(130, 60));

    Glob* close = nullptr;
    p->visitChildren([&](Glob* g) {
        if (LightweightString<char>(g->idstring()) == "FurnitureButton") close = g;
        return !close;
    });
    ASSERT_NE(close, nullptr);
    // A press that began elsewhere and ends over the box is not a click on it.
    TestKit::mouseDown({20, 20});
    TestKit::mouseUp(TestKit::centreOf(close));
    EXPECT_TRUE(EventHandler::valid(p, stamp));
    TestKit::click(close);
    EXPECT_FALSE(EventHandler::valid(p, stamp));
}

namespace {
class MainActionPanel : public StandardPanel {
public:
    using StandardPanel::StandardPanel;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
        if (message == doItMsg) ++doIts;
        return StandardPanel::handleMessageEvent(message, sender);
    }
    int doIts = 0;
};
} // namespace

TEST_F(Input, TheCogsOpenThePanelsMenuAndTheDoItButtonPostsItsMainMessage) {
    auto* p = new MainActionPanel(StandardPanel::InitArgs(200, 150));
    Owned<MainActionPanel> owner(p);
    p->setupRootPos({100, 100});
    GlobManager::instance().realize(p);
    p->addMenuItem(MenuItem(UIString(L"Reset"), WidgetCallback("reset")));
    p->addStandardWidgets(StandardPanel::kCogsButton | StandardPanel::kDoItButton);
    ASSERT_TRUE(p->hasTitleBar()) << "furniture brings a title bar";
    std::vector<Glob*> furniture;
    p->visitChildren([&](Glob* g) {
        if (LightweightString<char>(g->idstring()) == "FurnitureButton") furniture.push_back(g);
        return true;
    });
    ASSERT_EQ(furniture.size(), 2u);
    TestKit::click(furniture[1]);
    TestKit::pump();
    EXPECT_EQ(p->doIts, 1);
    EXPECT_EQ(p->getOpenMenu(), nullptr);
    TestKit::click(furniture[0]);
    TestKit::pump();
    EXPECT_NE(p->getOpenMenu(), nullptr);
    EXPECT_EQ(p->doIts, 1);
}

namespace {

// A panel that counts the "menu_poot" messages it is told.
class ContextPanel : public StandardPanel {
public:
    ContextPanel() : StandardPanel(InitArgs(100, 100)) {}
    int handleMessageEvent(const LightweightString<char>& message, Glob*) override {
        if (message == GlobManager::dismissedMsg) ++dismissals;
        return 1;
    }
    int dismissals = 0;
};

} // namespace

TEST_F(Input, APressOutsideAModalContextGlobDismissesItAndTellsItsContext) {
    Owned<ContextPanel> owner(TestKit::realize(new ContextPanel, {0, 0}));
    StandardPanel* dropped = makeRootPanel(60, 60, {300, 300});
    Block* inside = addBlock(dropped, Glob::BottomLeft(0, 0), 60, 60);
    owner->setModalContextGlob(dropped);
    const IdStamp stamp = dropped->stamp();

    TestKit::click({320, 320});
    TestKit::pump();
    EXPECT_FALSE(inside->events.empty());
    EXPECT_EQ(owner->dismissals, 0);

    TestKit::click({20, 20});
    TestKit::pump();
    EXPECT_FALSE(EventHandler::valid(dropped, stamp));
    EXPECT_EQ(owner->dismissals, 1);
    EXPECT_EQ(GlobManager::instance().topModal(), nullptr);

    TestKit::click({20, 20});
    TestKit::pump();
    EXPECT_EQ(owner->dismissals, 1) << "the press that dismissed went no further, and nothing more is told";
}

TEST_F(Input, AModalDialogueThatIsItsOwnContextStaysAfterAPressOutside) {
    Owned<StandardPanel> dialog(makeRootPanel(60, 60, {300, 300}));
    dialog->setModalContextGlob(dialog.get());
    TestKit::click({20, 20});
    TestKit::pump();
    EXPECT_EQ(GlobManager::instance().topModal(), dialog.get());
    GlobManager::instance().removeModalGlob(dialog.get());
}
