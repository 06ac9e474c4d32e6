#include "GalleryProbe.h"
#include "GalleryTestSupport.h"

#include "controls/Checkbox.h"
#include "controls/DropDownMenuButton.h"
#include "controls/Menu.h"
#include "controls/Slider.h"
#include "controls/TextBox.h"
#include "draw/Screen.h"
#include "platform/EditorPreferences.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

class Probe : public GalleryTest {
protected:
    void SetUp() override {
        dir = std::filesystem::temp_directory_path() / ("gallery-probe-" + std::to_string(::getpid()));
        std::filesystem::create_directories(dir);
        report = (dir / "report.txt").string();
    }
    void TearDown() override {
        std::filesystem::remove_all(dir);
        GalleryTest::TearDown();
    }

    std::string reportText() const {
        std::ifstream in(report);
        std::stringstream s;
        s << in.rdbuf();
        return s.str();
    }
    bool reports(const std::string& line) const { return ("\n" + reportText()).find("\n" + line + "\n") != std::string::npos; }

    template <class F>
    static std::string printed(F print) {
        std::FILE* f = std::tmpfile();
        print(f);
        std::rewind(f);
        std::string out;
        for (int c; (c = std::fgetc(f)) != EOF;) out += static_cast<char>(c);
        std::fclose(f);
        return out;
    }

    std::filesystem::path dir;
    std::string report;
};

} // namespace

TEST_F(Probe, NamedWidgetsAndRootsAreListedInTopDownWindowCoordinates) {
    ASSERT_TRUE(build("controls"));
    Checkbox* loop = TestKit::find<Checkbox>("loop");
    ASSERT_TRUE(loop);
    const int h = GlobManager::instance().screen().height();
    XY<int> at = loop->screenPos();
    std::string widgets = printed(GalleryProbe::printWidgets);
    std::string expected = "widget loop Checkbox " + std::to_string(at.x) + " " + std::to_string(h - at.y - loop->height()) + " " +
                           std::to_string(loop->width()) + " " + std::to_string(loop->height()) + "\n";
    EXPECT_NE(widgets.find(expected), std::string::npos) << widgets;
    for (const char* name : {"loop-twin", "clip-name", "clip-label", "magnify", "overlay", "picture"})
        EXPECT_NE(widgets.find(std::string("widget ") + name + " "), std::string::npos) << name;

    std::string roots = printed(GalleryProbe::printRoots);
    int x, y, w, hh, cx, cy;
    ASSERT_EQ(std::sscanf(roots.c_str(), "root ControlsPanel %d %d %d %d close %d %d", &x, &y, &w, &hh, &cx, &cy), 6) << roots;
    EXPECT_TRUE(cx > x && cx < x + w && cy > y && cy < y + hh) << "the close box lies inside its panel";
}

TEST_F(Probe, ReportFollowsClicksAndTypingAndKeepsTheValuesOfAClosedPanel) {
    ASSERT_TRUE(build("controls"));
    GalleryProbe probe(report);
    ASSERT_TRUE(probe.capture());
    EXPECT_TRUE(reports("value loop Checkbox on"));
    EXPECT_TRUE(reports("value overlay ImageButton on")) << "the latching icon button starts latched";
    EXPECT_TRUE(reports("value clip-label TextLabel No name yet"));
    EXPECT_TRUE(reports("focus -"));

    TestKit::click(TestKit::find("loop"));
    TestKit::pump();
    TestKit::click(TestKit::find("clip-name"));
    TestKit::typeText(L"h\u00e9llo 42");
    TestKit::pump();
    ASSERT_TRUE(probe.capture());
    EXPECT_TRUE(reports("value loop Checkbox off"));
    EXPECT_TRUE(reports("value loop-twin Checkbox off")) << "both boxes show one value";
    EXPECT_TRUE(reports("value clip-name TextBox h\xc3\xa9llo 42")) << "text is written as UTF-8";
    EXPECT_TRUE(reports("value clip-label TextLabel No name yet")) << "nothing is committed before Return";
    EXPECT_TRUE(reports("focus clip-name"));

    TestKit::pressKey(Keys::Return);
    TestKit::pump();
    ASSERT_TRUE(probe.capture());
    EXPECT_TRUE(reports("value clip-label TextLabel Named: h\xc3\xa9llo 42"));

    TestKit::reset();
    ASSERT_TRUE(probe.capture());
    EXPECT_TRUE(reports("value clip-name TextBox h\xc3\xa9llo 42")) << "a closed panel's values stay in the report";
    EXPECT_TRUE(reports("focus -"));
    EXPECT_FALSE(std::filesystem::exists(report + ".part")) << "the report is replaced whole";
}

