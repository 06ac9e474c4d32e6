#include "Blocks.h"

#include "glob/GlobHandle.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"

#include <stdexcept>

using TestKit::Owned;

namespace {

class GlobLifetime : public TestKit::ScreenTest {};

// Asks for its own deletion from inside its message handler, and counts what it gets afterwards.
class SelfDeleting : public StandardPanel {
public:
    explicit SelfDeleting(int* deaths) : StandardPanel(50, 50), deaths_(deaths) {}
    ~SelfDeleting() override { ++*deaths_; }
    int handleMessageEvent(const LightweightString<char>& m, Glob*) override {
        if (m == "close") {
            GlobManager::instance().requestDeletion(this);
            GlobManager::instance().requestDeletion(this);
            // Still alive inside its own handler.
            aliveInHandler = is_good_glob_ptr(this);
        }
        ++handled;
        return 1;
    }
    bool aliveInHandler = false;
    int handled = 0;
    int* deaths_;
};

GlobKindRegistration registerBlock("TestBlock", [](const GlobCreationInfo& info) -> Glob* {
    Block::InitArgs a(info.width, info.height, Colour(0, 1, 0));
    a.canvas = info.canvas;
    return new Block(a);
});
GlobKindRegistration registerBroken("TestBroken", [](const GlobCreationInfo&) -> Glob* { throw std::runtime_error("no"); });

} // namespace

TEST_F(GlobLifetime, RequestDeletionWaitsForASafeMomentAndIsIdempotent) {
    int deaths = 0;
    auto* p = new SelfDeleting(&deaths);
    GlobManager::instance().realize(p);
    IdStamp stamp = p->stamp();
    sendMessage("close", p);
    sendMessage("after", p);
    TestKit::pump();
    EXPECT_EQ(deaths, 1);
    EXPECT_FALSE(EventHandler::valid(p, stamp));
    EXPECT_FALSE(is_good_glob_ptr(p));
    EXPECT_FALSE(GlobManager::instance().isRealized(p));
    // Asking again for a dead glob is harmless.
    GlobManager::instance().requestDeletion(p);
    TestKit::pump();
    EXPECT_EQ(deaths, 1);
}

TEST_F(GlobLifetime, DeletingAParentTakesItsChildrenAndLeavesNoDanglingReferences) {
    auto* root = makeRootPanel(100, 100);
    Block::InitArgs a(10, 10, Colour(1, 0, 0));
    Block* child = root->createWidget<Block>(a, Glob::BottomLeft(0, 0));
    child->focusable = true;
    set_kbd_focus(child);
    ASSERT_EQ(get_kbd_focus(), child);
    // Doomed twice over: itself, and through its parent, in one batch.
    GlobManager::instance().requestDeletion(child);
    GlobManager::instance().requestDeletion(root);
    TestKit::pump();
    EXPECT_FALSE(is_good_glob_ptr(child));
    EXPECT_FALSE(is_good_glob_ptr(root));
    EXPECT_EQ(get_kbd_focus(), nullptr);
    EXPECT_TRUE(GlobManager::instance().roots().empty());
}

TEST_F(GlobLifetime, StampsTellAReusedAddressFromTheOriginal) {
    Block::InitArgs a(10, 10, Colour(1, 0, 0));
    // Both made in the same storage, so that the second surely has the first one's address.
    void* storage = ::operator new(sizeof(Block));
    Block* first = new (storage) Block(a);
    IdStamp firstStamp = first->stamp();
    EXPECT_TRUE(EventHandler::valid(first, firstStamp));
    first->~Block();
    EXPECT_FALSE(EventHandler::valid(first, firstStamp));
    EXPECT_FALSE(is_good_glob_ptr(first));
    Block* second = new (storage) Block(a);
    ASSERT_EQ(static_cast<void*>(second), static_cast<void*>(first));
    EXPECT_FALSE(EventHandler::valid(second, firstStamp)) << "the stamp tells the newcomer from the original";
    EXPECT_TRUE(EventHandler::valid(second, second->stamp()));
    second->~Block();
    ::operator delete(storage);
    EXPECT_FALSE(is_good_glob_ptr(nullptr));
}

