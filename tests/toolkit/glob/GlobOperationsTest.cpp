#include "Blocks.h"

#include "draw/Screen.h"
#include "glob/GlobManager.h"
#include "glob/InputDispatcher.h"

using TestKit::Owned;

namespace {

class GlobOperations : public TestKit::ScreenTest {};

class Interceptor : public StandardPanel {
public:
    Interceptor() : StandardPanel(200, 200) {}
    int intercept(const Event& e) override {
        seen.push_back(e.type());
        return swallow;
    }
    void handle_it(bool isIt) override { itChanges.push_back(isIt); }
    void glob_tidy() override {
        ++tidied;
        tidiedWhileAlive += is_good_glob_ptr(this);
    }
    static inline int tidiedWhileAlive = 0;
    std::vector<int> seen;
    std::vector<bool> itChanges;
    int swallow = 0;
    int tidied = 0;
};

} // namespace

TEST_F(GlobOperations, SurroundPaintsAFrameAndRemovingItRestoresTheParent) {
    Owned<StandardPanel> p(makeRootPanel(100, 100, {0, 0}, Colour(0, 0, 0)));
    Block::InitArgs a(40, 40, Colour(0, 0, 1));
    Block* b = p->createWidget<Block>(a, Glob::BottomLeft(10, 10));
    b->addSurround(Colour(1, 1, 0), 3, 1.0f, 15);
    EXPECT_TRUE(b->hasSurround());
    EXPECT_TRUE(TestKit::pixelNear(b, 0, 20, 0xFFFFFF00));
    EXPECT_TRUE(TestKit::pixelNear(b, 2, 20, 0xFFFFFF00));
    EXPECT_TRUE(TestKit::pixelNear(b, 3, 20, 0xFF0000FF));
    EXPECT_TRUE(TestKit::pixelNear(b, 20, 39, 0xFFFFFF00));
    b->removeSurround();
    EXPECT_FALSE(b->hasSurround());
    EXPECT_TRUE(TestKit::pixelNear(b, 0, 20, 0xFF0000FF));
}

TEST_F(GlobOperations, ShadowAndOpacityShowOnTheScreen) {
    auto* p = makeRootPanel(50, 50, {100, 100}, Colour(1, 1, 1));
    TestKit::pump();
    std::uint32_t desktop = TestKit::screenPixel(152, 98);
    p->addShadow();
    GlobManager::instance().screenChanged();
    std::uint32_t shaded = TestKit::screenPixel(152, 98);
    EXPECT_NE(shaded, desktop);
    EXPECT_LT(shaded & 0xFF, desktop & 0xFF);
    p->setOpacity(0.5);
    std::uint32_t half = TestKit::screenPixel(120, 120);
    EXPECT_GT(half & 0xFF, 0x60u);
    EXPECT_LT(half & 0xFF, 0xA0u);
    p->setOpacity(7.0);
    EXPECT_EQ(p->opacity(), 1.0);
}

TEST_F(GlobOperations, StartMovingCarriesThePanelWithTheMouse) {
    auto* p = makeRootPanel(80, 60, {200, 200});
    p->startMoving({210, 210});
    TestKit::mouseMove({260, 230});
    EXPECT_EQ(XY<int>(p->getX(), p->getY()), XY<int>(250, 220));
    TestKit::mouseUp({270, 230});
    EXPECT_EQ(XY<int>(p->getX(), p->getY()), XY<int>(260, 220));
    TestKit::mouseMove({400, 400});
    EXPECT_EQ(p->getX(), 260) << "the move ends with the button";
}

TEST_F(GlobOperations, AncestorsInterceptBeforeTheTarget) {
    auto* root = TestKit::realize(new Interceptor, {0, 0});
    Block::InitArgs a(50, 50, Colour(1, 0, 0));
    Block* b = root->createWidget<Block>(a, Glob::BottomLeft(0, 0));
    TestKit::click({10, 10});
    EXPECT_FALSE(root->seen.empty());
    EXPECT_FALSE(b->events.empty());
    root->swallow = 1;
    b->events.clear();
    TestKit::click({10, 10});
    EXPECT_TRUE(b->events.empty());
    EXPECT_EQ(root->itChanges, std::vector<bool>{true});
    GlobManager::instance().requestDeletion(root);
    TestKit::pump();
}

