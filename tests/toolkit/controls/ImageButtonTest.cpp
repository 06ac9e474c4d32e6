#include "controls/ImageButton.h"
#include "ControlsTestSupport.h"
#include "controls/ImageView.h"
#include "draw/FontDesc.h"
#include "image/HostImage.h"

#include <cstring>

namespace {

class Images : public ControlsTest {};

// A 2x2 picture: red, green on the top row; blue, white below.
Zn::Ptr<iHostImage> quadrants() {
    Zn::Ptr<iHostImage> img(new HostImage(2, 2));
    const std::uint32_t top[2] = {0xFFFF0000, 0xFF00FF00}, bottom[2] = {0xFF0000FF, 0xFFFFFFFF};
    std::uint8_t* d = img->data();
    std::memcpy(d, top, 8);
    std::memcpy(d + img->stride(), bottom, 8);
    return img;
}

} // namespace

TEST_F(Images, AViewShowsThePictureTheRightWayUpAndFitted) {
    auto* v = add<ImageView>(ImageView::InitArgs(quadrants(), 200, 100));
    EXPECT_EQ(v->imageArea(), BoxInt(50, 0, 150, 100)) << "a square picture in a wide view keeps its proportions";
    EXPECT_TRUE(similar(TestKit::globPixel(v, 60, 90), 0xFFFF0000, 40)) << "top left";
    EXPECT_TRUE(similar(TestKit::globPixel(v, 140, 90), 0xFF00FF00, 40)) << "top right";
    EXPECT_TRUE(similar(TestKit::globPixel(v, 60, 10), 0xFF0000FF, 40)) << "bottom left";
    EXPECT_TRUE(similar(TestKit::globPixel(v, 140, 10), 0xFFFFFFFF, 40)) << "bottom right";
    EXPECT_TRUE(similar(TestKit::globPixel(v, 20, 50), TestKit::argb(v->getPalette().window()), 2)) << "outside the picture";
    v->setImage({});
    TestKit::pump();
    EXPECT_TRUE(similar(TestKit::globPixel(v, 100, 50), TestKit::argb(v->getPalette().window()), 2));
}

TEST_F(Images, AnIconButtonPaintsItsIconAndDegradesWithoutOne) {
    auto* b = add<ImageButton>(ImageButton::InitArgs(getIconPath(L"poot"), WidgetCallback("poot"), 32, 32));
    ASSERT_TRUE(b->hasImage());
    const std::uint32_t face = TestKit::globPixel(b, 4, 16);
    EXPECT_GT(inkPixels(b, BoxInt(8, 8, 24, 24), face, 60), 20) << "the cross is painted";
    TestKit::click(TestKit::centreOf(b));
    EXPECT_EQ(host->messages, std::vector<std::string>{"poot"});
    b->setImage(L"/no/such/icon.png");
    TestKit::pump();
    EXPECT_FALSE(b->hasImage());
    EXPECT_EQ(inkPixels(b, BoxInt(8, 8, 24, 24), face, 60), 0);
    EXPECT_FALSE(HostImage::loadPNG(L"/etc/passwd")) << "a file that is no PNG gives no picture";
}

TEST_F(Images, ALatchingButtonStaysDownUntilClickedAgain) {
    auto* b = add<ImageButton>(ImageButton::InitArgs(getIconPath(L"magnify"), WidgetCallback("tool"), 32, 32));
    b->setLatching(true);
    const std::uint32_t up = TestKit::globPixel(b, 3, 16);
    TestKit::click(TestKit::centreOf(b));
    TestKit::mouseMove({5, 5});
    EXPECT_TRUE(b->isLatched());
    EXPECT_TRUE(similar(TestKit::globPixel(b, 3, 16), TestKit::argb(b->getPalette().window(kShadeDark)), 2));
    TestKit::click(TestKit::centreOf(b));
    TestKit::mouseMove({5, 5});
    EXPECT_FALSE(b->isLatched());
    EXPECT_EQ(TestKit::globPixel(b, 3, 16), up);
    b->setLatching(false, true);
    EXPECT_FALSE(b->isLatched()) << "only a latching button can be held down";
}
