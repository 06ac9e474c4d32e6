// mosaic-panel's own work: reading descriptions, setting values as a user would,
// and describing the built panel.
#include "PanelProgram.h"

#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "params/SliderParamHost.h"
#include "params/UIBuilderExample.h"
#include "testing/TestKit.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>

namespace {

class PanelProgramTest : public ::testing::Test {
protected:
    void TearDown() override {
        TestKit::reset();
        std::filesystem::remove_all(dir);
    }
    std::string write(const char* name, const std::string& text) {
        std::filesystem::create_directories(dir);
        const std::string path = (dir / name).string();
        std::ofstream(path) << text;
        return path;
    }
    HostPanel* host(const char* json) {
        std::string error;
        HostPanel::InitArgs args;
        args.description = PanelProgram::readDescription(write("d.json", json), error);
        EXPECT_TRUE(args.description) << error;
        const XY<int> size = PanelProgram::panelSizeFor(args.description->getChild(static_cast<unsigned short>(0))->getNumChildren(), 500);
        args.width = size.x;
        args.height = size.y;
        HostPanel* panel = HostPanel::make(args);
        panel->fitToRows();
        TestKit::pump();
        return panel;
    }

    std::filesystem::path dir = std::filesystem::temp_directory_path() / ("mosaic-panel-test-" + std::to_string(::getpid()));
};

const char* kDescription = R"({"p": [
  {"type": "heading", "legend": "Look"},
  {"type": "bool", "name": "on", "legend": "On", "default": false},
  {"type": "int", "name": "level", "legend": "Level", "min": 0, "max": 10, "default": 5, "active if": "on=true"},
  {"type": "float", "name": "mix", "legend": "Mix", "min": 0, "max": 1, "default": 0.5, "must not be lower than": "floor"},
  {"type": "float", "name": "floor", "legend": "Floor", "min": 0, "max": 1, "default": 0.25},
  {"type": "int", "name": "mode", "legend": "Mode", "values": {"Fast": 1, "Best": 3}},
  {"type": "text", "name": "note", "legend": "Note", "visible if": "mode=3"},
  {"type": "label", "name": "help", "legend": "A label that wraps onto a second line when the panel is narrow enough, as this one is."}
]})";

} // namespace

TEST_F(PanelProgramTest, DescriptionsThatAreNoPanelSayWhy) {
    std::string error;
    EXPECT_FALSE(PanelProgram::readDescription((dir / "missing.json").string(), error));
    EXPECT_NE(error.find("cannot read"), std::string::npos);
    EXPECT_FALSE(PanelProgram::readDescription(write("bad.json", "{\"p\": [ {\"type\": }"), error));
    EXPECT_NE(error.find("is not JSON"), std::string::npos) << error;
    EXPECT_FALSE(PanelProgram::readDescription(write("flat.json", "{\"type\": \"bool\"}"), error));
    EXPECT_NE(error.find("no list of parameters"), std::string::npos) << error;
    EXPECT_TRUE(PanelProgram::readDescription(write("ok.json", kDescription), error));
}

