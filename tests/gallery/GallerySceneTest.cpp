#include "GalleryTestSupport.h"

#include "controls/ImageButton.h"
#include "controls/ImageView.h"
#include "controls/NumericTextBox.h"
#include "controls/Slider.h"
#include "draw/Screen.h"

#include <cstdlib>

namespace {

class Scenes : public GalleryTest {
protected:
    static bool similar(std::uint32_t a, std::uint32_t b, int tolerance) {
        for (int s = 0; s < 24; s += 8)
            if (std::abs(int((a >> s) & 255) - int((b >> s) & 255)) > tolerance) return false;
        return true;
    }
};

} // namespace

TEST_F(Scenes, EverySceneBuildsAPaintedPanelAndClosesCleanly) {
    ASSERT_FALSE(GalleryScene::all().empty());
    for (const GalleryScene& scene : GalleryScene::all()) {
        SCOPED_TRACE(scene.name.str());
        ASSERT_TRUE(build(scene.name.str()));
        ASSERT_FALSE(GlobManager::instance().roots().empty());
        Glob* root = GlobManager::instance().roots().front();
        std::uint32_t desktop = TestKit::screenPixel(2, 2);
        XY<int> inside = TestKit::centreOf(root);
        EXPECT_FALSE(similar(TestKit::screenPixel(inside.x, inside.y), desktop, 0) &&
                     similar(TestKit::screenPixel(root->getX() + 1, root->getY() + 1), desktop, 0))
            << "the panel shows on the screen";
        TestKit::reset();
        EXPECT_TRUE(GlobManager::instance().roots().empty());
    }
}

TEST_F(Scenes, ThePictureOfTheControlsSceneShowsColourBarsTheRightWayUp) {
    ASSERT_TRUE(build("controls"));
    auto* picture = named<ImageView>("picture");
    ASSERT_TRUE(picture);
    BoxInt area = picture->imageArea();
    ASSERT_EQ(area.width(), 160);
    const int top = area.y2 - 4, bottom = area.y1 + 2;
    EXPECT_TRUE(TestKit::pixelNear(picture, area.x1 + 4, top, 0xFFC0C0C0, 12)) << "grey bar first";
    EXPECT_TRUE(TestKit::pixelNear(picture, area.x1 + 35, top, 0xFFC0C000, 12)) << "then yellow";
    EXPECT_TRUE(TestKit::pixelNear(picture, area.x2 - 4, top, 0xFF0000C0, 12)) << "blue bar last";
    EXPECT_TRUE(TestKit::pixelNear(picture, area.x1 + 1, bottom, 0xFF000000, 12)) << "the ramp starts black";
    EXPECT_TRUE(TestKit::pixelNear(picture, area.x2 - 2, bottom, 0xFFFFFFFF, 12)) << "and ends white";
}

TEST_F(Scenes, TheControlsSceneIconButtonsPaintTheirIconsAndTheOverlayLatches) {
    ASSERT_TRUE(build("controls"));
    auto* magnify = named<ImageButton>("magnify");
    auto* overlay = named<ImageButton>("overlay");
    ASSERT_TRUE(magnify && overlay);
    EXPECT_TRUE(magnify->hasImage() && overlay->hasImage()) << "the icons are found among the resources";
    const std::uint32_t face = TestKit::globPixel(magnify, 1, magnify->height() / 2);
    int ink = 0;
    for (int y = 4; y < magnify->height() - 4; ++y)
        for (int x = 4; x < magnify->width() - 4; ++x) ink += !similar(TestKit::globPixel(magnify, x, y), face, 60);
    EXPECT_GT(ink, 20) << "the magnifier is painted";

    const std::uint32_t latched = TestKit::globPixel(overlay, 2, overlay->height() / 2);
    ASSERT_TRUE(overlay->isLatched());
    TestKit::click(TestKit::centreOf(overlay));
    TestKit::mouseMove({2, 2});
    TestKit::pump();
    EXPECT_FALSE(overlay->isLatched());
    EXPECT_NE(TestKit::globPixel(overlay, 2, overlay->height() / 2), latched) << "a released button shows its face again";
}

TEST_F(Scenes, TheGradeSceneHasFortyControlsAndEachSliderFollowsItsNumberBox) {
    ASSERT_TRUE(build("grade"));
    EXPECT_GE(GalleryScene::countControls(), 40);
    Slider* slider = nullptr;
    NumericTextBox* box = nullptr;
    for (Glob* g : GlobManager::instance().roots().front()->getChildren()) {
        if (!slider) slider = dynamic_cast<Slider*>(g);
        if (slider && !box) box = dynamic_cast<NumericTextBox*>(g);
    }
    ASSERT_TRUE(slider && box);
    EXPECT_EQ(slider->getPosition(), 0.0) << "lift red starts at nought";
    TestKit::click(TestKit::centreOf(box));
    box->setSelection(0, box->getString().size());
    TestKit::typeText(L"-40");
    TestKit::pressKey(Keys::Return);
    TestKit::pump();
    EXPECT_EQ(slider->getPosition(), -40.0);
}
