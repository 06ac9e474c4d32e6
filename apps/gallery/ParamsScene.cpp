// Parameter panels built with no widget code: render settings from a list of
// parameters, with a file row, a choice that a slider depends on, and a short
// label; and an export description in JSON with a choice that swaps the rows
// under it, bounds, and a setting that counts only when a switch is on.
#include "GalleryScene.h"

#include "params/HostPanel.h"
#include "platform/JSON.h"

namespace {

const char* kExportDescription = R"json({"params": [
  {"type": "heading", "legend": "Export"},
  {"type": "text", "name": "file", "legend": "File name", "value": "reel-03", "hint": "a name for the file"},
  {"type": "int", "name": "format", "legend": "Format", "values": {"Master": 0, "Web": 1, "Proxy": 2}, "choice": "1"},
  {"type": "int", "name": "bitrate", "legend": "Bit rate (Mb/s)", "min": 1, "max": 400, "default": 220, "visible if": "format=0"},
  {"type": "int", "name": "quality", "legend": "Quality", "min": 1, "max": 100, "default": 80, "visible if": "format=1"},
  {"type": "int", "name": "scale", "legend": "Scale (%)", "min": 10, "max": 100, "default": 25, "visible if": "format=2"},
  {"type": "float", "name": "in", "legend": "In (s)", "min": 0, "max": 60, "default": 2.5, "must not be higher than": "out"},
  {"type": "float", "name": "out", "legend": "Out (s)", "min": 0, "max": 60, "default": 42, "must not be lower than": "in"},
  {"type": "bool", "name": "burn", "legend": "Burn in timecode", "default": true},
  {"type": "float", "name": "size", "legend": "Timecode size", "min": 0.5, "max": 3, "default": 1, "active if": "burn=true"},
  {"type": "label", "name": "note", "legend": "Kept per <b>reel</b>."}
]})json";

UIBuilder::ParamList renderParams() {
    using namespace GenericParam;
    auto* quality = new IntParam(80, "quality", UIString(L"Quality"), UIString());
    quality->setRange(1, 100);
    quality->isActiveIf("codec", L"2");
    return {
        Zn::Ptr<iParam>(new ChoiceParam(UIString(L"Codec"), "codec", UIString(), 2,
                                        {{UIString(L"ProRes 422 HQ"), 1}, {UIString(L"H.264"), 2}, {UIString(L"DNxHR HQ"), 3}})),
        Zn::Ptr<iParam>(quality),
        Zn::Ptr<iParam>(new DoubleParam(UIString(L"Audio gain (dB)"), "gain", UIString(), 0.0, -12.0, 12.0)),
        Zn::Ptr<iParam>(new BoolParam(UIString(L"Reveal when done"), "reveal", UIString(), true)),
        Zn::Ptr<iParam>(new LabelParam(L"Quality: H.264 only.", "note", UIString(L"Quality: H.264 only."), UIString())),
    };
}

// A file row is made on its own, below the rows of a list: lists leave files out.
void addFileRow(HostPanel* panel) {
    using namespace GenericParam;
    Zn::Ptr<iParam> file(new FileParam(UIString(L"Output file"), "output", UIString(), L"/home/editor/Exports/Reel 3.mov", {L"*.mov", L"*.mp4"}));
    const auto width = static_cast<unsigned short>(panel->getUserArea().width());
    UIBuilder::createWidget(file, panel, width, 0, Glob::Below(UifStd::instance().getRowGap(), panel->getChildren().back()),
                            WidgetSurround(2, 1, 0, 0, 0.2f, true));
    panel->fitToRows();
}

// A host panel `width` wide with room for `rows` rows, its bottom left at `at`.
HostPanel::InitArgs hostFor(int width, int rows, XY<int> at) {
    const UifStd& u = UifStd::instance();
    const XY<int> size = StandardPanel::calcPanelSize({width, rows * (u.getRowHeight() + u.getRowGap())},
                                                      StandardPanel::kCloseBox | StandardPanel::kTitleBar, StandardPanel::getDefaultBorder());
    HostPanel::InitArgs args(static_cast<unsigned short>(size.x), static_cast<unsigned short>(size.y));
    args.position = Glob::BottomLeft(at.x, at.y);
    return args;
}

void buildParamsScene() {
    HostPanel::InitArgs listed = hostFor(400, 5, {80, 560});
    listed.params = renderParams();
    addFileRow(HostPanel::make(listed));

    // Eleven rows, of which three alternatives share one: the builder takes three
    // rows' height off for them.
    HostPanel::InitArgs described = hostFor(520, 12, {560, 380});
    described.description = JSON::parse(LightweightString<char>(kExportDescription));
    HostPanel::make(described)->fitToRows();
}

const GallerySceneRegistration registration("params", "parameter panels from a list and from a JSON description", buildParamsScene);

} // namespace
