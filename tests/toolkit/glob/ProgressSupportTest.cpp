#include "Blocks.h"

#include "draw/Canvas.h"
#include "draw/Screen.h"
#include "glob/GlobManager.h"
#include "glob/SuspendRefreshOffToggle.h"
#include "glob/UpdateDeferrer.h"
#include "glob/glib_getPosForWindow.h"
#include "glob/makeTopLevel.h"

#include <algorithm>

namespace {

class ProgressSupport : public TestKit::ScreenTest {};

} // namespace

TEST_F(ProgressSupport, SuspendingRefreshOffTurnsItOnForTheScopeAndBackToTheSameDepth) {
    StandardPanel* off = makeRootPanel(50, 50);
    StandardPanel* on = makeRootPanel(50, 50, {200, 100});
    refresh_off(off->canvas());
    refresh_off(off->canvas());
    {
        SuspendRefreshOffToggle ignored(0);
        EXPECT_FALSE(off->canvas()->isRefreshOn()) << "only mode 1 suspends";
    }
    {
        SuspendRefreshOffToggle toggle(1);
        EXPECT_TRUE(off->canvas()->isRefreshOn());
        EXPECT_TRUE(on->canvas()->isRefreshOn());
    }
    EXPECT_TRUE(on->canvas()->isRefreshOn()) << "a canvas that was on stays on";
    ASSERT_FALSE(off->canvas()->isRefreshOn());
    refresh_on(off->canvas());
    EXPECT_FALSE(off->canvas()->isRefreshOn()) << "both levels of refresh-off are back";
    refresh_on(off->canvas());
    EXPECT_TRUE(off->canvas()->isRefreshOn());

    refresh_off(on->canvas());
    {
        SuspendRefreshOffToggle toggle(1);
        delete on;
    } // a glob that died in the scope is not touched
    EXPECT_EQ(GlobManager::instance().roots().size(), 1u);
}

TEST_F(ProgressSupport, AnUpdateDeferrerPaintsWhatWasAskedInItsScopeOnceAtItsEnd) {
    TestKit::Owned<StandardPanel> p(makeRootPanel(60, 60));
    Block::InitArgs a(20, 20, Colour(1, 0, 0));
    auto* b = p->createWidget<Block>(a, Glob::BottomLeft(0, 0));
    TestKit::pump();
    int before = b->paints;
    {
        Glib::UpdateDeferrer deferred;
        b->colour = Colour(0, 0, 1);
        b->redraw();
        b->redraw();
        EXPECT_EQ(b->paints, before);
    }
    EXPECT_EQ(b->paints, before + 1);
    EXPECT_TRUE(TestKit::pixelNear(b, 5, 5, 0xFF0000FF));
}

TEST_F(ProgressSupport, NewWindowsArePlacedWhollyOnTheScreenOrTopFirstWhenTooTall) {
    const Screen& s = GlobManager::instance().screen();
    for (XY<int> size : {XY<int>(400, 80), XY<int>(s.width() - 10, 200), XY<int>(0, 0), XY<int>(-50, 70000)}) {
        XY<int> at = glib_getPosForWindow(size.x, size.y);
        EXPECT_GE(at.x, 0);
        if (size.y > s.height()) {
            EXPECT_EQ(at.y + std::min(size.y, 65535), s.height()) << "the top, with the title bar, stays on the screen";
            continue;
        }
        EXPECT_GE(at.y, 0);
        if (size.x > 0 && size.y > 0) {
            EXPECT_LE(at.x + size.x, s.width());
            EXPECT_LE(at.y + size.y, s.height());
        }
    }
    // A new panel larger than the screen is cut to it, so that all of it can be reached.
    TestKit::Owned<StandardPanel> huge(makeTopLevel<StandardPanel>(StandardPanel::InitArgs(5000, 3000), Glob::Centre(0, 0)));
    EXPECT_EQ(huge->box(), BoxInt(0, 0, s.width(), s.height()));
}
