// mosaic-gallery: every widget and panel of the library on the screen, with live data.
// With --screenshots DIR it renders each scene headless and writes DIR/NAME.png.
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

void clearScreen() {
    GlobManager& gm = GlobManager::instance();
    gm.runUntilIdle();
    auto roots = gm.roots();
    for (Glob* g : roots)
        if (is_good_glob_ptr(g)) delete g;
    gm.runUntilIdle();
}

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
        clearScreen();
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
    clearScreen();
    if (written == 0) {
        std::fprintf(stderr, "mosaic-gallery: no scene named %s\n", only.c_str());
        return 1;
    }
    return 0;
}

// Prints each top-level glob and the centre of its close box in window coordinates
// (top-down), so that a script driving the window knows where to click.
void printRoots() {
    int h = GlobManager::instance().screen().height();
    for (Glob* root : GlobManager::instance().roots()) {
        XY<int> close(-1, -1);
        root->visitChildren([&](Glob* g) {
            if (std::strcmp(g->idstring(), "FurnitureButton")) return true;
            XY<int> c = g->screenPos() + XY<int>(g->width() / 2, g->height() / 2);
            close = {c.x, h - 1 - c.y};
            return false;
        });
        std::printf("root %s %d %d %d %d close %d %d\n", root->idstring(), root->getX(), h - root->getY() - root->height(), root->width(),
                    root->height(), close.x, close.y);
    }
    std::fflush(stdout);
}

int runWindow(const std::string& only, bool printGeometry) {
    SdlBackend window;
    if (!window.open("Mosaic gallery")) {
        std::fprintf(stderr, "mosaic-gallery: cannot open a window; use --screenshots DIR\n");
        return 1;
    }
    const auto& scenes = GalleryScene::all();
    auto it = std::find_if(scenes.begin(), scenes.end(), [&](const GalleryScene& s) { return only.empty() || s.name.str() == only; });
    if (it == scenes.end()) {
        std::fprintf(stderr, "mosaic-gallery: no scene named %s\n", only.c_str());
        return 1;
    }
    it->build();
    GlobManager::instance().runUntilIdle();
    if (printGeometry) printRoots();
    // The gallery ends when its window closes or its last panel is closed.
    window.run(true);
    return 0;
}

void usage() {
    std::printf("usage: mosaic-gallery [--screenshots DIR] [--scene NAME] [--list] [--print-roots]\n");
    std::printf("Mosaic %s\n", mosaicDllVersionStr());
}

} // namespace

int main(int argc, char** argv) {
    std::string dir, only;
    bool list = false, printGeometry = false;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--screenshots") && i + 1 < argc) {
            dir = argv[++i];
        } else if (!std::strcmp(argv[i], "--scene") && i + 1 < argc) {
            only = argv[++i];
        } else if (!std::strcmp(argv[i], "--list")) {
            list = true;
        } else if (!std::strcmp(argv[i], "--print-roots")) {
            printGeometry = true;
        } else {
            usage();
            return !std::strcmp(argv[i], "--help") ? 0 : 2;
        }
    }
    if (list) {
        for (const GalleryScene& s : GalleryScene::all()) std::printf("%-20s %s\n", s.name.c_str(), s.description.c_str());
        return 0;
    }
    if (dir.empty() && SdlBackend::displayAvailable()) return runWindow(only, printGeometry);
    if (dir.empty()) {
        dir = "gallery-screenshots";
        std::fprintf(stderr, "mosaic-gallery: no display; writing screenshots to %s\n", dir.c_str());
    }
    return writeScreenshots(dir, only);
}
