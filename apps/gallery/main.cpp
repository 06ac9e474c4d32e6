// mosaic-gallery: every widget and panel of the library on the screen, with live data.
// With --screenshots DIR it renders each scene headless and writes DIR/NAME.png.
// In a window, --print-roots, --print-widgets and --report FILE tell a script that
// drives it where to click and what the widgets hold.
#include "GalleryProbe.h"
#include "GalleryScene.h"
#include "Version.h"

#include "backend/SdlBackend.h"
#include "draw/Screen.h"
#include "glob/Glob.h"
#include "glob/GlobManager.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>

namespace {

int writeScreenshots(const std::string& dir, const std::string& only) {
    std::error_code ec;
    std::filesystem::create_directories(dir, ec);
    if (ec) {
        std::fprintf(stderr, "mosaic-gallery: cannot make the folder %s: %s\n", dir.c_str(), ec.message().c_str());
        return 1;
    }
    int written = 0;
    for (const GalleryScene& scene : GalleryScene::all()) {
        if (!only.empty() && scene.name.str() != only) continue;
        GalleryScene::clearScreen();
        scene.build();
        GlobManager::instance().runUntilIdle();
        std::string path = (std::filesystem::path(dir) / (scene.name.str() + ".png")).string();
        if (!GlobManager::instance().screen().writePNG(path.c_str())) {
            std::fprintf(stderr, "mosaic-gallery: cannot write %s\n", path.c_str());
            return 1;
        }
        std::printf("%s\n", path.c_str());
        ++written;
    }
    GalleryScene::clearScreen();
    if (written == 0) {
        std::fprintf(stderr, "mosaic-gallery: no scene named %s\n", only.c_str());
        return 1;
    }
    return 0;
}

struct Options {
    std::string dir, only, report;
    bool list = false, printRoots = false, printWidgets = false;
};

// Turns the loop itself so that the probe can read the values after every turn.
int runProbed(SdlBackend& window, GalleryProbe& probe) {
    GlobManager& gm = GlobManager::instance();
    while (!window.quitRequested() && !gm.roots().empty()) {
        window.runOnce(10);
        if (!probe.capture()) {
            std::fprintf(stderr, "mosaic-gallery: cannot write the report\n");
            return 1;
        }
    }
    return 0;
}

int runWindow(const Options& o) {
    SdlBackend window;
    if (!window.open("Mosaic gallery")) {
        std::fprintf(stderr, "mosaic-gallery: cannot open a window (%s); use --screenshots DIR\n", SdlBackend::lastError());
        return 1;
    }
    const auto& scenes = GalleryScene::all();
    auto it = std::find_if(scenes.begin(), scenes.end(), [&](const GalleryScene& s) { return o.only.empty() || s.name.str() == o.only; });
    if (it == scenes.end()) {
        std::fprintf(stderr, "mosaic-gallery: no scene named %s\n", o.only.c_str());
        return 1;
    }
    it->build();
    GlobManager::instance().runUntilIdle();
    if (o.printRoots) GalleryProbe::printRoots(stdout);
    if (o.printWidgets) GalleryProbe::printWidgets(stdout);
    GalleryProbe probe(o.report);
    if (probe.reporting()) return runProbed(window, probe);
    // The gallery ends when its window closes or its last panel is closed.
    window.run(true);
    return 0;
}

void usage() {
    std::printf("usage: mosaic-gallery [--screenshots DIR] [--scene NAME] [--list] [--print-roots] [--print-widgets] [--report FILE]\n");
    std::printf("Mosaic %s\n", mosaicDllVersionStr());
}

// False, after usage, for an argument it does not know; `exitCode` says how to leave.
bool parse(int argc, char** argv, Options& o, int& exitCode) {
    for (int i = 1; i < argc; ++i) {
        bool hasValue = i + 1 < argc;
        if (!std::strcmp(argv[i], "--screenshots") && hasValue) {
            o.dir = argv[++i];
        } else if (!std::strcmp(argv[i], "--scene") && hasValue) {
            o.only = argv[++i];
        } else if (!std::strcmp(argv[i], "--report") && hasValue) {
            o.report = argv[++i];
        } else if (!std::strcmp(argv[i], "--list")) {
            o.list = true;
        } else if (!std::strcmp(argv[i], "--print-roots")) {
            o.printRoots = true;
        } else if (!std::strcmp(argv[i], "--print-widgets")) {
            o.printWidgets = true;
        } else {
            usage();
            exitCode = !std::strcmp(argv[i], "--help") ? 0 : 2;
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    Options o;
    int exitCode = 0;
    if (!parse(argc, argv, o, exitCode)) return exitCode;
    if (o.list) {
        for (const GalleryScene& s : GalleryScene::all()) std::printf("%-20s %s\n", s.name.c_str(), s.description.c_str());
        return 0;
    }
    if (o.dir.empty() && SdlBackend::displayAvailable()) return runWindow(o);
    if (o.dir.empty()) {
        o.dir = "gallery-screenshots";
        std::fprintf(stderr, "mosaic-gallery: no display; writing screenshots to %s\n", o.dir.c_str());
    }
    return writeScreenshots(o.dir, o.only);
}
