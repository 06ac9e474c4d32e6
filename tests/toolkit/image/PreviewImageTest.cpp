#include "draw/Canvas.h"
#include "draw/CanvasRenderer.h"
#include "image/AspectRatio.h"
#include "image/GPUImage.h"

#include <gtest/gtest.h>

#include <cstring>

TEST(AspectRatios, NamedShapesGiveWidthOverHeightAndUnknownOnesTheUsualPicture) {
    EXPECT_DOUBLE_EQ(Zn::getAspectRatio(Zn::Image::kAspect4x3), 4.0 / 3.0);
    EXPECT_DOUBLE_EQ(Zn::getAspectRatio(Zn::Image::kAspect16x9), 16.0 / 9.0);
    EXPECT_DOUBLE_EQ(Zn::getAspectRatio(Zn::Image::kAspect1x1), 1.0);
    EXPECT_DOUBLE_EQ(Zn::getAspectRatio(Zn::Image::kAspect14x9), 14.0 / 9.0);
    EXPECT_DOUBLE_EQ(Zn::getAspectRatio(Zn::Image::kAspect1_85), 1.85);
    EXPECT_DOUBLE_EQ(Zn::getAspectRatio(Zn::Image::kAspect2_39), 2.39);
    EXPECT_DOUBLE_EQ(Zn::getAspectRatio(Zn::Image::kAspectUnknown), 16.0 / 9.0);
    EXPECT_DOUBLE_EQ(Zn::getAspectRatio(static_cast<Zn::Image::AspectRatio>(77)), 16.0 / 9.0);
}

TEST(GPUImages, HoldTheirPixelsInMemorySoTheHostPainterPaintsThem) {
    Zn::Ptr<iImage> image(new GPUImage(4, 2));
    ASSERT_EQ(image->getSize(), XY<int>(4, 2));
    auto host = Zn::dynamicCast<iHostImage>(image);
    ASSERT_TRUE(host);
    // Every pixel opaque green (blue, green, red, alpha in memory).
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 4; ++x) {
            const std::uint8_t green[4] = {0, 255, 0, 255};
            std::memcpy(host->data() + y * host->stride() + x * 4, green, 4);
        }
    Canvas canvas(10, 10);
    CanvasRenderer(&canvas).render(Glib::ImageDescription(image, BoxInt(2, 2, 6, 4)));
    EXPECT_EQ(canvas.pixel(3, 3), 0xFF00FF00u);
    EXPECT_EQ(canvas.pixel(7, 3) & 0xFF000000u, 0u) << "nothing outside the destination";

    Zn::Ptr<iImage> empty(new GPUImage(-3, 5));
    EXPECT_EQ(empty->getSize(), XY<int>(0, 5)) << "a negative side is none";
}
