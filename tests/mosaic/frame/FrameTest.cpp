#include "frame/FactoryGlobWrapper.h"
#include "frame/OccludedChildWidget.h"

#include "draw/Canvas.h"
#include "draw/CanvasRenderer.h"
#include "glob/GlobManager.h"
#include "testkit/TestKit.h"

namespace {

// A glob kind that paints nothing, so that whatever the wrapper paints shows.
class Clear : public Glob {
public:
    explicit Clear(const GlobCreationInfo& info) : Glob(info) { setMinSize(7, 5); }
    const char* idstring() const override { return "Clear"; }
    void drawBackground() override {}
};
GlobKindRegistration clearKind("FrameTestClear", [](const GlobCreationInfo& info) -> Glob* { return new Clear(info); });

class Frame : public TestKit::ScreenTest {};

StandardPanel::InitArgs wrapperArgs(const char* type, int w, int h) {
    StandardPanel::InitArgs a(static_cast<unsigned short>(w), static_cast<unsigned short>(h));
    a.type = type;
    return a;
}

// Paints the whole canvas with a marker, then lets the panel paint over it.
void paintOverMarker(StandardPanel& w, const Colour& marker) {
    w.canvas()->pushOrigin({0, 0}, BoxInt(0, 0, w.canvas()->width(), w.canvas()->height()));
    CanvasRenderer(w.canvas()).fill(marker);
    w.canvas()->popOrigin();
    w.drawUnbuffered();
}

} // namespace

TEST_F(Frame, WrapperOfAKindThatCannotBeMadeStillSizesAndPaints) {
    TestKit::Owned<FactoryGlobWrapper> w(new FactoryGlobWrapper(wrapperArgs("NoSuchKind", 60, 40)));
    EXPECT_EQ(w->contained(), nullptr);
    EXPECT_STREQ(w->idstring(), "");
    EXPECT_EQ(w->size(), XY<int>(60, 40));
    w->resize(80, 50);
    EXPECT_EQ(w->size(), XY<int>(80, 50));
    paintOverMarker(*w, Colour(1, 0, 1));
    EXPECT_TRUE(TestKit::pixelNear(w.get(), 40, 25, TestKit::argb(w->getPalette().window())));
}

TEST_F(Frame, WrapperCentresItsGlobAndPaintsOnlyTheMargins) {
    TestKit::Owned<FactoryGlobWrapper> w(new FactoryGlobWrapper(wrapperArgs("FrameTestClear", 40, 30)));
    ASSERT_NE(w->contained(), nullptr);
    EXPECT_STREQ(w->idstring(), "FactoryGlobWrapper");
    EXPECT_EQ(w->contained()->size(), XY<int>(40, 30));
    EXPECT_EQ(w->getMinSize(), XY<int>(7, 5));
    std::uint32_t marker = 0xFFFF00FF;
    paintOverMarker(*w, Colour(1, 0, 1));
    for (XY<int> p : {XY<int>(0, 0), XY<int>(39, 29), XY<int>(20, 15)})
        EXPECT_TRUE(TestKit::pixelNear(w.get(), p.x, p.y, marker)) << "an exact fit paints no margin";

    // Grow the panel alone: margins appear on all four sides, rounded up.
    w->StandardPanel::resize(50, 35);
    w->calcAbsoluteWidgetPositions();
    EXPECT_EQ(XY<int>(w->contained()->getX(), w->contained()->getY()), XY<int>(5, 3));
    paintOverMarker(*w, Colour(1, 0, 1));
    std::uint32_t shade = TestKit::argb(w->getPalette().window(kShadeNormal));
    EXPECT_TRUE(TestKit::pixelNear(w.get(), 4, 17, shade));
    EXPECT_TRUE(TestKit::pixelNear(w.get(), 45, 17, shade));
    EXPECT_TRUE(TestKit::pixelNear(w.get(), 25, 2, shade));
    EXPECT_TRUE(TestKit::pixelNear(w.get(), 25, 32, shade));
    EXPECT_TRUE(TestKit::pixelNear(w.get(), 25, 17, marker));

    w->setVisible(false);
    EXPECT_FALSE(w->contained()->isVisible());
    w->resize(90, 70);
    EXPECT_EQ(w->contained()->size(), XY<int>(90, 70));
}

TEST_F(Frame, TheOccludedHostPaintsNothing) {
    StandardPanel::InitArgs a(30, 30);
    TestKit::Owned<OccludedChildWidget> host(new OccludedChildWidget(a));
    paintOverMarker(*host, Colour(0, 1, 0));
    EXPECT_TRUE(TestKit::pixelNear(host.get(), 15, 15, 0xFF00FF00));
}
