// The panel tested headless with the test kit, as an application tests its own:
// widgets found by name, typed into and clicked, and the panel's picture compared
// with a reference (MOSAIC_UPDATE_REFERENCES=1 remakes it).
#include "ClipNamePanel.h"

#include "controls/TextBox.h"
#include "testkit/TestKit.h"

#include <gtest/gtest.h>

class ClipNamePanelTest : public TestKit::ScreenTest {
protected:
    void SetUp() override { panel = TestKit::realize(new ClipNamePanel(L"clip_01")); }
    ClipNamePanel* panel = nullptr;
};

TEST_F(ClipNamePanelTest, TypingANameAndPressingRenameRenamesTheClip) {
    ASSERT_TRUE(TestKit::typeInto("name", L"Opening shot"));
    ASSERT_TRUE(TestKit::click("rename"));
    EXPECT_EQ(panel->clipName(), L"Opening shot");
    EXPECT_TRUE(TestKit::matchesReference(panel, CLIP_NAME_REFERENCES "/renamed.png"));
}

TEST_F(ClipNamePanelTest, ABlankNameIsRefusedAndTheBoxShowsTheOldOneAgain) {
    TestKit::typeInto("name", L"   ");
    TestKit::click("rename");
    EXPECT_EQ(panel->clipName(), L"clip_01");
    EXPECT_EQ(TestKit::find<TextBox>("name")->getString(), L"clip_01");
}
