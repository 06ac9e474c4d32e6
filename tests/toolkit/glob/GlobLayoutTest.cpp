#include "Blocks.h"

#include "draw/UifStd.h"
#include "glob/GlobManager.h"

using TestKit::Owned;

namespace {

const Colour kRed(1, 0, 0), kGreen(0, 1, 0), kBlue(0, 0, 1), kWhite(1, 1, 1);

Block* add(StandardPanel* p, const WidgetPosition& pos, int w = 50, int h = 20, const Colour& c = kRed) {
    Block::InitArgs a(w, h, c);
    return p->createWidget<Block>(a, pos);
}

// The child's corner pixels are its colour, the pixels just outside are not.
::testing::AssertionResult paintedAt(StandardPanel* p, Block* b, int x, int y) {
    if (b->getX() != x || b->getY() != y)
        return ::testing::AssertionFailure() << "placed at " << b->getX() << "," << b->getY() << " not " << x << "," << y;
    std::uint32_t c = TestKit::argb(b->colour);
    for (XY<int> in : {XY<int>(x, y), XY<int>(x + b->width() - 1, y + b->height() - 1)})
        if (auto r = TestKit::pixelNear(p, in.x, in.y, c); !r) return r;
    if (x > 0 && TestKit::globPixel(p, x - 1, y) == c) return ::testing::AssertionFailure() << "paint left of the child";
    if (y > 0 && TestKit::globPixel(p, x, y - 1) == c) return ::testing::AssertionFailure() << "paint below the child";
    return ::testing::AssertionSuccess();
}

class GlobLayout : public TestKit::ScreenTest {};

} // namespace

TEST_F(GlobLayout, CornerEdgeAndCentreOriginsOfTheWholePanel) {
    Owned<StandardPanel> p(makeRootPanel(400, 300));
    Drawable::disableRedraws();
    Block* bl = add(p.get(), Glob::BottomLeft(10, 5));
    Block* br = add(p.get(), Glob::BottomRight(10, 5), 50, 20, kGreen);
    Block* tl = add(p.get(), Glob::TopLeft(10, 5), 50, 20, kBlue);
    Block* tr = add(p.get(), Glob::TopRight(10, 5), 50, 20, kWhite);
    Block* c = add(p.get(), Glob::Centre(0, 0));
    Block* lc = add(p.get(), Glob::LeftCentre(3, 0), 10, 10, kGreen);
    Block* rc = add(p.get(), Glob::RightCentre(3, 0), 10, 10, kBlue);
    Drawable::enableRedraws();
    p->redraw();

    EXPECT_TRUE(paintedAt(p.get(), bl, 10, 5));
    EXPECT_TRUE(paintedAt(p.get(), br, 340, 5));
    EXPECT_TRUE(paintedAt(p.get(), tl, 10, 275));
    EXPECT_TRUE(paintedAt(p.get(), tr, 340, 275));
    EXPECT_TRUE(paintedAt(p.get(), c, 175, 140));
    EXPECT_TRUE(paintedAt(p.get(), lc, 3, 145));
    EXPECT_TRUE(paintedAt(p.get(), rc, 387, 145));
}

TEST_F(GlobLayout, UserOriginsKeepInsideBorderAndTitle) {
    Owned<StandardPanel> p(makeRootPanel(400, 300));
    p->setBorder(Border(Border::kMenuBorder, 4, 15));
    p->setTitle(UIString(L"Layout"));
    int titleH = UifStd::instance().getTitleHeight();
    BoxInt ua = p->getUserArea();
    EXPECT_EQ(ua, BoxInt(4, 4, 396, 296 - titleH));

    Block* tl = add(p.get(), Glob::UserTopLeft(10, 5));
    Block* br = add(p.get(), Glob::UserBottomRight(10, 5), 50, 20, kGreen);
    Block* bc = add(p.get(), Glob::UserBottomCentre(0, 0), 40, 10, kBlue);
    p->redraw();
    EXPECT_TRUE(paintedAt(p.get(), tl, 14, ua.y2 - 5 - 20));
    EXPECT_TRUE(paintedAt(p.get(), br, 336, 9));
    EXPECT_TRUE(paintedAt(p.get(), bc, 180, 4));
}

TEST_F(GlobLayout, SiblingRelativePlacesWithGapsAndAlignments) {
    Owned<StandardPanel> p(makeRootPanel(400, 300));
    Block* a = add(p.get(), Glob::BottomLeft(100, 100), 60, 40);
    Block* below = add(p.get(), Glob::Below(6, a), 20, 10, kGreen);
    Block* aboveRight = add(p.get(), Glob::Above(4, a, kAlignEnd), 20, 10, kBlue);
    Block* rightCentred = add(p.get(), Glob::RightOf(8, a, kAlignCentre), 10, 20, kWhite);
    Block* leftTop = add(p.get(), Glob::LeftOf(5, a, kAlignEnd), 10, 10, kGreen);
    // A null sibling hangs from the child added just before.
    Block* chained = add(p.get(), Glob::Below(2), 10, 10, kBlue);
    p->redraw();

    EXPECT_TRUE(paintedAt(p.get(), below, 100, 100 - 6 - 10));
    EXPECT_TRUE(paintedAt(p.get(), aboveRight, 140, 144));
    EXPECT_TRUE(paintedAt(p.get(), rightCentred, 168, 110));
    EXPECT_TRUE(paintedAt(p.get(), leftTop, 85, 130));
    EXPECT_TRUE(paintedAt(p.get(), chained, 85, 118));
    EXPECT_EQ(p->getWidget(chained).sibling, leftTop);
}

