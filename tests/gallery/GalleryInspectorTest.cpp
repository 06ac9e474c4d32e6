#include "GalleryTestSupport.h"

#include "controls/Menu.h"
#include "imaging/TrackButton.h"
#include "inspector/GlobInspector.h"
#include "inspector/InfoWidget.h"
#include "platform/CommandRegistrar.h"

namespace {

class InspectedScene : public GalleryTest {};

} // namespace

TEST_F(InspectedScene, TheInspectorShowsAControlOfTheTracksSceneChangesItsPanelAndForgetsItWhenClosed) {
    ASSERT_TRUE(build("tracks"));
    auto* track = TestKit::find<TrackButton>("track1");
    ASSERT_NE(track, nullptr);
    auto* panel = dynamic_cast<StandardPanel*>(track->parent());
    ASSERT_NE(panel, nullptr);
    ASSERT_TRUE(CommandRegistrar::invoke(GlobInspector::kTitle));
    auto* inspector = TestKit::find<GlobInspector>(GlobInspector::kTitle);
    ASSERT_NE(inspector, nullptr);

    inspector->setupRootPos(TestKit::centreOf(track));
    TestKit::click(TestKit::centreOf(inspector), Event::kMiddle);
    TestKit::pump();
    ASSERT_EQ(inspector->getTarget(), track);
    ASSERT_EQ(inspector->getCards().size(), 2U);
    const auto lines = inspector->getCards()[0]->lines();
    EXPECT_EQ(lines[2].second.str(), L"TrackButton (heavy)");
    EXPECT_EQ(lines[1].second.str(), std::to_wstring(track->width()) + L" x " + std::to_wstring(track->height()));

    GlobInspector::InfoWidget* panelCard = inspector->getCards()[1];
    ASSERT_EQ(panelCard->getTarget(), panel);
    const XY<int> edge = TestKit::screenPointOf(panel, {0, panel->height() / 3});
    const std::uint32_t before = TestKit::screenPixel(edge.x, edge.y);
    TestKit::click(panelCard, Event::kRight);
    Menu* menu = panelCard->getOpenMenu();
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->items()[7].label().str(), L"LineBorder");
    ASSERT_TRUE(menu->choose(7));
    TestKit::pump();
    EXPECT_EQ(panel->getBorder().type(), Border::kLineBorder);
    EXPECT_TRUE(TestKit::screenPixelNear(edge.x, edge.y, TestKit::argb(panel->getPalette().text()), 8)) << "the frame is now a line";
    EXPECT_NE(TestKit::screenPixel(edge.x, edge.y), before);

    GlobManager::instance().requestDeletion(panel);
    TestKit::pump();
    GlobManager::instance().tickTimers();
    TestKit::pump();
    EXPECT_TRUE(inspector->getCards().empty()) << "closing the control's panel leaves no card";
    EXPECT_EQ(inspector->getTarget(), nullptr);
}
