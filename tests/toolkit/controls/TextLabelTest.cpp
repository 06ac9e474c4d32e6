#include "controls/TextLabel.h"
#include "ControlsTestSupport.h"

namespace {
class TextLabels : public ControlsTest {
protected:
    // The leftmost and rightmost columns that hold ink.
    static std::pair<int, int> inkColumns(const TextLabel* l);
};

std::pair<int, int> TextLabels::inkColumns(const TextLabel* l) {
    std::uint32_t bg = TestKit::argb(l->getPalette().window());
    int first = -1, last = -1;
    for (int x = 0; x < l->width(); ++x)
        for (int y = 0; y < l->height(); ++y)
            if (!similar(TestKit::globPixel(l, x, y), bg, 40)) {
                if (first < 0) first = x;
                last = x;
                break;
            }
    return {first, last};
}
} // namespace

TEST_F(TextLabels, TextIsDrawnInThePaletteAndAlignedAsAsked) {
    auto* l = add<TextLabel>(TextLabel::InitArgs(L"Render settings", 300, 24));
    auto [left, right] = inkColumns(l);
    ASSERT_GE(left, 0) << "the text is painted";
    EXPECT_LT(left, 20);
    l->setAlignment(Glib::kAlignRight);
    TestKit::pump();
    auto [left2, right2] = inkColumns(l);
    EXPECT_GT(left2, 150);
    EXPECT_GT(right2, 280);
    EXPECT_EQ(right2 - left2, right - left);
    l->setText(UIString());
    TestKit::pump();
    EXPECT_EQ(inkColumns(l).first, -1);
}

TEST_F(TextLabels, FixSizeKeepsTheHeightAndRejectsNegativeWidths) {
    auto* l = add<TextLabel>(TextLabel::InitArgs(L"x", 100, 24));
    l->fixSize(40);
    EXPECT_EQ(l->width(), 40);
    EXPECT_EQ(l->height(), 24);
    l->fixSize(-5);
    EXPECT_EQ(l->width(), 0);
    EXPECT_GT(TextLabel::calcSizeFor(L"wider text").x, TextLabel::calcSizeFor(L"w").x);
}