TEST_F(GlobLayout, RemovingASiblingRehangsItsDependants) {
    Owned<StandardPanel> p(makeRootPanel(200, 200));
    Block* a = add(p.get(), Glob::TopLeft(0, 0), 50, 20);
    Glob* b = add(p.get(), Glob::Below(5, a), 50, 20);
    Block* c = add(p.get(), Glob::Below(5, b), 50, 20);
    EXPECT_EQ(c->getY(), 200 - 20 - 5 - 20 - 5 - 20);
    p->removeWidget(b, true);
    EXPECT_EQ(b, nullptr);
    EXPECT_EQ(p->getWidget(c).sibling, a);
    EXPECT_EQ(c->getY(), 200 - 20 - 5 - 20);
}

TEST_F(GlobLayout, ParentResizeKeepsTopAnchoredChildrenAtTheTop) {
    Owned<StandardPanel> p(makeRootPanel(200, 100));
    Block* top = add(p.get(), Glob::UserTopLeft(0, 0), 20, 20);
    Block* hanging = add(p.get(), Glob::Below(2, top), 20, 20);
    p->resize(300, 150);
    EXPECT_EQ(top->getY(), 130);
    EXPECT_EQ(hanging->getY(), 108);
    // A size below the minimum is raised to it.
    p->setMinSize(100, 80);
    p->resize(10, 10);
    EXPECT_EQ(p->size(), XY<int>(100, 80));
}

TEST_F(GlobLayout, WidthZeroChildrenSpanTheUserArea) {
    Owned<StandardPanel> p(makeRootPanel(320, 200));
    p->setBorder(Border(Border::kSquarePanelBorder, 3, 15));
    p->setTitle(UIString(L"Rows"));
    Block::InitArgs zero(0, 20, kRed);
    Block* row = p->createWidget<Block>(zero, Glob::UserTopLeft(0, 0));
    EXPECT_EQ(row->width(), p->getUserArea().width());
    EXPECT_EQ(row->width(), 314);
    EXPECT_EQ(row->canvas(), p->canvas());
    EXPECT_EQ(row->getPalette(), p->getPalette());
    Block::InitArgs fixed(77, 20, kRed);
    EXPECT_EQ(p->createWidget<Block>(fixed, Glob::Below(0))->width(), 77);
}

TEST_F(GlobLayout, BadSizesAndPositionsDegrade) {
    // A zero-sized panel and negative positions are kept, drawn as nothing, and do not crash.
    GlobCreationInfo none(0, 0);
    Owned<StandardPanel> empty(TestKit::realize(new StandardPanel(StandardPanel::InitArgs(none, Border())), {-50, -50}));
    EXPECT_FALSE(empty->canDraw());
    Owned<StandardPanel> p(makeRootPanel(100, 100));
    Block* off = add(p.get(), Glob::BottomLeft(-30, -10), 40, 20);
    p->resize(-5, -5);
    EXPECT_EQ(p->size(), XY<int>(0, 0));
    p->resize(100, 100);
    p->redraw();
    EXPECT_TRUE(TestKit::pixelNear(p.get(), 0, 0, TestKit::argb(kRed)));
    EXPECT_EQ(off->getX(), -30);
    TestKit::pump();
}

TEST_F(GlobLayout, PlacementNumbersKeepTheirWordsAndNumbersThatNameNothingGiveNone) {
    for (int i = kSiblingRelative; i <= kNoPosition; ++i) EXPECT_EQ(CoordinateOriginFromString(asString(CoordinateOriginFromInt(i))), i);
    for (int i = kNoRelativity; i <= kBelow; ++i) EXPECT_EQ(WidgetRelativityFromString(asString(WidgetRelativityFromInt(i))), i);
    // Files hold the words, so a word must stay with its place whatever the numbers.
    EXPECT_EQ(asString(kTopLeft), "TopLeft");
    EXPECT_EQ(asString(kUserBottomRight), "UserBottomRight");
    EXPECT_EQ(asString(kUserTopCentre), "UserTopCentre");
    EXPECT_EQ(asString(kRightOf), "RightOf");
    EXPECT_EQ(asString(kBelow), "Below");
    EXPECT_EQ(CoordinateOriginFromString("sideways"), kNoPosition);
    EXPECT_EQ(WidgetRelativityFromString(""), kNoRelativity);
    EXPECT_EQ(CoordinateOriginFromInt(18), kNoPosition);
    EXPECT_EQ(CoordinateOriginFromInt(-1), kNoPosition);
    EXPECT_EQ(WidgetRelativityFromInt(5), kNoRelativity);
    EXPECT_EQ(WidgetAlignmentFromInt(4), kAlignNone);
}
