// The test kit as an application uses it: widgets found and driven by name, and
// pictures compared with references.
#include "testkit/TestKit.h"
#include "controls/Checkbox.h"
#include "controls/Slider.h"
#include "controls/StandardPanel.h"
#include "controls/TextBox.h"
#include "core/Utf8.h"
#include "image/HostImage.h"
#include "testkit/TestHome.h"

#include <gtest/gtest-spi.h>

#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

class Kit : public TestKit::ScreenTest {
protected:
    void SetUp() override {
        panel = TestKit::realize(new StandardPanel(StandardPanel::InitArgs(320, 140)));
        Checkbox::InitArgs box(L"Loop", false, WidgetCallback("toggled"), 120, 24);
        loop = panel->createWidget<Checkbox>(box, Glob::UserBottomLeft(10, 10));
        loop->setName("loop");
        TextBox::InitArgs text(UIString(L"untitled"), 160, 24);
        title = panel->createWidget<TextBox>(text, Glob::UserBottomLeft(10, 44));
        title->setName("title");
        Slider::InitArgs slider(Colour(0.9, 0.3, 0.1), 200);
        gain = panel->createWidget<Slider>(slider, Glob::UserBottomLeft(10, 78));
        gain->setName("gain");
        TestKit::pump();
    }

    StandardPanel* panel = nullptr;
    Checkbox* loop = nullptr;
    TextBox* title = nullptr;
    Slider* gain = nullptr;
};

} // namespace

TEST_F(Kit, WidgetsFoundByNameTakeClicksTypingAndDrags) {
    EXPECT_EQ(TestKit::find<Checkbox>("loop"), loop);
    EXPECT_EQ(TestKit::find<TextBox>("loop"), nullptr) << "a widget of another class is not the one asked for";
    EXPECT_TRUE(TestKit::click("loop"));
    EXPECT_TRUE(loop->getState());
    EXPECT_TRUE(TestKit::typeInto("title", L"Night shoot"));
    EXPECT_EQ(title->getString(), L"Night shoot") << "the typing replaces the text";
    const double before = gain->getPosition();
    EXPECT_TRUE(TestKit::drag("gain", {60, 0}));
    EXPECT_GT(gain->getPosition(), before);
}

TEST_F(Kit, InputForANameThatFindsNothingFailsTheTestAndSendsNothing) {
    bool sent = true;
    EXPECT_NONFATAL_FAILURE(sent = TestKit::click("lopo"), "no widget named \"lopo\"");
    EXPECT_FALSE(sent);
    EXPECT_NONFATAL_FAILURE(sent = TestKit::typeInto("tilte", L"x"), "no widget named \"tilte\"");
    EXPECT_FALSE(sent);
    EXPECT_FALSE(loop->getState());
    EXPECT_EQ(title->getString(), L"untitled");
}

TEST_F(Kit, APictureIsComparedWithItsReferenceAndAMismatchIsWrittenBesideIt) {
    const fs::path reference = TestKit::TestHome::path() / "references" / "panel.png";
    const fs::path err = reference.parent_path() / "panel_err.png";
    EXPECT_FALSE(TestKit::matchesReference(panel, reference.string())) << "there is no reference yet";
    EXPECT_TRUE(fs::exists(err));

    setenv("MOSAIC_UPDATE_REFERENCES", "1", 1);
    EXPECT_TRUE(TestKit::matchesReference(panel, reference.string()));
    unsetenv("MOSAIC_UPDATE_REFERENCES");
    EXPECT_FALSE(fs::exists(err)) << "remaking the reference clears the old mismatch";
    EXPECT_TRUE(TestKit::matchesReference(panel, reference.string()));

    loop->setState(true);
    TestKit::pump();
    EXPECT_FALSE(TestKit::matchesReference(panel, reference.string())) << "the tick shows";
    Zn::Ptr<iHostImage> written = HostImage::loadPNG(fromUTF8(err.string().c_str()));
    ASSERT_TRUE(written);
    EXPECT_EQ(written->getSize(), panel->size());
    loop->setState(false);
    TestKit::pump();
    EXPECT_TRUE(TestKit::matchesReference(panel, reference.string()));
    EXPECT_FALSE(fs::exists(err)) << "a pass clears the mismatch";
}

TEST_F(Kit, ATickedCheckboxLooksAsItsReference) {
    TestKit::click("loop");
    EXPECT_TRUE(TestKit::matchesReference(loop, MOSAIC_TEST_DATA "/references/ticked-checkbox.png"));
}
