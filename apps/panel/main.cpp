// mosaic-panel: builds a parameter panel from a JSON description (or the library's
// example list), runs it, and prints the values as JSON when it closes.
#include "PanelProgram.h"
#include "Version.h"

#include "backend/SdlBackend.h"
#include "draw/Screen.h"
#include "glob/GlobManager.h"
#include "params/UIBuilderExample.h"
#include "platform/ConfigbFile.h"
#include "core/Utf8.h"

#include <cstdio>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace {

struct Options {
    std::string description, state, screenshot;
    bool layout = false;
    std::vector<std::pair<std::string, std::string>> settings;
};

const int kPanelWidth = 520;

void usage(FILE* to) {
    std::fprintf(to,
                 "usage: mosaic-panel [FILE.json] [--state FILE] [--set ID=VALUE]... [--layout] [--screenshot FILE.png]\n"
                 "  Builds a panel from FILE.json (the example panel without one) and shows it; when it\n"
                 "  closes, prints the values as JSON. --layout prints the built rows instead, headless.\n"
                 "Mosaic %s\n",
                 mosaicDllVersionStr());
}

bool parse(int argc, char** argv, Options& o) {
    for (int i = 1; i < argc; ++i) {
        const bool hasValue = i + 1 < argc;
        if (!std::strcmp(argv[i], "--state") && hasValue) {
            o.state = argv[++i];
        } else if (!std::strcmp(argv[i], "--screenshot") && hasValue) {
            o.screenshot = argv[++i];
        } else if (!std::strcmp(argv[i], "--set") && hasValue) {
            const std::string setting = argv[++i];
            const auto eq = setting.find('=');
            if (eq == std::string::npos || eq == 0) {
                std::fprintf(stderr, "mosaic-panel: --set takes ID=VALUE, not \"%s\"\n", setting.c_str());
                return false;
            }
            o.settings.emplace_back(setting.substr(0, eq), setting.substr(eq + 1));
        } else if (!std::strcmp(argv[i], "--layout")) {
            o.layout = true;
        } else if (argv[i][0] != '-' && o.description.empty()) {
            o.description = argv[i];
        } else {
            usage(stderr);
            return false;
        }
    }
    return true;
}

HostPanel* makePanel(const Options& o, std::string& error) {
    HostPanel::InitArgs args;
    unsigned rows = 0;
    if (o.description.empty()) {
        args.params = makeUIBuilderTest2Params();
        rows = static_cast<unsigned>(args.params.size());
    } else {
        args.description = PanelProgram::readDescription(o.description, error);
        if (!args.description) return nullptr;
        rows = args.description->getChild(static_cast<unsigned short>(0))->getNumChildren();
    }
    const XY<int> size = PanelProgram::panelSizeFor(rows, kPanelWidth);
    args.width = size.x;
    args.height = size.y;
    HostPanel* panel = HostPanel::make(args);
    PanelProgram::fitToRows(panel);
    return panel;
}

bool restore(const Options& o, UIBuilder::Params& params) {
    if (o.state.empty()) return true;
    configb saved;
    // A state file that is not there yet is the first run: nothing to restore.
    if (!ConfigbFile::load(fromUTF8(LightweightString<char>(o.state.c_str())), saved)) return true;
    params.restoreState(saved);
    return true;
}

bool save(const Options& o, const UIBuilder::Params& params) {
    if (o.state.empty()) return true;
    configb state;
    params.saveState(state);
    if (ConfigbFile::save(state, fromUTF8(LightweightString<char>(o.state.c_str())))) return true;
    std::fprintf(stderr, "mosaic-panel: cannot write the state to %s\n", o.state.c_str());
    return false;
}

} // namespace

int main(int argc, char** argv) {
    Options o;
    if (argc == 2 && !std::strcmp(argv[1], "--help")) {
        usage(stdout);
        return 0;
    }
    if (!parse(argc, argv, o)) return 2;

    std::string error;
    HostPanel* panel = makePanel(o, error);
    if (!panel) {
        std::fprintf(stderr, "mosaic-panel: %s\n", error.c_str());
        return 2;
    }
    // The panel dies with its window; the values stay with the set.
    Zn::Ptr<UIBuilder::Params> params = panel->params();
    restore(o, *params);
    for (const auto& [id, value] : o.settings) {
        if (!PanelProgram::setFromText(*params, id, value, error)) {
            std::fprintf(stderr, "mosaic-panel: --set %s=%s: %s\n", id.c_str(), value.c_str(), error.c_str());
            return 2;
        }
    }
    GlobManager& gm = GlobManager::instance();
    gm.runUntilIdle();

    if (o.layout) {
        std::printf("%s\n", PanelProgram::layoutAsJSON(panel, *params).c_str());
        return save(o, *params) ? 0 : 1;
    }
    if (!o.screenshot.empty()) {
        if (!gm.screen().writePNG(o.screenshot.c_str())) {
            std::fprintf(stderr, "mosaic-panel: cannot write %s\n", o.screenshot.c_str());
            return 1;
        }
    } else if (SdlBackend::displayAvailable()) {
        SdlBackend window;
        if (!window.open("Mosaic panel")) {
            std::fprintf(stderr, "mosaic-panel: cannot open a window (%s); use --screenshot FILE.png\n", SdlBackend::lastError());
            return 1;
        }
        window.run(true);
    } else {
        std::fprintf(stderr, "mosaic-panel: no display; printing the values as built (use --screenshot FILE.png to see the panel)\n");
    }
    std::printf("%s\n", PanelProgram::valuesAsJSON(*params).c_str());
    return save(o, *params) ? 0 : 1;
}
