#include "inspector/GlobInspector.h"
#include "controls/Button.h"
#include "controls/Menu.h"
#include "draw/UifStd.h"
#include "inspector/GlobTreePanel.h"
#include "inspector/InfoWidget.h"
#include "inspector/SelectionRectangle.h"
#include "platform/CommandRegistrar.h"
#include "testkit/TestKit.h"

#include <algorithm>

namespace {

class Inspector : public TestKit::ScreenTest {
protected:
    void SetUp() override {
        StandardPanel::InitArgs p(300, 200);
        p.palette = UifStd::instance().getColourScheme();
        panel = TestKit::realize(new StandardPanel(p), {500, 300});
        panel->setName("host");
        Button::InitArgs b(UIString(L"Go"), {}, 80, 30);
        button = panel->createWidget<Button>(b, Glob::BottomLeft(20, 20));
        button->setName("go");
        CommandRegistrar::invoke(GlobInspector::kTitle);
        inspector = TestKit::find<GlobInspector>(GlobInspector::kTitle);
        TestKit::pump();
    }
    // Puts the inspector's hot spot on a screen point and middle-clicks it.
    void pickAt(XY<int> screen) {
        inspector->setupRootPos(screen);
        TestKit::click(TestKit::centreOf(inspector), Event::kMiddle);
        TestKit::pump();
    }
    GlobInspector::InfoWidget* card(int i) const { return inspector->getCards().at(static_cast<std::size_t>(i)); }
    static bool hasEntry(const MenuData& m, const wchar_t* title) {
        return std::any_of(m.entries().begin(), m.entries().end(), [&](const MenuData::Entry& e) { return e.title.getString().str() == title; });
    }

    StandardPanel* panel = nullptr;
    Button* button = nullptr;
    GlobInspector* inspector = nullptr;
};

} // namespace

TEST_F(Inspector, OpensEmptyOneCardHighAndRegistersBothCommandsAlike) {
    ASSERT_NE(inspector, nullptr);
    EXPECT_TRUE(inspector->getCards().empty());
    EXPECT_EQ(inspector->size(), GlobInspector::calcSizeFor(nullptr));
    EXPECT_EQ(CommandRegistrar::flags(GlobInspector::kTitle), CommandRegistrar::flags(GlobTreePanel::kCommand));
    EXPECT_EQ(CommandRegistrar::group(GlobInspector::kTitle), CommandRegistrar::group(GlobTreePanel::kCommand));
    EXPECT_NE(CommandRegistrar::flags(GlobInspector::kTitle), 0);
}

TEST_F(Inspector, AMiddleClickPicksTheWidgetUnderTheHotSpotAndShowsItsChain) {
    inspector->setupRootPos(TestKit::centreOf(button));
    const int top = inspector->getY() + inspector->height();
    pickAt(TestKit::centreOf(button));
    EXPECT_EQ(inspector->getTarget(), button);
    ASSERT_EQ(inspector->getCards().size(), 2U);
    EXPECT_EQ(inspector->getY() + inspector->height(), top) << "the top stays put";
    EXPECT_EQ(inspector->size(), GlobInspector::calcSizeFor(button));

    const auto lines = card(0)->lines();
    EXPECT_EQ(lines[0].second.str(), L"20, 20");
    EXPECT_EQ(lines[1].second.str(), L"80 x 30");
    EXPECT_EQ(lines[2].second.str(), L"Button (heavy)");
    EXPECT_EQ(card(1)->getTarget(), panel);
    EXPECT_GT(card(0)->getY(), card(1)->getY()) << "the target's card on top";
}

TEST_F(Inspector, ACardClickOutlinesItsTargetAndTheNextTakesTheOutlineAway) {
    pickAt(TestKit::centreOf(button));
    TestKit::click(card(0));
    TestKit::pump();
    auto* rect = TestKit::find<SelectionRectangle>("SelectionRectangle");
    ASSERT_NE(rect, nullptr);
    EXPECT_EQ(rect->screenPos(), button->screenPos());
    EXPECT_EQ(rect->size(), button->size());
    EXPECT_EQ(GlobManager::instance().globAt(TestKit::centreOf(button), inspector), button) << "the outline lets the mouse through";
    TestKit::click(card(0));
    TestKit::pump();
    EXPECT_EQ(TestKit::find<SelectionRectangle>("SelectionRectangle"), nullptr);
}

