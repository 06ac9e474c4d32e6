// mosaic-gallery run headless on a command it opens by name.
#include "draw/UifStd.h"
#include "image/HostImage.h"
#include "testkit/TestKit.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

namespace {

TestKit::ProgramRun gallery(const std::filesystem::path& dir, const std::string& arguments) {
    return TestKit::runProgram("env -u DISPLAY MOSAIC_HOME='" + dir.string() + "' '" MOSAIC_GALLERY_PROGRAM "' " + arguments + " 2>&1");
}

// The rectangle, bottom-up, of the first widget of `kind` that --print-widgets listed.
BoxInt rectangleOf(const std::string& listing, const std::string& kind, int screenHeight) {
    std::istringstream lines(listing);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string word, name, idstring;
        int x = 0, top = 0, w = 0, h = 0;
        if (words >> word >> name >> idstring >> x >> top >> w >> h && word == "widget" && idstring == kind)
            return BoxInt(x, screenHeight - top - h, x + w, screenHeight - top);
    }
    return {};
}

} // namespace

TEST(GalleryProgram, ACommandOpensByNameAndItsPictureShowsWhatItOpened) {
    const auto dir = std::filesystem::temp_directory_path() / ("gallery-command-" + std::to_string(::getpid()));
    const TestKit::ProgramRun shown = gallery(dir, "--command ShowLog --screenshots '" + dir.string() + "' --print-widgets");
    ASSERT_EQ(shown.status, 0) << shown.output;
    const std::string png = (dir / "ShowLog.png").string();
    EXPECT_NE(shown.output.find(png), std::string::npos) << shown.output;
    EXPECT_NE(shown.output.find("widget - PushButton "), std::string::npos) << "widgets are listed by idstring, unnamed ones too";

    Zn::Ptr<iHostImage> picture = HostImage::loadPNG(LightweightString<wchar_t>(std::wstring(png.begin(), png.end())));
    ASSERT_TRUE(picture);
    const BoxInt table = rectangleOf(shown.output, "TableWidget", picture->height());
    ASSERT_GT(table.width() * table.height(), 0) << shown.output;
    // The sample log's plain rows, in the scheme's text colour, on the log's table.
    EXPECT_GT(TestKit::countPixels(*picture, table, UifStd::instance().getColourScheme().text(), 40), 200);

    const TestKit::ProgramRun unknown = gallery(dir, "--command NoSuchCommand --screenshots '" + dir.string() + "'");
    EXPECT_EQ(unknown.status, 2);
    EXPECT_NE(unknown.output.find("no command named NoSuchCommand"), std::string::npos) << unknown.output;
    EXPECT_NE(unknown.output.find("ShowLog"), std::string::npos) << "and the commands there are";
    EXPECT_FALSE(std::filesystem::exists(dir / "NoSuchCommand.png"));
    if (!HasFailure()) std::filesystem::remove_all(dir);
}

TEST(GalleryProgram, TheNavigationAndInspectorCommandsOpenTheirPanels) {
    const auto dir = std::filesystem::temp_directory_path() / ("gallery-navigation-" + std::to_string(::getpid()));
    const std::pair<const char*, const char*> commands[] = {
        {"PageIndexWidgetTest", "widget pageIndex PageIndexWidget "}, {"'Space Divider Test'", "widget spaceDivider SpaceDivider "},
        {"SplitTabsWidgetTest", "widget splitTabs SplitTabsWidget "}, {"'Glob Inspector'", "widget Glob Inspector GlobInspector "},
        {"'Glob Inspector 2'", "widget globTree TreeView "},
    };
    for (const auto& [command, widget] : commands) {
        const TestKit::ProgramRun shown = gallery(dir, std::string("--command ") + command + " --screenshots '" + dir.string() + "' --print-widgets");
        EXPECT_EQ(shown.status, 0) << shown.output;
        EXPECT_NE(shown.output.find(widget), std::string::npos) << command << "\n" << shown.output;
    }
    if (!HasFailure()) std::filesystem::remove_all(dir);
}
