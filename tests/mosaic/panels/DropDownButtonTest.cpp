#include "controls/Button.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "panels/DropDownButtonEx.h"
#include "testkit/TestKit.h"

#include <string>
#include <vector>

namespace {

// A small panel to drop: a button on it sends "picked" to the panel's owner.
class DropPanel : public StandardPanel {
public:
    using InitArgs = StandardPanel::InitArgs;
    explicit DropPanel(const InitArgs& args) : StandardPanel(args) {
        Button::InitArgs b(UIString(L"Pick"), WidgetCallback("picked"), 60, 24);
        pick = createWidget<Button>(b, Glob::UserTopLeft(4, 4));
    }
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
        if (message == "picked") sendMsg(logicalParent(), "picked");
        return StandardPanel::handleMessageEvent(message, sender);
    }
    Button* pick = nullptr;
};

using DropButton = DropDownButtonEx<DropPanel>;

// The button's parent: records what it hears.
class Owner : public StandardPanel {
public:
    Owner() : StandardPanel(InitArgs(300, 120)) {}
    int handleMessageEvent(const LightweightString<char>& message, Glob*) override {
        heard.push_back(message.str());
        return 1;
    }
    std::vector<std::string> heard;
};

class DropDowns : public TestKit::ScreenTest {
protected:
    void SetUp() override { owner = TestKit::realize(new Owner, {100, 600}); }
    DropButton* addButton(DropButton::eDropMode mode = DropButton::kPlainDrop, XY<int> at = {10, 60}) {
        DropButton::InitArgs args(80, 30, DropPanel::InitArgs(150, 100));
        auto* b = owner->createWidget<DropButton>(args, Glob::BottomLeft(at.x, at.y));
        b->setDropMode(mode);
        TestKit::pump();
        return b;
    }
    static std::vector<Glob*> roots() { return GlobManager::instance().roots(); }

    Owner* owner = nullptr;
};

} // namespace

TEST_F(DropDowns, AClickOpensTheWidgetBelowAndAClickOutsideBringsTheButtonUp) {
    DropButton* b = addButton();
    TestKit::click(TestKit::centreOf(b));
    TestKit::pump();
    DropPanel* w = b->getDropDown();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(owner->heard, std::vector<std::string>{"ddBtnClickMsg"});
    EXPECT_EQ(b->getState(), Button::kButtonDown);
    EXPECT_EQ(w->getY() + w->height(), b->screenPos().y) << "right below the button";
    EXPECT_EQ(w->width(), 150);
    const std::uint32_t edge = TestKit::argb(scale(b->getCol(), 1.4));
    EXPECT_TRUE(TestKit::pixelNear(b, 0, b->height() / 2, edge, 2)) << "the joined border's side";

    const IdStamp stamp = w->stamp();
    TestKit::click({1500, 100});
    TestKit::pump();
    EXPECT_FALSE(EventHandler::valid(w, stamp));
    EXPECT_EQ(b->getDropDown(), nullptr);
    EXPECT_EQ(b->getState(), Button::kButtonUp);

    TestKit::click(TestKit::centreOf(b));
    TestKit::pump();
    ASSERT_NE(b->getDropDown(), nullptr) << "it opens again";
    TestKit::click(TestKit::centreOf(b));
    TestKit::pump();
    EXPECT_EQ(b->getDropDown(), nullptr) << "a click on its button takes it away";
    EXPECT_EQ(b->getState(), Button::kButtonUp);
}

TEST_F(DropDowns, ASecondClickOnAButtonThatDoesNotLatchClosesTheWidgetWhenItHasGone) {
    DropButton* b = addButton(DropButton::kMovableDrop);
    TestKit::click(TestKit::centreOf(b));
    TestKit::pump();
    DropPanel* w = b->getDropDown();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(GlobManager::instance().topModal(), nullptr) << "a movable widget is not modal";
    const IdStamp stamp = w->stamp();
    // What a click does, without the input kit's pumping: the widget has not gone yet.
    b->setState(Button::kButtonDown, 1);
    EXPECT_EQ(b->getState(), Button::kButtonDown) << "down until the widget has gone";
    TestKit::pump();
    EXPECT_FALSE(EventHandler::valid(w, stamp));
    EXPECT_EQ(b->getState(), Button::kButtonUp);
}

TEST_F(DropDowns, MessagesFromTheWidgetGoToTheOwnerAndOthersChangeNothing) {
    DropButton* b = addButton();
    ASSERT_TRUE(b->displayDropDown());
    b->setState(Button::kButtonDown, 0);
    TestKit::pump();
    DropPanel* w = b->getDropDown();
    TestKit::click(TestKit::centreOf(w->pick));
    TestKit::pump();
    EXPECT_EQ(owner->heard.back(), "picked");
    EXPECT_EQ(b->getDropDown(), w) << "a message from the widget leaves it open";

    sendMessage("picked", b, owner);
    TestKit::pump();
    EXPECT_EQ(b->getDropDown(), w);
    EXPECT_EQ(b->getState(), Button::kButtonDown);

    b->removeMenuFromScreen();
    sendMessage(DropButton::goneMsg, b, nullptr);
    TestKit::pump();
    EXPECT_EQ(b->getState(), Button::kButtonUp) << "menu_poot with nothing open still brings it up";
}

TEST_F(DropDowns, ATornOffWidgetLivesOnAndTheButtonOpensAnother) {
    DropButton* b = addButton(DropButton::kDetachableDrop);
    TestKit::click(TestKit::centreOf(b));
    TestKit::pump();
    DropPanel* w = b->getDropDown();
    ASSERT_NE(w, nullptr);
    const XY<int> grab = TestKit::screenPointOf(w, {w->width() - 10, 10});
    const XY<int> before(w->getX(), w->getY());
    TestKit::drag(grab, grab + XY<int>(200, -60), 8);
    TestKit::pump();
    ASSERT_TRUE(is_good_glob_ptr(w));
    EXPECT_TRUE(w->isMovable());
    EXPECT_EQ(b->getDropDown(), nullptr) << "the button forgets it";
    EXPECT_EQ(b->getState(), Button::kButtonUp);
    EXPECT_GT(w->getX(), before.x + 100) << "it followed the pointer";

    TestKit::click(TestKit::centreOf(b));
    TestKit::pump();
    DropPanel* second = b->getDropDown();
    ASSERT_NE(second, nullptr);
    EXPECT_NE(second, w);
    TestKit::click({1500, 100});
    TestKit::pump();
    EXPECT_TRUE(is_good_glob_ptr(w)) << "dismissing the new one leaves the torn-off one";
    EXPECT_EQ(b->getState(), Button::kButtonUp);
}

TEST_F(DropDowns, AWidgetWithNoRoomBelowOpensAboveAndOneThatFitsNeitherWayAtTheBottom) {
    owner->setupRootPos({100, 0});
    DropButton* b = addButton(DropButton::kPlainDrop, {10, 10});
    bool moved = false;
    XY<int> pos = calcDropDownPos(b, {150, 100}, kBelow, kAlignStart, &moved);
    EXPECT_TRUE(moved);
    EXPECT_EQ(pos.y, b->screenPos().y + b->height());
    const int screenHeight = GlobManager::instance().screen().height();
    pos = calcDropDownPos(b, {150, screenHeight}, kBelow, kAlignStart, &moved);
    EXPECT_EQ(pos.y, 0);
    pos = calcDropDownPos(nullptr, {150, 100}, kBelow, kAlignStart, &moved);
    EXPECT_FALSE(moved);
}