TEST_F(PanelProgramTest, SettingsGoThroughTheControlsWithEveryRuleApplied) {
    HostPanel* panel = host(kDescription);
    UIBuilder::Params& params = *panel->params();
    std::string error;
    Glob* levelSlider = dynamic_cast<SliderParamHost*>(params.getWidget("level"))->titled;
    ASSERT_TRUE(PanelProgram::setFromText(params, "on", "false", error)) << error;
    EXPECT_FALSE(levelSlider->isActive()) << "the condition was evaluated";
    ASSERT_TRUE(PanelProgram::setFromText(params, "on", "true", error)) << error;
    EXPECT_TRUE(levelSlider->isActive());
    ASSERT_TRUE(PanelProgram::setFromText(params, "level", "99", error)) << error;
    EXPECT_EQ(params.params()[1]->getValueAsString(), L"10") << "held to the box's range";
    ASSERT_TRUE(PanelProgram::setFromText(params, "floor", "0.75", error)) << error;
    ASSERT_TRUE(PanelProgram::setFromText(params, "mix", "0.5", error)) << error;
    EXPECT_EQ(params.params()[2]->getValueAsString(), L"0.75") << "held by its bound";
    ASSERT_TRUE(PanelProgram::setFromText(params, "mode", "Best", error)) << error;
    EXPECT_EQ(params.params()[4]->getValueAsString(), L"3");
    EXPECT_TRUE(params.getWidget("note")->isVisible());
    ASSERT_TRUE(PanelProgram::setFromText(params, "mode", "1", error)) << error;
    EXPECT_FALSE(params.getWidget("note")->isVisible()) << "an entry by its value too";
    ASSERT_TRUE(PanelProgram::setFromText(params, "note", "caf\xc3\xa9", error)) << error;
    EXPECT_EQ(params.params()[5]->getValueAsString(), L"caf\u00e9");

    EXPECT_FALSE(PanelProgram::setFromText(params, "ghost", "1", error));
    EXPECT_FALSE(PanelProgram::setFromText(params, "on", "maybe", error));
    EXPECT_FALSE(PanelProgram::setFromText(params, "mix", "lots", error));
    EXPECT_FALSE(PanelProgram::setFromText(params, "mode", "Slow", error));
    EXPECT_FALSE(PanelProgram::setFromText(params, "help", "x", error)) << "a label takes no value";

    const auto values = nlohmann::json::parse(PanelProgram::valuesAsJSON(params));
    EXPECT_EQ(values["level"], "10");
    EXPECT_EQ(values["note"], "caf\xc3\xa9");
    EXPECT_EQ(values.size(), 7u);
}

TEST_F(PanelProgramTest, TheLayoutListsEveryRowInOrderWithItsPlaceAndState) {
    HostPanel* panel = host(kDescription);
    const auto layout = nlohmann::json::parse(PanelProgram::layoutAsJSON(panel, *panel->params()));
    EXPECT_EQ(layout["width"], panel->width());
    EXPECT_EQ(layout["height"], panel->height());
    const auto& rows = layout["rows"];
    ASSERT_EQ(rows.size(), 8u);
    EXPECT_EQ(rows[0]["id"], "") << "a heading has no id";
    EXPECT_EQ(rows[0]["kind"], "TextLabel");
    EXPECT_EQ(rows[1]["kind"], "Checkbox");
    EXPECT_EQ(rows[2]["kind"], "WidgetHost");
    EXPECT_EQ(rows[6]["id"], "note");
    EXPECT_EQ(rows[6]["visible"], false);
    for (std::size_t i = 1; i < rows.size(); ++i) EXPECT_LT(rows[i]["y"].get<int>(), rows[i - 1]["y"].get<int>()) << i;
    // The panel grew to show the label whole.
    const auto& help = rows[7];
    EXPECT_GE(help["y"].get<int>(), panel->getUserArea().y1);
    EXPECT_GT(help["height"].get<int>(), UifStd::instance().getRowHeight());
}

TEST_F(PanelProgramTest, TheExampleListBuildsWithItsDependencies) {
    HostPanel::InitArgs args(400, 300);
    args.params = makeUIBuilderTest2Params();
    HostPanel* panel = HostPanel::make(args);
    TestKit::pump();
    UIBuilder::Params& params = *panel->params();
    EXPECT_EQ(params.params().size(), 9u);
    EXPECT_FALSE(params.getWidget("text")->isVisible()) << "the text shows for Two alone";
    std::string error;
    ASSERT_TRUE(PanelProgram::setFromText(params, "choice", "Two", error)) << error;
    EXPECT_TRUE(params.getWidget("text")->isVisible());
    ASSERT_TRUE(PanelProgram::setFromText(params, "bool1", "false", error)) << error;
    EXPECT_FALSE(dynamic_cast<SliderParamHost*>(params.getWidget("double2"))->titled->isActive());
}
