// mosaic-panel: builds a parameter panel from a JSON description (or the library's
// example list), runs it, and prints the values as JSON when it closes.
#include "PanelProgram.h"
#include "Version.h"

#include "backend/SdlBackend.h"
#include "core/Utf8.h"
#include "draw/Screen.h"
#include "glob/GlobManager.h"
#include "params/UIBuilderExample.h"
#include "platform/ConfigbFile.h"

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
                 "  closes, prints the values as JSON. --screenshot writes a picture of it instead of\n"
                 "  showing it, and --layout prints the built rows instead of the values, headless.\n"
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
    panel->fitToRows();
    return panel;
}

// Saves over what was read, so that values of ids this panel lacks (another
// panel's, kept in the same file) stay.
bool save(const Options& o, const UIBuilder::Params& params, configb state) {
    if (o.state.empty()) return true;
    configb own;
    params.saveState(own);
    for (const auto& [id, entry] : own.entries()) state.set(id, entry);
    if (ConfigbFile::save(state, fromUTF8(LightweightString<char>(o.state.c_str())))) return true;
    std::fprintf(stderr, "mosaic-panel: cannot write the state to %s\n", o.state.c_str());
    return false;
}

// Runs the panel in a window until it closes; without a display, says so and returns.
bool runInWindow() {
    if (!SdlBackend::displayAvailable()) {
        std::fprintf(stderr, "mosaic-panel: no display; printing the values as built (use --screenshot FILE.png to see the panel)\n");
        return true;
    }
    SdlBackend window;
    if (!window.open("Mosaic panel")) {
        std::fprintf(stderr, "mosaic-panel: cannot open a window (%s); use --screenshot FILE.png\n", SdlBackend::lastError());
        return false;
    }
    window.run(true);
    return true;
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
    configb saved;
    if (!o.state.empty() && !PanelProgram::readState(o.state, saved, error)) {
        std::fprintf(stderr, "mosaic-panel: %s\n", error.c_str());
        return 2;
    }
    HostPanel* panel = makePanel(o, error);
    if (!panel) {
        std::fprintf(stderr, "mosaic-panel: %s\n", error.c_str());
        return 2;
    }
    // The panel dies with its window; the values stay with the set.
    Zn::Ptr<UIBuilder::Params> params = panel->params();
    params->restoreState(saved);
    for (const auto& [id, value] : o.settings) {
        if (!PanelProgram::setFromText(*params, id, value, error)) {
            std::fprintf(stderr, "mosaic-panel: --set %s=%s: %s\n", id.c_str(), value.c_str(), error.c_str());
            return 2;
        }
    }
    GlobManager& gm = GlobManager::instance();
    gm.runUntilIdle();

    if (!o.screenshot.empty() && !gm.screen().writePNG(o.screenshot.c_str())) {
        std::fprintf(stderr, "mosaic-panel: cannot write %s\n", o.screenshot.c_str());
        return 1;
    }
    if (!o.layout && o.screenshot.empty() && !runInWindow()) return 1;
    const std::string out = o.layout ? PanelProgram::layoutAsJSON(panel, *params) : PanelProgram::valuesAsJSON(*params);
    std::printf("%s\n", out.c_str());
    return save(o, *params, saved) ? 0 : 1;
}
