#include "controls/Checkbox.h"
#include "ControlsTestSupport.h"
#include "value/ValAdaptor.h"

namespace {

class Checkboxes : public ControlsTest {
protected:
    Checkbox* box(bool state = false) { return add<Checkbox>(Checkbox::InitArgs(L"Loop playback", state, WidgetCallback("toggled"), 200, 24)); }
    // Pixels of the tick's colour inside the box.
    static int tickPixels(const Checkbox* c) {
        int side = Checkbox::boxSize(), y = (c->height() - side) / 2;
        std::uint32_t tick = TestKit::argb(c->getPalette().selection(kSelectionFocused));
        int n = 0;
        for (int yy = y + 3; yy < y + side - 3; ++yy)
            for (int x = 3; x < side - 3; ++x)
                if (similar(TestKit::globPixel(c, x, yy), tick, 40)) ++n;
        return n;
    }
};

} // namespace

TEST_F(Checkboxes, AClickTogglesTheTickAndTellsTheOwner) {
    Checkbox* c = box();
    EXPECT_EQ(tickPixels(c), 0);
    TestKit::click(TestKit::screenPointOf(c, {5, c->height() / 2}));
    EXPECT_TRUE(c->getState());
    EXPECT_GT(tickPixels(c), 8);
    EXPECT_EQ(host->messages, std::vector<std::string>{"toggled"});
    TestKit::click(TestKit::screenPointOf(c, {150, c->height() / 2})); // the label counts too
    TestKit::pump();
    EXPECT_FALSE(c->getState());
    EXPECT_EQ(tickPixels(c), 0);
    c->claimKbdFocus();
    TestKit::pressKey(Keys::Space);
    EXPECT_TRUE(c->getState());
    EXPECT_EQ(host->messages.size(), 3u);
}

TEST_F(Checkboxes, BoundToAValueItShowsAndChangesTheServer) {
    ValServer<bool> loop(true);
    Checkbox* c = box(false);
    c->setDataAdaptor(Zn::Ptr<ValAdaptorBase<bool>>(new ValAdaptor<bool, bool>(&loop)));
    c->getDataAdaptor()->forceWidgetUpdate(kRedraw);
    EXPECT_TRUE(c->getState());
    TestKit::click(TestKit::centreOf(c));
    EXPECT_FALSE(loop.value());
    EXPECT_FALSE(c->getState());
    loop = true;
    EXPECT_TRUE(c->getState());
    EXPECT_EQ(host->messages.size(), 1u) << "a change of the data is not a click";
}

TEST_F(Checkboxes, AManagerThatRefusesKeepsTheBoxAsItWas) {
    struct Refuse : ValManagerBase<bool> {
        bool requestValChange(ValServer<bool>*, bool&) override { return false; }
        void releaseServer(ValServer<bool>*) override {}
    } refuse;
    ValServer<bool> locked(false);
    locked.setManager(&refuse);
    Checkbox* c = box(false);
    c->setDataAdaptor(Zn::Ptr<ValAdaptorBase<bool>>(new ValAdaptor<bool, bool>(&locked)));
    TestKit::click(TestKit::centreOf(c));
    EXPECT_FALSE(locked.value());
    EXPECT_FALSE(c->getState());
    locked.setManager(nullptr);
}

TEST_F(Checkboxes, AnInactiveBoxIgnoresTheUser) {
    Checkbox* c = box(true);
    c->setEnabledState(false);
    EXPECT_FALSE(c->getEnabledState());
    TestKit::click(TestKit::centreOf(c));
    EXPECT_TRUE(c->getState());
    EXPECT_TRUE(host->messages.empty());
    EXPECT_EQ(tickPixels(c), 0) << "an inactive tick is drawn dimmed";
}
