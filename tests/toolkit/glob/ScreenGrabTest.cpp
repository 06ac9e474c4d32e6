#include "Blocks.h"

#include <algorithm>
#include <array>

#include "core/FunctionCallback.h"
#include "core/WrappedData.h"
#include "draw/Screen.h"
#include "glob/InputDispatcher.h"
#include "glob/MouseListeners.h"
#include "glob/getEventInterceptStack.h"
#include "glob/glib_getScreenRect.h"
#include "image/iPixelGuard.h"

using TestKit::Owned;

namespace {

class ScreenGrabs : public TestKit::ScreenTest {};
class Interception : public TestKit::ScreenTest {};

// Blue, green, red of a grabbed pixel at column x of row y from the top.
std::array<int, 3> bgrAt(const iPixelGuard& g, int x, int y) { return {g.at(x, y)[0], g.at(x, y)[1], g.at(x, y)[2]}; }

struct Swallower : FilterStackable<Event> {
    std::vector<Event> seen;
    bool fsFilterThis(const Event& e, void*) override {
        seen.push_back(e);
        return true;
    }
};

} // namespace

TEST_F(ScreenGrabs, AGrabHoldsTheComposedPixelsInBlueGreenRedOrderTopRowFirst) {
    Owned<StandardPanel> p(makeRootPanel(40, 40, {200, 300}, Colour(1.0, 0.0, 0.0)));
    Block::InitArgs a(10, 10, Colour(0.0, 0.0, 1.0));
    p->createWidget<Block>(a, Glob::BottomLeft(0, 30));
    TestKit::pump();

    auto guard = iPixelGuard::lock(glib_getScreenRect(BoxInt(195, 325, 205, 335)));
    ASSERT_TRUE(guard);
    EXPECT_EQ(guard->size(), XY<int>(10, 10));
    EXPECT_EQ(bgrAt(*guard, 7, 0), (std::array<int, 3>{255, 0, 0})) << "the blue block, top right of the area";
    EXPECT_EQ(bgrAt(*guard, 7, 9), (std::array<int, 3>{0, 0, 255})) << "red below the block";

    // The screen is composed anew when a panel has painted since.
    p->setCol(Colour(0.0, 1.0, 0.0), true);
    guard = iPixelGuard::lock(glib_getScreenRect(BoxInt(230, 300, 231, 301)));
    ASSERT_TRUE(guard);
    EXPECT_EQ(bgrAt(*guard, 0, 0), (std::array<int, 3>{0, 255, 0}));
}

TEST_F(ScreenGrabs, AnAreaOverTheEdgeKeepsItsSizeAndAnEmptyAreaGivesNothing) {
    const int w = GlobManager::instance().screen().width();
    auto guard = iPixelGuard::lock(glib_getScreenRect(BoxInt(w - 2, -3, w + 4, 3)));
    ASSERT_TRUE(guard);
    EXPECT_EQ(guard->size(), XY<int>(6, 6));
    EXPECT_EQ(guard->at(5, 0)[3], 0) << "off the screen is transparent";
    EXPECT_EQ(guard->at(0, 0)[3], 255);
    EXPECT_FALSE(glib_getScreenRect(BoxInt(10, 10, 10, 20)));
    EXPECT_FALSE(glib_getScreenRect(BoxInt(10, 10, 5, 20)));
    EXPECT_FALSE(iPixelGuard::lock(Zn::Ptr<iImage>()));
}

TEST_F(Interception, AnInterceptorTakesMouseAndKeysBeforeAnyGlobUntilItIsPopped) {
    Owned<StandardPanel> p(makeRootPanel(100, 100, {100, 100}));
    Block::InitArgs a(100, 100, Colour(1, 0, 0));
    Block* b = p->createWidget<Block>(a, Glob::BottomLeft(0, 0));
    Swallower s;
    const IdStamp id = getEventInterceptStack().push(&s, nullptr);
    TestKit::click({150, 150});
    TestKit::pressKey(Keys::Escape);
    EXPECT_TRUE(b->events.empty());
    ASSERT_FALSE(s.seen.empty());
    EXPECT_EQ(s.seen[0].screenPos(), XY<int>(150, 150));
    auto count = [&](Event::Type t) { return std::count_if(s.seen.begin(), s.seen.end(), [t](const Event& e) { return e.type() == t; }); };
    EXPECT_EQ(count(Event::kMouseDown), 1);
    EXPECT_EQ(count(Event::kMouseUp), 1);
    EXPECT_EQ(count(Event::kKeyPress), 1);
    EXPECT_EQ(GlobManager::instance().input().mousePos(), XY<int>(150, 150)) << "the pointer is followed all the same";

    EXPECT_TRUE(getEventInterceptStack().pop(id));
    TestKit::click({150, 150});
    EXPECT_FALSE(b->events.empty());
}

TEST_F(Interception, MouseListenersHearEveryMouseEventEvenASwallowedOneUntilReleased) {
    std::vector<Event> heard;
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> cb(new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([&](const NotifyMsg& m) {
        if (auto e = m.dataAs<WrappedData<Event>>()) heard.push_back(e->get());
        return 0;
    })));
    const std::size_t before = MouseListeners::count();
    auto guard = Glib::addMouseListener(cb);
    auto second = Glib::addMouseListener(cb);
    EXPECT_EQ(MouseListeners::count(), before + 2);
    Swallower s;
    const IdStamp id = getEventInterceptStack().push(&s, nullptr);
    TestKit::mouseMove({40, 50});
    getEventInterceptStack().pop(id);
    ASSERT_EQ(heard.size(), 2u);
    EXPECT_EQ(heard[0].screenPos(), XY<int>(40, 50));

    second.reset();
    TestKit::pressKey(Keys::Escape);
    TestKit::mouseMove({41, 50});
    EXPECT_EQ(heard.size(), 3u) << "keys are not told, and a released listener hears nothing";
    guard->release();
    EXPECT_EQ(MouseListeners::count(), before);
    EXPECT_FALSE(Glib::addMouseListener(nullptr));
}