TEST_F(Probe, ValuesAreOneLineAndGlobsWithoutValueGiveNone) {
    ASSERT_TRUE(build("controls"));
    auto* box = TestKit::find<TextBox>("clip-name");
    ASSERT_TRUE(box);
    box->setString(L"two\nlines");
    EXPECT_EQ(GalleryProbe::valueOf(box), std::optional<std::string>("two\\nlines"));
    EXPECT_FALSE(GalleryProbe::valueOf(TestKit::find("picture"))) << "a picture holds no value";
    EXPECT_FALSE(GalleryProbe::valueOf(TestKit::find("magnify"))) << "a button that does not latch holds no value";
    EXPECT_FALSE(GalleryProbe::valueOf(nullptr));
    Slider* frames = nullptr;
    for (Glob* g : GlobManager::instance().roots()[0]->getChildren())
        if (!frames) frames = dynamic_cast<Slider*>(g);
    ASSERT_TRUE(frames);
    EXPECT_EQ(GalleryProbe::valueOf(frames), std::optional<std::string>("12"));
}

TEST_F(Probe, AReportThatCannotBeWrittenFailsAndNoReportIsANoOp) {
    ASSERT_TRUE(build("controls"));
    GalleryProbe unwritable((dir / "missing" / "report.txt").string());
    EXPECT_FALSE(unwritable.capture());
    GalleryProbe none;
    EXPECT_FALSE(none.reporting());
    EXPECT_TRUE(none.capture());
}

TEST_F(Probe, TheMediaSceneReportsItsChoicesAndTheCompressionFollowsTheFileType) {
    ASSERT_TRUE(build("media"));
    GalleryProbe probe(report);
    ASSERT_TRUE(probe.capture());
    EXPECT_TRUE(reports("value format ShotVideoMetadataButton 1080i 50")) << reportText();
    EXPECT_TRUE(reports("value fileType FileFormatButton AVI"));
    EXPECT_TRUE(reports("value compression DropDownMenuButton MPEG-2 I-frame HD"));
    EXPECT_TRUE(reports("value frameRate DropDownMenuButton 25"));

    // DV has no 1080 lines: choosing it by mouse leaves no compression.
    auto* fileType = TestKit::find<DropDownMenuButton>("fileType");
    ASSERT_TRUE(fileType);
    TestKit::click(TestKit::centreOf(fileType));
    Menu* menu = fileType->getMenu();
    ASSERT_TRUE(menu);
    const auto& rows = fileType->getItems();
    const auto dv = std::find_if(rows.begin(), rows.end(), [](const MenuItem& m) { return m.text().getString() == L"DV"; });
    ASSERT_NE(dv, rows.end());
    const BoxInt box = menu->rowBox(static_cast<int>(dv - rows.begin()));
    TestKit::click(TestKit::screenPointOf(menu, {(box.x1 + box.x2) / 2, (box.y1 + box.y2) / 2}));
    TestKit::pump();
    EXPECT_FALSE(TestKit::find("compression")->isActive());
    ASSERT_TRUE(probe.capture());
    EXPECT_TRUE(reports("value fileType FileFormatButton DV"));
}

TEST_F(Probe, TheMediaSceneStoresTheChosenDeviceAndItsOutputFormat) {
    ASSERT_TRUE(build("media"));
    auto choose = [](const char* name, const std::wstring& text) {
        auto* b = TestKit::find<DropDownMenuButton>(name);
        ASSERT_TRUE(b);
        TestKit::click(TestKit::centreOf(b));
        Menu* menu = b->getMenu();
        ASSERT_TRUE(menu);
        const auto& rows = b->getItems();
        const auto it = std::find_if(rows.begin(), rows.end(), [&](const MenuItem& m) { return m.text().getString() == text.c_str(); });
        ASSERT_NE(it, rows.end());
        const BoxInt box = menu->rowBox(static_cast<int>(it - rows.begin()));
        TestKit::click(TestKit::screenPointOf(menu, {(box.x1 + box.x2) / 2, (box.y1 + box.y2) / 2}));
        TestKit::pump();
    };
    choose("device", L"Test Device 1");
    EXPECT_EQ(prefs().getPreference("HardwareIODevice", ""), "Test Device 1");
    choose("outputFormat", L"1080p 25");
    const LightweightString<char> stored = prefs().getPreference("HardwareIOFormat:Test Device 1", "");
    EXPECT_NE(stored.view().find("\"uid\": \"27\""), std::string_view::npos) << stored.c_str();
    EXPECT_TRUE(TestKit::find("drive"));
}
