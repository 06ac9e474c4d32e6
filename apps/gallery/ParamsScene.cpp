// Parameter panels built with no widget code: the library's example list, and an
// export description in JSON with a choice that swaps the rows under it, bounds,
// and settings that only count when a switch is on.
#include "GalleryScene.h"

#include "params/HostPanel.h"
#include "params/UIBuilderExample.h"
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
  {"type": "bool", "name": "burn", "legend": "Burn in the timecode", "default": true},
  {"type": "float", "name": "size", "legend": "Timecode size", "min": 0.5, "max": 3, "default": 1, "active if": "burn=true"},
  {"type": "label", "name": "note", "legend": "Proxies are written beside the <b>media</b>, masters to the export folder."}
]})json";

void buildParamsScene() {
    HostPanel::InitArgs example(400, 300);
    example.params = makeUIBuilderTest2Params();
    example.position = Glob::BottomLeft(80, 420);
    HostPanel::make(example);

    HostPanel::InitArgs described(520, 420);
    described.description = JSON::parse(LightweightString<char>(kExportDescription));
    described.position = Glob::BottomLeft(560, 300);
    HostPanel::make(described);
}

const GallerySceneRegistration registration("params", "parameter panels from a list and from a JSON description", buildParamsScene);

} // namespace
