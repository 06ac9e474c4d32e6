// settings-panel: a panel built from a JSON description, bound to the program's own
// settings and kept between runs in the user's settings folder. With a display it
// opens a window and saves when the panel closes; with --headless (or with no
// display) it builds the panel, prints the settings and saves them at once.
#include "backend/SdlBackend.h"
#include "core/FunctionCallback.h"
#include "core/Utf8.h"
#include "glob/GlobManager.h"
#include "params/HostPanel.h"
#include "platform/ConfigbFile.h"
#include "platform/Configuration.h"
#include "platform/JSON.h"

#include <cstdio>
#include <cstring>
#include <cwchar>
#include <filesystem>
#include <string>

namespace {

// The program's own values: what the rest of the program reads.
struct ExportSettings {
    double gain = 1.0;
    bool loop = false;
    std::string title;
};

const wchar_t* kDescription = LR"({"params": [
  {"type": "heading", "legend": "Export"},
  {"type": "float", "name": "gain", "legend": "Gain", "min": 0, "max": 2, "default": 1},
  {"type": "bool", "name": "loop", "legend": "Loop playback", "default": false},
  {"type": "text", "name": "title", "legend": "Title", "hint": "type a title"}
]})";

LightweightString<wchar_t> valueOf(const UIBuilder::Params& params, const char* id) {
    for (const auto& param : params.params())
        if (param && param->getID() == id) return param->getValueAsString();
    return {};
}

// The panel to the program: called after every change, as the user makes it.
void copyInto(ExportSettings& settings, const UIBuilder::Params& params) {
    settings.gain = std::wcstod(valueOf(params, "gain").c_str(), nullptr);
    settings.loop = valueOf(params, "loop") == L"true";
    settings.title = toUTF8(valueOf(params, "title")).str();
}

LightweightString<wchar_t> stateFile() { return fromUTF8(Configuration::settingsFolder() + "/settings-panel.json"); }

} // namespace

int main(int argc, char** argv) {
    const bool headless = (argc > 1 && !std::strcmp(argv[1], "--headless")) || !SdlBackend::displayAvailable();

    HostPanel::InitArgs args(420, 200);
    args.description = JSON::parse(kDescription);
    HostPanel* panel = HostPanel::make(args);
    panel->fitToRows();
    // The panel dies with its window; the parameters live on in the set.
    Zn::Ptr<UIBuilder::Params> params = panel->params();

    ExportSettings settings;
    params->addListener(Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new FunctionCallback<NotifyMsg, int>([&](const NotifyMsg&) {
        copyInto(settings, *params);
        return 1;
    })));
    configb saved;
    if (ConfigbFile::load(stateFile(), saved)) params->restoreState(saved);
    copyInto(settings, *params);
    GlobManager::instance().runUntilIdle();

    if (!headless) {
        SdlBackend window;
        if (!window.open("Export settings")) {
            std::fprintf(stderr, "settings-panel: cannot open a window (%s)\n", SdlBackend::lastError());
            return 1;
        }
        window.run(true);
    }

    std::printf("gain %g, loop %s, title \"%s\"\n", settings.gain, settings.loop ? "on" : "off", settings.title.c_str());
    configb state;
    params->saveState(state);
    std::error_code ec;
    std::filesystem::create_directories(Configuration::settingsFolder().c_str(), ec);
    if (!ConfigbFile::save(state, stateFile())) {
        std::fprintf(stderr, "settings-panel: cannot save the settings\n");
        return 1;
    }
    return 0;
}
