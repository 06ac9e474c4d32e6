#include "frame/FactoryGlobWrapper.h"
#include "frame/GlobHandle.h"
#include "frame/OccludedChildWidget.h"
#include "frame/applyStyleTo.h"

#include "draw/Canvas.h"
#include "draw/CanvasRenderer.h"
#include "glob/GlobManager.h"
#include "testing/TestKit.h"

namespace {

// A glob kind that paints nothing, so that whatever the wrapper paints shows.
class Clear : public Glob {
public:
    explicit Clear(const GlobCreationInfo& info) : Glob(info) { setMinSize(7, 5); }
    const char* idstring() const override { return "Clear"; }
    void drawBackground() override {}
};
GlobKindRegistration clearKind("FrameTestClear", [](const GlobCreationInfo& info) -> Glob* { return new Clear(info); });

class Frame : public ::testing::Test {
protected:
    void TearDown() override { TestKit::reset(); }
};

StandardPanel::InitArgs wrapperArgs(const char* type, int w, int h) {
    StandardPanel::InitArgs a(static_cast<unsigned short>(w), static_cast<unsigned short>(h));
    a.type = type;
    return a;
}

// Paints the whole canvas with a marker, then lets the wrapper paint over it.
void paintOverMarker(FactoryGlobWrapper& w, const Colour& marker) {
    w.canvas()->pushOrigin({0, 0}, BoxInt(0, 0, w.canvas()->width(), w.canvas()->height()));
    CanvasRenderer(w.canvas()).fill(marker);
    w.canvas()->popOrigin();
    w.drawUnbuffered();
}

} // namespace

TEST_F(Frame, GlobHandleNeverTouchesAGoneOrReplacedWidget) {
    GlobCreationInfo info(10, 10);
    auto* g = new Clear(info);
    GlobHandle<Clear> handle(g);
    EXPECT_TRUE(handle.valid());
    EXPECT_EQ(handle.get(), g);
    delete g;
    EXPECT_FALSE(handle.valid());
    EXPECT_EQ(handle.get(), nullptr);
    // Whatever lives at the old address now is not the handle's to delete.
    auto* other = new Clear(info);
    IdStamp otherStamp = other->stamp();
    handle.deleteGlob();
    EXPECT_TRUE(EventHandler::valid(other, otherStamp));
    EXPECT_FALSE(handle.stamp().valid());
    EXPECT_EQ(handle.get(), nullptr);
    delete other;

    IdStamp ownedStamp;
    Clear* owned = new Clear(info);
    ownedStamp = owned->stamp();
    {
        GlobHandle<Clear> owner(owned, true);
        GlobHandle<Clear> moved(std::move(owner));
        EXPECT_FALSE(owner.valid());
    }
    EXPECT_FALSE(EventHandler::valid(owned, ownedStamp)) << "an owning handle deletes its widget";
    GlobHandle<Clear> empty;
    empty.deleteGlob();
    EXPECT_FALSE(empty.valid());
}

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

TEST_F(Frame, HostsNameThemselvesAndTheOccludedOnePaintsNothing) {
    StandardPanel::InitArgs a(30, 30);
    TestKit::Owned<OccludedChildWidget> host(new OccludedChildWidget(a));
    EXPECT_STREQ(host->idstring(), "OccludedChildWidget");
    host->canvas()->pushOrigin({0, 0}, BoxInt(0, 0, 30, 30));
    CanvasRenderer(host->canvas()).fill(Colour(0, 1, 0));
    host->canvas()->popOrigin();
    host->drawUnbuffered();
    EXPECT_TRUE(TestKit::pixelNear(host.get(), 15, 15, 0xFF00FF00));
    TestKit::Owned<WidgetHost> plain(new WidgetHost(a));
    EXPECT_STREQ(plain->idstring(), "WidgetHost");
}

namespace {
struct FakeButton {
    int a = -1, b = -1;
    void setStyle(int x, int y) { a = x, b = y; }
};
struct FakeTitled : StandardPanel {
    FakeTitled() : StandardPanel(10, 10) { setBorder(Border(Border::kSquarePanelBorder, 2, 15)); }
    FakeButton* button() { return &inner; }
    void setFrame(bool f) { frame = f; }
    FakeButton inner;
    bool frame = true;
};
} // namespace

TEST_F(Frame, ApplyStyleToFlattensATitledDropDown) {
    FakeTitled t;
    EXPECT_EQ(applyStyleTo(&t), &t);
    EXPECT_EQ(t.getBorder().type(), Border::kNoBorder);
    EXPECT_EQ(t.inner.a, Button::kFlat);
    EXPECT_EQ(t.inner.b, Button::kFlat);
    EXPECT_FALSE(t.frame);
    EXPECT_EQ(applyStyleTo<FakeTitled>(nullptr), nullptr);
}
