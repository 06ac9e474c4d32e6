// mosaic-panel run on description files: the picture it writes shows every
// visible row of the panel painted, whatever kinds of row it holds.
#include "draw/UifStd.h"
#include "image/HostImage.h"
#include "testing/TestKit.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>

namespace {

TestKit::ProgramRun run(const std::string& arguments) {
    return TestKit::runProgram("env -u DISPLAY MOSAIC_SCREEN_SIZE=900x700 '" MOSAIC_PANEL_PROGRAM "' " + arguments + " 2>/dev/null");
}

const std::pair<const char*, const char*> kDescriptions[] = {
    {"label", R"({"p": [{"type": "label", "name": "l", "legend": "<b>Bold</b> words and plain ones"}]})"},
    {"bool", R"({"p": [{"type": "bool", "name": "b", "legend": "Loop playback"}]})"},
    {"conditions", R"({"p": [
        {"type": "bool", "name": "on", "legend": "On", "default": true},
        {"type": "int", "name": "level", "legend": "Level", "min": 0, "max": 10, "default": 5, "active if": "on=true"},
        {"type": "int", "name": "mode", "legend": "Mode", "values": {"Fast": 1, "Best": 3}, "choice": "3"},
        {"type": "text", "name": "note", "legend": "Note", "value": "shown for Best", "visible if": "mode=3"}]})"},
    {"alternatives", R"({"p": [
        {"type": "heading", "legend": "Output"},
        {"type": "int", "name": "mode", "legend": "Mode", "values": {"A": 1, "B": 2, "C": 3}, "choice": "2"},
        {"type": "text", "name": "a", "legend": "For A", "visible if": "mode=1"},
        {"type": "float", "name": "b", "legend": "For B", "min": 0, "max": 1, "default": 0.5, "visible if": "mode=2"},
        {"type": "bool", "name": "c", "legend": "For C", "visible if": "mode=3"},
        {"type": "bool", "name": "after", "legend": "After the group"}]})"},
};

} // namespace

TEST(PanelScreenshot, EveryVisibleRowIsPaintedInThePicture) {
    const auto dir = std::filesystem::temp_directory_path() / ("mosaic-panel-shots-" + std::to_string(::getpid()));
    std::filesystem::create_directories(dir);
    const Colour window = UifStd::instance().getColourScheme().window();
    for (const auto& [name, description] : kDescriptions) {
        const std::string json = (dir / (std::string(name) + ".json")).string(), png = (dir / (std::string(name) + ".png")).string();
        SCOPED_TRACE(png);
        std::ofstream(json) << description;
        const TestKit::ProgramRun r = run("'" + json + "' --layout --screenshot '" + png + "'");
        ASSERT_EQ(r.status, 0) << r.output;
        const auto layout = nlohmann::json::parse(r.output);
        Zn::Ptr<iHostImage> picture = HostImage::loadPNG(LightweightString<wchar_t>(std::wstring(png.begin(), png.end())));
        ASSERT_TRUE(picture);
        const XY<int> panel(layout["x"].get<int>(), layout["y"].get<int>());
        const std::uint32_t corner = *reinterpret_cast<const std::uint32_t*>(picture->data());
        const Colour desktop(((corner >> 16) & 255) / 255.0, ((corner >> 8) & 255) / 255.0, (corner & 255) / 255.0, true);
        int shown = 0;
        for (const auto& row : layout["rows"]) {
            if (!row["visible"].get<bool>()) continue;
            ++shown;
            const BoxInt box(panel.x + row["x"].get<int>(), panel.y + row["y"].get<int>(), panel.x + row["x"].get<int>() + row["width"].get<int>(),
                             panel.y + row["y"].get<int>() + row["height"].get<int>());
            const int area = box.width() * box.height();
            // Dark controls (a slider's track) may come near the desktop's colour; a row
            // missing from the picture is all desktop.
            EXPECT_LT(TestKit::countPixels(*picture, box, desktop, 2), area / 10) << "the row lies on the painted panel: " << row.dump();
            EXPECT_GT(area - TestKit::countPixels(*picture, box, window, 48), 20) << "and shows its text or control: " << row.dump();
        }
        EXPECT_GT(shown, 0);
    }
    // A failure leaves the pictures to look at.
    if (!HasFailure()) std::filesystem::remove_all(dir);
}
