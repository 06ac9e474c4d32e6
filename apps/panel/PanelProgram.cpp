#include "PanelProgram.h"

#include "controls/Checkbox.h"
#include "controls/NumericTextBox.h"
#include "controls/Slider.h"
#include "controls/TextLabel.h"
#include "controls/TitleMenuButton.h"
#include "controls/TitleTextBox.h"
#include "core/Utf8.h"
#include "draw/UifStd.h"
#include "params/SliderParamHost.h"
#include "params/TitledFileChooserButton.h"
#include "params/TitledGlob.h"
#include "platform/ConfigbFile.h"
#include "platform/JSON.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace PanelProgram {

Zn::Ptr<JSON::Element> readDescription(const std::string& path, std::string& error) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        error = "cannot read " + path;
        return nullptr;
    }
    std::stringstream text;
    text << in.rdbuf();
    try {
        // Parsed here only for the reason of a failure, which the library keeps to itself.
        const auto checked = nlohmann::ordered_json::parse(text.str());
        (void)checked;
    } catch (const nlohmann::json::exception& e) {
        error = path + " is not JSON: " + e.what();
        return nullptr;
    }
    Zn::Ptr<JSON::Element> root = JSON::parse(LightweightString<char>(text.str().c_str()));
    if (!root || !root->getChild(static_cast<unsigned short>(0))) {
        error = path + " holds no list of parameters: a description is an object with one array of parameter objects, such as {\"params\": [...]}";
        return nullptr;
    }
    return root;
}

bool readState(const std::string& path, configb& state, std::string& error) {
    std::error_code ec;
    if (!std::filesystem::exists(path, ec) && !ec) return true;
    std::ifstream in(path, std::ios::binary);
    const LightweightString<char> bytes(std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>()));
    if (!in.is_open() || in.bad()) {
        error = "cannot read the state file " + path;
        return false;
    }
    if (!ConfigbFile::isStore(bytes)) {
        error = path + " is not a saved state of a panel; it is left as it is (give --state a new file or one it saved)";
        return false;
    }
    return ConfigbFile::fromText(bytes, state);
}

XY<int> panelSizeFor(unsigned rows, int width) {
    const UifStd& std = UifStd::instance();
    const int userHeight = static_cast<int>(std::max(1u, rows)) * (std.getRowHeight() + std.getRowGap());
    return StandardPanel::calcPanelSize(XY<int>(width, userHeight), StandardPanel::kCloseBox | StandardPanel::kTitleBar,
                                        StandardPanel::getDefaultBorder());
}

namespace {

Zn::Ptr<GenericParam::iParam> paramOf(const UIBuilder::Params& params, const LightweightString<char>& id) {
    for (const auto& p : params.params())
        if (p && p->getID() == id) return p;
    return nullptr;
}

bool parseNumber(const std::string& text, double& number) {
    char* end = nullptr;
    number = std::strtod(text.c_str(), &end);
    return end != text.c_str() && *end == '\0' && std::isfinite(number);
}

// The entry of a drop-down that a text names: by its label, or for a choice by its value.
int entryFor(TitleMenuButton* row, const Zn::Ptr<GenericParam::iParam>& param, const std::string& value) {
    const auto& items = row->getBtn()->getItems();
    for (std::size_t i = 0; i < items.size(); ++i)
        if (toUTF8(items[i].text().getString()).str() == value) return static_cast<int>(i);
    if (auto choice = Zn::dynamicCast<GenericParam::ChoiceParam>(param)) {
        for (std::size_t i = 0; i < choice->choices().size(); ++i)
            if (std::to_string(choice->choices()[i].value) == value) return static_cast<int>(i);
    }
    return -1;
}

bool setSlider(SliderParamHost* host, const std::string& value, std::string& error) {
    double number = 0;
    if (!parseNumber(value, number)) {
        error = "\"" + value + "\" is not a number";
        return false;
    }
    for (Glob* child : host->getChildren()) {
        if (auto* box = dynamic_cast<NumericTextBox*>(child)) {
            // As a commit of the box: the number held to its range, then given to the data.
            box->setValue(number, kNoRedraw);
            box->requestSetNewDataValue(box->getString(), kFinalChange);
            return true;
        }
    }
    Slider* slider = static_cast<TitledGlob<Slider>*>(host->titled)->control();
    slider->requestSetNewDataValue(std::clamp(number, slider->getMinValue(), slider->getMaxValue()), kFinalChange);
    return true;
}

} // namespace

bool setFromText(UIBuilder::Params& params, const std::string& id, const std::string& value, std::string& error) {
    const LightweightString<char> key(id.c_str());
    Glob* row = params.getWidget(key);
    Zn::Ptr<GenericParam::iParam> param = paramOf(params, key);
    if (!row || !param) {
        error = "no parameter \"" + id + "\"";
        return false;
    }
    if (auto* box = dynamic_cast<Checkbox*>(row)) {
        if (value != "true" && value != "false") {
            error = id + " takes true or false";
            return false;
        }
        box->requestSetNewDataValue(value == "true", kFinalChange);
    } else if (auto* host = dynamic_cast<SliderParamHost*>(row)) {
        if (!setSlider(host, value, error)) return false;
    } else if (dynamic_cast<TitledFileChooserButton*>(row)) {
        // What the file browser's answer does.
        param->setValueFromString(fromUTF8(LightweightString<char>(value.c_str())));
    } else if (auto* menu = dynamic_cast<TitleMenuButton*>(row)) {
        const int entry = entryFor(menu, param, value);
        if (entry < 0) {
            error = "\"" + value + "\" is no entry of " + id;
            return false;
        }
        menu->getBtn()->requestSetNewDataValue(entry, kFinalChange);
    } else if (auto* text = dynamic_cast<TitleTextBox*>(row)) {
        text->requestSetNewDataValue(fromUTF8(LightweightString<char>(value.c_str())), kFinalChange);
    } else {
        error = id + " takes no value";
        return false;
    }
    return true;
}

std::string valuesAsJSON(const UIBuilder::Params& params) {
    nlohmann::ordered_json values = nlohmann::ordered_json::object();
    for (const auto& p : params.params())
        if (p) values[p->getID().str()] = toUTF8(p->getValueAsString()).str();
    return values.dump(2);
}

std::string layoutAsJSON(const StandardPanel* panel, const UIBuilder::Params& params) {
    nlohmann::ordered_json layout;
    layout["x"] = panel->getX();
    layout["y"] = panel->getY();
    layout["width"] = panel->width();
    layout["height"] = panel->height();
    layout["rows"] = nlohmann::ordered_json::array();
    for (Glob* child : panel->getChildren()) {
        std::string id;
        bool isRow = dynamic_cast<TextLabel*>(child) != nullptr;
        for (const auto& [name, widget] : params.widgets())
            if (widget == child) {
                id = name.str();
                isRow = true;
                break;
            }
        if (!isRow) continue;
        layout["rows"].push_back({{"id", id},
                                  {"kind", child->idstring()},
                                  {"x", child->getX()},
                                  {"y", child->getY()},
                                  {"width", child->width()},
                                  {"height", child->height()},
                                  {"visible", child->isVisible()},
                                  {"active", child->isActive()}});
    }
    return layout.dump(2);
}

} // namespace PanelProgram