TEST_F(Inspector, TheMenuOffersBordersAndFurnitureOnlyForPanels) {
    pickAt(TestKit::centreOf(button));
    const MenuData forButton = card(0)->menuFor();
    EXPECT_FALSE(hasEntry(forButton, L"Border"));
    EXPECT_FALSE(hasEntry(forButton, L"Cogs"));
    EXPECT_TRUE(hasEntry(forButton, L"Visible"));
    EXPECT_TRUE(hasEntry(card(1)->menuFor(), L"Border"));
    EXPECT_TRUE(hasEntry(card(1)->menuFor(), L"Title"));

    MenuData::Change change;
    change.index = 6;
    EXPECT_FALSE(GlobInspector::handleBorderChangeRequest(button, change));
    EXPECT_FALSE(GlobInspector::handleVisChangeRequest(nullptr, change));
}

TEST_F(Inspector, MenuChoicesChangeTheTarget) {
    pickAt(TestKit::centreOf(button));
    TestKit::click(card(1), Event::kRight);
    Menu* menu = card(1)->getOpenMenu();
    ASSERT_NE(menu, nullptr);
    ASSERT_TRUE(menu->choose(7)) << "LineBorder, after the heading";
    TestKit::pump();
    EXPECT_EQ(panel->getBorder().type(), Border::kLineBorder);

    MenuData::Change on;
    on.on = true;
    on.message = "16";
    EXPECT_TRUE(GlobInspector::handleWidgetChangeRequest(panel, on));
    EXPECT_TRUE(panel->standardWidgets() & StandardPanel::kPinButton);
    EXPECT_TRUE(GlobInspector::handleShadowChangeRequest(panel, on));
    EXPECT_TRUE(panel->hasShadow());
    MenuData::Change off;
    EXPECT_TRUE(GlobInspector::handleShadowChangeRequest(panel, off));
    EXPECT_FALSE(panel->hasShadow());
    EXPECT_TRUE(GlobInspector::handleVisChangeRequest(button, off));
    EXPECT_FALSE(button->isVisible());
    off.message = "3";
    EXPECT_FALSE(GlobInspector::handleWidgetChangeRequest(panel, off)) << "no such furniture";
}

TEST_F(Inspector, ATargetThatDiesLeavesNoCards) {
    pickAt(TestKit::centreOf(button));
    ASSERT_FALSE(inspector->getCards().empty());
    GlobManager::instance().requestDeletion(panel);
    TestKit::pump();
    GlobManager::instance().tickTimers();
    TestKit::pump();
    EXPECT_TRUE(inspector->getCards().empty());
    EXPECT_EQ(inspector->size(), GlobInspector::calcSizeFor(nullptr));
}

TEST_F(Inspector, TheGlobTreeListsPanelsAndDetailsTheChosenWidget) {
    ASSERT_TRUE(CommandRegistrar::invoke(GlobTreePanel::kCommand));
    auto* tree = TestKit::find<GlobTreePanel>(GlobTreePanel::kTitle);
    ASSERT_NE(tree, nullptr);
    EXPECT_EQ(tree->getTitle().getString().str(), L"Glob Tree");
    const auto roots = tree->getChildren(0);
    ASSERT_EQ(roots.size(), GlobManager::instance().roots().size());
    EXPECT_EQ(tree->globOf(roots[0]), panel);
    const auto children = tree->getChildren(roots[0]);
    ASSERT_FALSE(children.empty());
    EXPECT_EQ(tree->getChildren(roots[0]), children) << "ids stay with their globs";

    tree->handleItemSelected(children.back());
    const std::vector<std::wstring> expected = {L"Size : 80 x 30",       L"Position : 20, 20",   L"Weight : heavy", L"Visible : true",
                                                L"Minimum Size : 0 x 0", L"Maximum Size : none", L"Legend : Go"};
    ASSERT_EQ(tree->getDetails().size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(tree->getDetails()[i].str(), expected[i]);
    EXPECT_TRUE(GlobTreePanel::detailsOf(nullptr).empty());

    button->setMaxSize(XY<int>(60, 25));
    button->resize(200, 200);
    EXPECT_EQ(button->size(), XY<int>(60, 25)) << "resizing stops at the largest size";
    EXPECT_EQ(GlobTreePanel::detailsOf(button)[5].str(), L"Maximum Size : 60 x 25");
}
