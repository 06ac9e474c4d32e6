#include "backend/CursorPicture.h"

#include <gtest/gtest.h>

namespace {

std::uint32_t alpha(std::uint32_t p) { return p >> 24; }
int brightness(std::uint32_t p) { return static_cast<int>((p >> 16 & 0xFF) + (p >> 8 & 0xFF) + (p & 0xFF)) / 3; }

// A cursor shows on light and dark backgrounds alike when it has both an opaque
// dark outline and an opaque light body.
void expectOutlinedBody(const CursorPicture& picture) {
    int dark = 0, light = 0, clear = 0;
    for (std::uint32_t p : picture.pixels()) {
        if (alpha(p) == 0)
            ++clear;
        else if (alpha(p) == 255 && brightness(p) < 40)
            ++dark;
        else if (alpha(p) == 255 && brightness(p) > 215)
            ++light;
    }
    EXPECT_GT(dark, 40);
    EXPECT_GT(light, 20);
    EXPECT_GT(clear, CursorPicture::kSize * CursorPicture::kSize / 3);
}

} // namespace

TEST(CursorPicture, TheEyeDropperIsAPipetteWhoseTipIsItsHotspot) {
    const auto picture = CursorPicture::draw(kCursorEyeDropper);
    ASSERT_TRUE(picture);
    ASSERT_EQ(picture->pixels().size(), static_cast<std::size_t>(CursorPicture::kSize * CursorPicture::kSize));
    expectOutlinedBody(*picture);
    const XY<int> tip = picture->hotspot();
    EXPECT_EQ(alpha(picture->at(tip.x, tip.y)), 255u);
    // The pipette runs from the bottom left to the top right: the other corners are empty.
    EXPECT_EQ(alpha(picture->at(1, 1)), 0u);
    EXPECT_EQ(alpha(picture->at(30, 30)), 0u);
    EXPECT_GT(alpha(picture->at(23, 9)), 0u);
}

TEST(CursorPicture, TheDragCursorIsAClosedHandAroundItsHotspot) {
    const auto picture = CursorPicture::draw(kCursorDrag);
    ASSERT_TRUE(picture);
    expectOutlinedBody(*picture);
    const XY<int> centre = picture->hotspot();
    EXPECT_EQ(picture->at(centre.x, centre.y), 0xFFFFFFFFu);
    for (int corner : {0, CursorPicture::kSize - 1}) {
        EXPECT_EQ(alpha(picture->at(corner, 0)), 0u);
        EXPECT_EQ(alpha(picture->at(corner, CursorPicture::kSize - 1)), 0u);
    }
}

TEST(CursorPicture, CursorsTheSystemDrawsHaveNoPicture) {
    for (MouseCursorID id : {kCursorArrow, kCursorIBeam, kCursorHand, kCursorCrosshair, kCursorWait}) EXPECT_FALSE(CursorPicture::draw(id)) << id;
    EXPECT_NE(CursorPicture::draw(kCursorDrag)->pixels(), CursorPicture::draw(kCursorEyeDropper)->pixels());
}
