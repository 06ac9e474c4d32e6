#include "Blocks.h"

#include "glob/GlobManager.h"

using TestKit::Owned;

namespace {

class Redraws : public TestKit::ScreenTest {};

} // namespace

TEST_F(Redraws, NestedBracketsPaintOnceAtTheOutermostClose) {
    Owned<StandardPanel> p(makeRootPanel(100, 100));
    Block::InitArgs a(20, 20, Colour(1, 0, 0));
    auto* b = p->createWidget<Block>(a, Glob::BottomLeft(0, 0));
    int before = b->paints;

    Drawable::disableRedraws();
    Drawable::disableRedraws();
    b->colour = Colour(0, 1, 0);
    b->redraw();
    b->redraw();
    Drawable::enableRedraws();
    EXPECT_EQ(b->paints, before) << "the inner close paints nothing";
    EXPECT_FALSE(Drawable::redrawsEnabled());
    Drawable::enableRedraws();
    EXPECT_EQ(b->paints, before + 1) << "two requests, one paint";
    EXPECT_TRUE(TestKit::pixelNear(p.get(), 5, 5, 0xFF00FF00));
    // An unbalanced close is ignored rather than driving the count negative.
    Drawable::enableRedraws();
    EXPECT_TRUE(Drawable::redrawsEnabled());
    EXPECT_EQ(Drawable::disableDepth(), 0);
}

TEST_F(Redraws, UpdatePaintsPendingAndSkipsTheDead) {
    Owned<StandardPanel> p(makeRootPanel(100, 100));
    Block::InitArgs a(20, 20, Colour(1, 0, 0));
    auto* keep = p->createWidget<Block>(a, Glob::BottomLeft(0, 0));
    Glob* gone = p->createWidget<Block>(a, Glob::BottomLeft(50, 0));
    int before = keep->paints;
    Drawable::disableRedraws();
    keep->redraw();
    gone->redraw();
    p->removeWidget(gone, true);
    Drawable::update();
    EXPECT_EQ(keep->paints, before + 1);
    EXPECT_EQ(Drawable::pendingCount(), 0u);
    Drawable::enableRedraws();
}

TEST_F(Redraws, AHiddenChildUncoversWhatIsBelowIt) {
    Owned<StandardPanel> p(makeRootPanel(100, 100, {0, 0}, Colour(0, 0, 1)));
    Block::InitArgs a(20, 20, Colour(1, 0, 0));
    Block* b = p->createWidget<Block>(a, Glob::BottomLeft(10, 10));
    p->redraw();
    EXPECT_TRUE(TestKit::pixelNear(p.get(), 15, 15, 0xFFFF0000));
    b->setVisible(false);
    EXPECT_TRUE(TestKit::pixelNear(p.get(), 15, 15, 0xFF0000FF));
    TestKit::pump();
    EXPECT_TRUE(TestKit::screenPixelNear(15, 15, 0xFF0000FF));
}
