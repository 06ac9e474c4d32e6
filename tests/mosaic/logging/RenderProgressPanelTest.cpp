#include "ProgressTestSupport.h"

#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "image/GPUImage.h"
#include "image/HostImage.h"
#include "logging/RenderProgressPanel.h"

namespace {

constexpr std::uint32_t kRed = 0xFFE01010, kBlue = 0xFF1010E0;

// A preview whose left half is red and right half blue.
template <class Image>
Zn::Ptr<iImage> halves(int w, int h) {
    auto* image = new Image(w, h);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) reinterpret_cast<std::uint32_t*>(image->data() + y * image->stride())[x] = x < w / 2 ? kRed : kBlue;
    return Zn::Ptr<iImage>(image);
}

class RenderProgressPanels : public ProgressTest {
protected:
    static XY<int> middleOf(const BoxInt& b, double fx) { return {b.x1 + static_cast<int>(b.width() * fx), (b.y1 + b.y2) / 2}; }
};

} // namespace

TEST_F(RenderProgressPanels, ThePreviewAreaHasThePicturesShapeAboveTheGauge) {
    for (auto ratio : {Zn::Image::kAspect16x9, Zn::Image::kAspect4x3, Zn::Image::kAspect2_39}) {
        XY<int> size = RenderProgressPanel::calcImageSize(400, ratio);
        int inset = StandardPanel::getDefaultBorder().size() + UifStd::instance().getIndentWidth();
        EXPECT_EQ(size.x, 400 - 2 * inset);
        EXPECT_EQ(size.y, static_cast<int>(size.x / Zn::getAspectRatio(ratio)));

        TestKit::Owned<RenderProgressPanel> p(new RenderProgressPanel(400, ratio, Colour(0.3, 0.3, 0.35)));
        EXPECT_EQ(p->height(), RenderProgressPanel::calcHeightFromWidth(400, ratio));
        BoxInt area = p->getAreaForImage(), user = p->getUserArea();
        EXPECT_EQ(area.size(), size);
        EXPECT_TRUE(area.x1 > user.x1 && area.x2 < user.x2 && area.y2 < user.y2) << "inside the user area, indented";
        EXPECT_GT(area.y1, p->gauge()->box().y2) << "above the gauge";
        EXPECT_GE(p->gauge()->box().y1, user.y1);
        EXPECT_EQ(p->videoWindow().getSize(), size);
        EXPECT_EQ(p->getAreaForImageLW(), area) << "a top-level panel's canvas is its own";
    }
    EXPECT_LE(RenderProgressPanel::calcImageSize(6, Zn::Image::kAspect16x9).x, 0) << "too narrow for a picture";
}

TEST_F(RenderProgressPanels, ThePreviewsPixelsArePaintedInTheImageAreaInsideItsFrame) {
    RenderProgressPanel* p = RenderProgressPanel::make(Zn::Image::kAspect16x9);
    TestKit::pump();
    BoxInt area = p->getAreaForImage();
    const std::uint32_t panel = TestKit::globPixel(p, area.x1 + 5, area.y1 + 5);
    const std::uint32_t frame = TestKit::argb(scale(p->getCol(), 0.6));
    EXPECT_TRUE(TestKit::pixelNear(p, area.x1 - 1, (area.y1 + area.y2) / 2, frame, 1)) << "the frame is one pixel outside";
    EXPECT_TRUE(TestKit::pixelNear(p, (area.x1 + area.x2) / 2, area.y2, frame, 1));
    EXPECT_FALSE(TestKit::similar(panel, kRed, 40) || TestKit::similar(panel, kBlue, 40));

    p->handleProgressUpdate(ProgressSnapshot(0.0f, L"", halves<HostImage>(32, 18)));
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(p, area.x1 + 5, area.y1 + 5, panel, 0)) << "only a GPU image is shown";

    p->handleProgressUpdate(ProgressSnapshot(0.0f, L"", halves<GPUImage>(32, 18)));
    TestKit::pump();
    for (int y : {area.y1 + 1, (area.y1 + area.y2) / 2, area.y2 - 2}) {
        EXPECT_TRUE(TestKit::pixelNear(p, area.x1 + 2, y, kRed, 2)) << "stretched to the whole area";
        EXPECT_TRUE(TestKit::pixelNear(p, area.x1 + area.width() / 4, y, kRed, 2));
        EXPECT_TRUE(TestKit::pixelNear(p, area.x1 + area.width() * 3 / 4, y, kBlue, 2));
        EXPECT_TRUE(TestKit::pixelNear(p, area.x2 - 2, y, kBlue, 2));
    }
    EXPECT_TRUE(TestKit::pixelNear(p, area.x1 - 1, (area.y1 + area.y2) / 2, frame, 1)) << "the frame is not painted over";
    XY<int> s = TestKit::screenPointOf(p, middleOf(area, 0.25));
    EXPECT_TRUE(TestKit::screenPixelNear(s.x, s.y, kRed, 2)) << "the preview reaches the screen";

    p->redraw();
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(p, area.x1 + area.width() * 3 / 4, area.y1 + 3, kBlue, 2)) << "a redraw of the panel keeps the preview";
}

TEST_F(RenderProgressPanels, TheGaugeShowsTheRawTimeLeftAloneAtMostEveryElevenMilliseconds) {
    RenderProgressPanel* p = RenderProgressPanel::make(Zn::Image::kAspect16x9);
    Gauge* g = p->gauge();
    Clock::advanceTestTime(30'000);
    p->handleProgressUpdate(ProgressSnapshot(0.25f, L"frame 12"));
    EXPECT_EQ(g->getMessage(), L"00:01:30 left") << "without the snapshot's text";
    EXPECT_DOUBLE_EQ(g->getMeasure(), 0.25);

    Clock::advanceTestTime(10);
    p->handleProgressUpdate(ProgressSnapshot(0.5f, L""));
    EXPECT_DOUBLE_EQ(g->getMeasure(), 0.25) << "within 10 ms";
    p->handleProgressUpdate(ProgressSnapshot(1.0f, L""));
    EXPECT_DOUBLE_EQ(g->getMeasure(), 1.0) << "the end always shows";
    EXPECT_EQ(g->getMessage(), L"00:00:00 left");

    Clock::advanceTestTime(11);
    p->handleProgressUpdate(ProgressSnapshot(0.0f, L""));
    EXPECT_EQ(g->getMessage(), L"00:00:00 left") << "nothing done leaves the message";
    EXPECT_DOUBLE_EQ(g->getMeasure(), 1.0);

    // Text written to the panel is lost, and a progress report through the base arrives here.
    p->write(L"lost", LoggerBase::otNormal);
    Clock::advanceTestTime(20'000);
    p->updateProgress(0.5, L"");
    EXPECT_DOUBLE_EQ(g->getMeasure(), 0.5);
    TestKit::pump();
    EXPECT_TRUE(TestKit::pixelNear(g, g->width() / 4, 2, TestKit::argb(p->getPalette().selection(kSelectionFocused)), 2)) << "the gauge is painted";
}