TEST_F(GlobLifetime, CreateGlobByKindName) {
    GlobCreationInfo info(30, 20);
    info.type = "TestBlock";
    Owned<Glob> g(GlobManager::instance().createGlob(info));
    ASSERT_NE(g.get(), nullptr);
    EXPECT_STREQ(g->idstring(), "Block");
    EXPECT_EQ(g->size(), XY<int>(30, 20));
    info.type = "NoSuchKind";
    EXPECT_EQ(GlobManager::instance().createGlob(info), nullptr);
    info.type = "TestBroken";
    EXPECT_EQ(GlobManager::instance().createGlob(info), nullptr);
    auto kinds = GlobManager::globKinds();
    EXPECT_NE(std::find(kinds.begin(), kinds.end(), LightweightString<char>("TestBlock")), kinds.end());
}

TEST_F(GlobLifetime, FindByStampAndByName) {
    auto* root = makeRootPanel(100, 100);
    Block::InitArgs a(10, 10, Colour(1, 0, 0));
    Block* child = root->createWidget<Block>(a, Glob::BottomLeft(0, 0));
    child->setName("timecode");
    EXPECT_EQ(GlobManager::instance().find(child->stamp()), child);
    EXPECT_EQ(GlobManager::instance().find(LightweightString<char>("timecode")), child);
    EXPECT_EQ(GlobManager::instance().find(LightweightString<char>("StandardPanel")), root);
    EXPECT_EQ(GlobManager::instance().find(LightweightString<char>("")), nullptr);
    EXPECT_EQ(GlobManager::instance().find(IdStamp(1, 2, 3)), nullptr);
}

TEST_F(GlobLifetime, AGlobAddedToItselfStopsADebugBuildAndIsRefusedInRelease) {
    Owned<StandardPanel> outer(makeRootPanel(100, 100));
    auto* inner = new StandardPanel(50, 50);
    outer->addChild(inner, Glob::BottomLeft(0, 0));
    Glob* outerGlob = outer.get();
    EXPECT_MOSAIC_ASSERT(inner->addChild(outerGlob, Glob::BottomLeft(0, 0)), "a glob added to itself");
    EXPECT_MOSAIC_ASSERT(inner->addChild(inner, Glob::BottomLeft(0, 0)), "a glob added to itself");
    outer->setReparentable(true);
    EXPECT_MOSAIC_ASSERT(outer->reparentTo(inner), "a glob moved into itself");
    EXPECT_EQ(outer->parent(), nullptr);
    EXPECT_EQ(inner->numChildren(), 0u);
    // A top-level glob added to a parent leaves the screen and shares the parent's canvas.
    auto* other = makeRootPanel(20, 20);
    inner->addChild(other, Glob::BottomLeft(0, 0));
    EXPECT_FALSE(GlobManager::instance().isRealized(other));
    EXPECT_EQ(other->canvas(), outer->canvas());
}

TEST_F(GlobLifetime, AHandleNeverTouchesAGoneOrReplacedWidgetAndOnlyItsOwnerDeletes) {
    GlobCreationInfo info(10, 10);
    // Two widgets made one after the other in the same storage, so that the second
    // surely takes the first one's address.
    void* storage = ::operator new(sizeof(Glob));
    auto* first = new (storage) Glob(info);
    GlobHandle<Glob> handle(first);
    EXPECT_EQ(handle.get(), first);
    first->~Glob();
    EXPECT_FALSE(handle.valid());
    auto* other = new (storage) Glob(info);
    ASSERT_EQ(static_cast<void*>(other), static_cast<void*>(first));
    const IdStamp otherStamp = other->stamp();
    EXPECT_EQ(handle.get(), nullptr) << "the widget at the old address is not the handle's";
    handle.deleteGlob();
    EXPECT_TRUE(EventHandler::valid(other, otherStamp)) << "nor is it the handle's to delete";
    EXPECT_FALSE(handle.stamp().valid());
    other->~Glob();
    ::operator delete(storage);

    Glob* owned = new Glob(info);
    const IdStamp ownedStamp = owned->stamp();
    {
        GlobHandle<Glob> owner(owned, true);
        GlobHandle<Glob> copy(owner);
        EXPECT_FALSE(copy.isOwning());
        GlobHandle<Glob> moved(std::move(owner));
        EXPECT_FALSE(owner.valid());
        copy.reset();
        EXPECT_TRUE(moved.valid()) << "a copy going deletes nothing";
    }
    EXPECT_FALSE(EventHandler::valid(owned, ownedStamp)) << "an owning handle deletes its widget, once";
}
