#include "glob/CanvasStack.h"
#include "controls/StandardPanel.h"
#include "draw/Canvas.h"
#include "glob/FileDrag.h"
#include "glob/GlobManager.h"
#include "glob/InputDispatcher.h"
#include "testing/TestKit.h"

#include <gtest/gtest.h>

namespace {

StandardPanel* panelAt(XY<int> at) {
    StandardPanel::InitArgs a(80, 60);
    return TestKit::realize(new StandardPanel(a), at);
}

} // namespace

TEST(CanvasStack, TheTopmostCanvasIsTheLastRealizedUntilAnotherIsPoppedUp) {
    StandardPanel* low = panelAt({10, 10});
    StandardPanel* high = panelAt({200, 10});
    EXPECT_TRUE(canvas_is_topmost(high->canvas()));
    EXPECT_FALSE(canvas_is_topmost(low->canvas()));
    canvas_pop_to_top(low->canvas(), false);
    EXPECT_TRUE(canvas_is_topmost(low->canvas()));
    EXPECT_EQ(GlobManager::instance().roots().back(), low);
    EXPECT_FALSE(canvas_is_topmost(nullptr));
    Canvas stray(10, 10);
    canvas_pop_to_top(&stray, true);
    canvas_pop_to_top(nullptr, true);
    EXPECT_TRUE(canvas_is_topmost(low->canvas())) << "unknown canvases change nothing";
    TestKit::reset();
}

TEST(CanvasStack, TheMousePositionIsKnownAndLettingGoEndsTheCapture) {
    StandardPanel* p = panelAt({300, 300});
    XY<int> inside = TestKit::centreOf(p);
    TestKit::mouseMove(inside);
    EXPECT_EQ(glib_getMousePos(), inside);
    TestKit::mouseDown(inside);
    EXPECT_EQ(GlobManager::instance().input().capture(), p) << "a press captures the mouse";
    mouse_canvas_connect(p->canvas());
    EXPECT_EQ(GlobManager::instance().input().capture(), p) << "only letting go is done here";
    mouse_canvas_connect(nullptr);
    EXPECT_EQ(GlobManager::instance().input().capture(), nullptr);
    TestKit::mouseUp(inside);
    TestKit::reset();
}

TEST(CanvasStack, FilesAreDraggedOutOnlyThroughAnInstalledHandler) {
    EXPECT_FALSE(Glib::dragFilesToOS({L"/tmp/a.mov"})) << "headless there is nobody to drag to";
    std::vector<LightweightString<wchar_t>> got;
    Glib::setFileDragHandler([&](const std::vector<LightweightString<wchar_t>>& paths) {
        got = paths;
        return true;
    });
    EXPECT_FALSE(Glib::dragFilesToOS({})) << "no files, no drag";
    EXPECT_TRUE(got.empty());
    EXPECT_TRUE(Glib::dragFilesToOS({L"/tmp/a.mov", L"/tmp/b.mov"}));
    EXPECT_EQ(got.size(), 2u);
    Glib::setFileDragHandler({});
    EXPECT_FALSE(Glib::dragFilesToOS({L"/tmp/a.mov"}));
}