TEST_F(GlobOperations, GlobTidyRunsBeforeADeferredDeletion) {
    auto* root = new Interceptor;
    GlobManager::instance().realize(root);
    IdStamp s = root->stamp();
    int before = Interceptor::tidiedWhileAlive;
    GlobManager::instance().requestDeletion(root);
    EXPECT_EQ(root->tidied, 0);
    TestKit::pump();
    EXPECT_FALSE(EventHandler::valid(root, s));
    EXPECT_EQ(Interceptor::tidiedWhileAlive, before + 1);
}

TEST_F(GlobOperations, ReparentingNeedsConsentAndKeepsThePlace) {
    Owned<StandardPanel> a(makeRootPanel(100, 100));
    Owned<StandardPanel> b(makeRootPanel(100, 100, {300, 100}));
    Block::InitArgs args(10, 10, Colour(1, 0, 0));
    Block* child = a->createWidget<Block>(args, Glob::BottomLeft(5, 6));
    EXPECT_FALSE(child->reparentTo(b.get()));
    child->setReparentable(true);
    EXPECT_TRUE(child->reparentTo(b.get()));
    EXPECT_EQ(child->parent(), b.get());
    EXPECT_EQ(child->canvas(), b->canvas());
    EXPECT_EQ(XY<int>(child->getX(), child->getY()), XY<int>(5, 6));
    EXPECT_EQ(a->numChildren(), 0u);
    EXPECT_FALSE(b->reparentTo(child)) << "never into its own subtree";
}

TEST_F(GlobOperations, PersistenceRoundTripsPlaceAndSizeAndIgnoresGarbage) {
    Owned<StandardPanel> p(makeRootPanel(120, 90, {40, 50}));
    configb saved;
    p->dump(saved);
    EXPECT_TRUE(saved.empty()) << "not persistable";
    p->setPersistable(true);
    p->dump(saved);
    EXPECT_EQ(saved.get("width"), "120");
    p->resize(10, 10);
    p->setupRootPos({0, 0});
    p->load(saved);
    EXPECT_EQ(p->box(), BoxInt(40, 50, 160, 140));
    configb bad;
    bad.set("width", LightweightString<char>("wide"));
    bad.set("x", LightweightString<char>("-99999"));
    p->load(bad);
    EXPECT_EQ(p->width(), 120);
    EXPECT_EQ(p->getX(), 0) << "kept on the screen";
}

TEST_F(GlobOperations, SizeStatesMaximiseMinimiseAndRestore) {
    Owned<StandardPanel> p(makeRootPanel(120, 90, {40, 50}));
    p->setSizeState(Glob::kMaximised);
    EXPECT_EQ(p->size(), XY<int>(GlobManager::instance().screen().width(), GlobManager::instance().screen().height()));
    EXPECT_EQ(p->oldWidth(), 120);
    p->setSizeState(Glob::kMinimised);
    EXPECT_FALSE(p->isVisible());
    p->setSizeState(Glob::kNormalSize);
    EXPECT_EQ(p->box(), BoxInt(40, 50, 160, 140));
    EXPECT_TRUE(p->isVisible());
}

TEST_F(GlobOperations, SiblingVisitorsSeeOlderAndYoungerInOrder) {
    Owned<StandardPanel> p(makeRootPanel(100, 100));
    std::vector<Glob*> kids;
    for (int i = 0; i < 4; ++i) {
        Block::InitArgs a(10, 10, Colour(1, 0, 0));
        kids.push_back(p->createWidget<Block>(a, Glob::BottomLeft(i * 10, 0)));
    }
    std::vector<Glob*> older, younger, all, post;
    kids[2]->visitOlderSiblings([&](Glob* g) {
        older.push_back(g);
        return true;
    });
    kids[2]->visitYoungerSiblings([&](Glob* g) {
        younger.push_back(g);
        return true;
    });
    kids[2]->visitSiblings([&](Glob* g) {
        all.push_back(g);
        return true;
    });
    p->visitPostOrder([&](Glob* g) { post.push_back(g); });
    EXPECT_EQ(older, (std::vector<Glob*>{kids[0], kids[1]}));
    EXPECT_EQ(younger, (std::vector<Glob*>{kids[3]}));
    EXPECT_EQ(all, (std::vector<Glob*>{kids[0], kids[1], kids[3]}));
    ASSERT_EQ(post.size(), 5u);
    EXPECT_EQ(post.back(), p.get());
}
