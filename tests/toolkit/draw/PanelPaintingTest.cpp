#include "../glob/Blocks.h"

#include "draw/UifStd.h"
#include "glob/GlobManager.h"

#include <cairo.h>
#include <filesystem>

using TestKit::Owned;

namespace {
class PanelPainting : public TestKit::ScreenTest {};

// How many pixels of a box differ from a colour: text drawn there shows up as such pixels.
int pixelsNotOf(const Glob* g, const BoxInt& b, std::uint32_t colour) {
    int n = 0;
    for (int y = b.y1; y < b.y2; ++y)
        for (int x = b.x1; x < b.x2; ++x) n += TestKit::globPixel(g, x, y) != colour;
    return n;
}
} // namespace

TEST_F(PanelPainting, BorderTitleBarAndTitleTextLandWhereTheyShould) {
    Owned<StandardPanel> p(makeRootPanel(200, 120, {50, 50}));
    p->setBorder(Border(Border::kSquarePanelBorder, 3, 15));
    p->setTitle(UIString(L"Colour"));
    p->redraw();
    const Palette& pal = p->getPalette();
    int titleH = UifStd::instance().getTitleHeight();

    std::uint32_t light = TestKit::argb(pal.window(kShadeLightest)), dark = TestKit::argb(pal.window(kShadeDarkest));
    EXPECT_TRUE(TestKit::pixelNear(p.get(), 0, 60, light)) << "left edge is lit";
    EXPECT_TRUE(TestKit::pixelNear(p.get(), 100, 119, light)) << "top edge is lit";
    EXPECT_TRUE(TestKit::pixelNear(p.get(), 199, 60, dark)) << "right edge is shaded";
    EXPECT_TRUE(TestKit::pixelNear(p.get(), 100, 0, dark)) << "bottom edge is shaded";
    EXPECT_TRUE(TestKit::pixelNear(p.get(), 3, 3, TestKit::argb(pal.window())));

    BoxInt bar = p->titleBarBox();
    EXPECT_EQ(bar, BoxInt(3, 117 - titleH, 197, 117));
    std::uint32_t barColour = TestKit::argb(pal.window(kShadeDark));
    EXPECT_TRUE(TestKit::pixelNear(p.get(), 190, bar.y1 + titleH / 2, barColour));
    EXPECT_TRUE(TestKit::pixelNear(p.get(), 100, bar.y1, dark)) << "separator under the title";
    EXPECT_GT(pixelsNotOf(p.get(), BoxInt(bar.x1, bar.y1 + 1, bar.x1 + 80, bar.y2), barColour), 20) << "the title's text";
    EXPECT_EQ(pixelsNotOf(p.get(), BoxInt(120, bar.y1 + 1, 190, bar.y2), barColour), 0) << "nothing right of a short title";

    TestKit::pump();
    EXPECT_TRUE(TestKit::screenPixelNear(50 + 100, 50 + 119, light));
}

TEST_F(PanelPainting, ChildrenPaintInsideTheirParentOnly) {
    Owned<StandardPanel> p(makeRootPanel(100, 100, {0, 0}, Colour(0, 0, 0)));
    auto* inner = new StandardPanel(40, 40);
    inner->setCol(Colour(0, 0, 1), false);
    p->addChild(inner, Glob::BottomLeft(10, 10));
    Block::InitArgs a(100, 100, Colour(1, 0, 0));
    auto* big = new Block(a);
    inner->addChild(big, Glob::BottomLeft(20, 20));
    p->redraw();
    EXPECT_TRUE(TestKit::pixelNear(p.get(), 12, 12, 0xFF0000FF));
    EXPECT_TRUE(TestKit::pixelNear(p.get(), 49, 49, 0xFFFF0000));
    EXPECT_TRUE(TestKit::pixelNear(p.get(), 50, 49, 0xFF000000)) << "the child is clipped to its parent";
    EXPECT_TRUE(TestKit::pixelNear(p.get(), 60, 60, 0xFF000000));
}

TEST_F(PanelPainting, OneGlobExportsAsAPNGOfItsOwnBox) {
    Owned<StandardPanel> p(makeRootPanel(100, 80, {0, 0}, Colour(0, 0, 0)));
    Block::InitArgs a(30, 20, Colour(1, 0, 0));
    Block* b = p->createWidget<Block>(a, Glob::BottomLeft(10, 5));
    p->redraw();
    auto file = (std::filesystem::temp_directory_path() / "mosaic-glob.png").string();
    ASSERT_TRUE(writeGlobPNG(b, file.c_str()));
    cairo_surface_t* png = cairo_image_surface_create_from_png(file.c_str());
    ASSERT_EQ(cairo_surface_status(png), CAIRO_STATUS_SUCCESS);
    EXPECT_EQ(cairo_image_surface_get_width(png), 30);
    EXPECT_EQ(cairo_image_surface_get_height(png), 20);
    auto* data = cairo_image_surface_get_data(png);
    EXPECT_EQ(*reinterpret_cast<std::uint32_t*>(data), 0xFFFF0000u);
    cairo_surface_destroy(png);
    std::filesystem::remove(file);
    Glob* gone = b;
    p->removeWidget(gone, true);
    EXPECT_FALSE(writeGlobPNG(b, file.c_str()));
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(PanelPainting, EachBorderTypePaintsItsOwnFrame) {
    Owned<StandardPanel> p(makeRootPanel(60, 40, {50, 50}));
    const Palette& pal = p->getPalette();
    const std::uint32_t face = TestKit::argb(pal.window()), light = TestKit::argb(pal.window(kShadeLightest));
    const std::uint32_t darkest = TestKit::argb(pal.window(kShadeDarkest)), darker = TestKit::argb(pal.window(kShadeDarker));
    auto paint = [&](Border::eType type) {
        p->setBorder(Border(type, 3, 15));
        p->redraw();
    };
    // The left edge's middle, and the bottom right corner.
    auto left = [&] { return TestKit::globPixel(p.get(), 1, 20); };
    auto corner = [&] { return TestKit::globPixel(p.get(), 59, 0); };

    paint(Border::kNoBorder);
    EXPECT_EQ(left(), face);
    paint(Border::kMenuBorder);
    EXPECT_EQ(left(), darkest);
    paint(Border::kDropMenuBorder);
    EXPECT_EQ(left(), darker);
    paint(Border::kLineBorder);
    EXPECT_EQ(left(), TestKit::argb(pal.text()));
    paint(Border::kSquarePanelBorder);
    EXPECT_EQ(left(), light);
    paint(Border::kSunkenBorder);
    EXPECT_EQ(left(), darkest);
    EXPECT_EQ(corner(), light);
    paint(Border::kDialogueBorder);
    EXPECT_EQ(TestKit::globPixel(p.get(), 0, 20), darkest) << "the outer line";
    EXPECT_EQ(left(), light);
    paint(Border::kCurvedPanelBorder);
    EXPECT_EQ(left(), darker);
    EXPECT_EQ(corner(), face) << "the ring rounds the corner off";
    paint(Border::kDarkenedRoundedRect);
    EXPECT_EQ(left(), darkest);
    EXPECT_EQ(corner(), face);
}
