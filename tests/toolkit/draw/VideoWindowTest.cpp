#include "draw/VideoWindow.h"
#include "draw/Canvas.h"
#include "image/GPUImage.h"

#include <gtest/gtest.h>

namespace {

Zn::Ptr<iImage> solid(int w, int h, std::uint32_t argb) {
    auto* image = new GPUImage(w, h);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) reinterpret_cast<std::uint32_t*>(image->data() + y * image->stride())[x] = argb;
    return Zn::Ptr<iImage>(image);
}

} // namespace

TEST(VideoWindows, WithoutACanvasOrAreaThereIsNoTargetAndNothingIsPainted) {
    Glib::VideoWindow window;
    EXPECT_FALSE(window.hasRenderTarget());
    EXPECT_EQ(window.getSize(), XY<int>(0, 0));
    Glib::ImageDescription frame(solid(2, 2, 0xFFFF0000), BoxInt(0, 0, 2, 2));
    EXPECT_EQ(iRootVideoWindow::PrimitivesRenderer(window).renderMulti(&frame, 1), 0);

    Canvas canvas(20, 20);
    window.setTarget(&canvas, BoxInt(30, 30, 40, 40));
    EXPECT_FALSE(window.hasRenderTarget()) << "an area wholly off the canvas";
    window.setTarget(&canvas, BoxInt(15, 15, 40, 40));
    EXPECT_EQ(window.targetArea(), BoxInt(15, 15, 20, 20)) << "cut to the canvas";
    EXPECT_EQ(iRootVideoWindow::PrimitivesRenderer(window).renderMulti(nullptr, 3), 0) << "no descriptions";
}

TEST(VideoWindows, AFramePaintsOnlyInsideTheWindowAndComesBackAfterBeingPaintedOver) {
    Canvas canvas(40, 30);
    Glib::VideoWindow window;
    window.setTarget(&canvas, BoxInt(10, 5, 30, 25));
    ASSERT_EQ(window.getSize(), XY<int>(20, 20));

    // A red picture over the whole window, and a blue one spilling out of its top right corner.
    Glib::ImageDescription frame[3] = {
        Glib::ImageDescription(solid(4, 4, 0xFFFF0000), BoxInt(0, 0, 20, 20)),
        Glib::ImageDescription(Zn::Ptr<iImage>(), BoxInt(0, 0, 5, 5)),
        Glib::ImageDescription(solid(4, 4, 0xFF0000FF), BoxInt(15, 15, 30, 30)),
    };
    EXPECT_EQ(iRootVideoWindow::PrimitivesRenderer(window).renderMulti(frame, 3), 2) << "the null picture is passed over";
    EXPECT_EQ(canvas.pixel(11, 6), 0xFFFF0000u) << "window coordinates start at its bottom left";
    EXPECT_EQ(canvas.pixel(28, 23), 0xFF0000FFu);
    EXPECT_EQ(canvas.pixel(9, 6), 0u) << "left of the window";
    EXPECT_EQ(canvas.pixel(31, 26), 0u) << "the spill past the window is cut off";
    EXPECT_TRUE(window.hasFrame());

    canvas.resize(41, 30); // a new, cleared picture
    ASSERT_EQ(canvas.pixel(11, 6), 0u);
    EXPECT_TRUE(window.repaintLastFrame());
    EXPECT_EQ(canvas.pixel(11, 6), 0xFFFF0000u) << "the kept frame is painted again";

    window.setTarget(nullptr, BoxInt(0, 0, 5, 5));
    EXPECT_FALSE(window.repaintLastFrame()) << "nowhere to paint it";
}
