// mosaic-gallery: every widget and panel of the library on the screen, with live data.
// With --screenshots DIR it renders each scene headless and writes DIR/NAME.png.
// --command NAME runs a command the library registered, on its own or over a scene.
// --print-roots, --print-widgets and --report FILE tell a script that drives the
// window where to click and what the widgets hold.
#include "GalleryProbe.h"
#include "GalleryScene.h"
#include "SampleTaskLog.h"
#include "Version.h"

#include "backend/SdlBackend.h"
#include "draw/Screen.h"
#include "glob/Glob.h"
#include "glob/GlobManager.h"
#include "platform/CommandRegistrar.h"
#include "tasks/TaskLog.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>

namespace {

struct Options {
    std::string dir, only, report, command;
    bool list = false, printRoots = false, printWidgets = false;
};

const GalleryScene* findScene(const std::string& name) {
    const auto& scenes = GalleryScene::all();
    auto it = std::find_if(scenes.begin(), scenes.end(), [&](const GalleryScene& s) { return s.name.str() == name; });
    return it == scenes.end() ? nullptr : &*it;
}

// Every command gets the same argument: the log of an export under way, so that a
// command that shows a task's log has one to show. The others pay it no heed.
void runCommand(const std::string& name) {
    Zn::Ptr<TaskLog> log(new TaskLog);
    writeSampleExportRows(*log);
    CommandRegistrar::invoke(LightweightString<char>(name.c_str()), Zn::Ptr<iObject>(log));
    GlobManager::instance().runUntilIdle();
    if (GlobManager::instance().roots().empty()) std::fprintf(stderr, "mosaic-gallery: the command %s put nothing on the screen\n", name.c_str());
}

// On an empty screen: the scene, if there is one, then the command, if there is one.
void stage(const GalleryScene* scene, const Options& o) {
    GalleryScene::clearScreen();
    if (scene) scene->build();
    GlobManager::instance().runUntilIdle();
    if (!o.command.empty()) runCommand(o.command);
}

void printProbe(const Options& o) {
    if (o.printRoots) GalleryProbe::printRoots(stdout);
    if (o.printWidgets) GalleryProbe::printWidgets(stdout);
}

bool writePicture(const std::string& dir, const std::string& name) {
    std::string path = (std::filesystem::path(dir) / (name + ".png")).string();
    if (!GlobManager::instance().screen().writePNG(path.c_str())) {
        std::fprintf(stderr, "mosaic-gallery: cannot write %s\n", path.c_str());
        return false;
    }
    std::printf("%s\n", path.c_str());
    return true;
}

// One picture a scene, or with a command one picture of the screen after it ran,
// named after the command.
int writeScreenshots(const Options& o) {
    std::error_code ec;
    std::filesystem::create_directories(o.dir, ec);
    if (ec) {
        std::fprintf(stderr, "mosaic-gallery: cannot make the folder %s: %s\n", o.dir.c_str(), ec.message().c_str());
        return 1;
    }
    std::vector<const GalleryScene*> scenes;
    if (!o.only.empty())
        scenes.push_back(findScene(o.only));
    else if (o.command.empty())
        for (const GalleryScene& scene : GalleryScene::all()) scenes.push_back(&scene);
    else
        scenes.push_back(nullptr);
    for (const GalleryScene* scene : scenes) {
        stage(scene, o);
        if (!writePicture(o.dir, o.command.empty() ? scene->name.str() : o.command)) return 1;
        printProbe(o);
    }
    GalleryScene::clearScreen();
    return 0;
}

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
    const GalleryScene* scene = nullptr;
    if (!o.only.empty())
        scene = findScene(o.only);
    else if (o.command.empty())
        scene = &GalleryScene::all().front();
    stage(scene, o);
    printProbe(o);
    GalleryProbe probe(o.report);
    if (probe.reporting()) return runProbed(window, probe);
    // The gallery ends when its window closes or its last panel is closed.
    window.run(true);
    return 0;
}

void usage() {
    std::printf(
        "usage: mosaic-gallery [--screenshots DIR] [--scene NAME] [--command NAME] [--list] [--print-roots] [--print-widgets] [--report FILE]\n");
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
        } else if (!std::strcmp(argv[i], "--command") && hasValue) {
            o.command = argv[++i];
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

// False, having said why, for a scene or a command that does not exist.
bool known(const Options& o) {
    if (!o.only.empty() && !findScene(o.only)) {
        std::fprintf(stderr, "mosaic-gallery: no scene named %s (--list names them)\n", o.only.c_str());
        return false;
    }
    if (!o.command.empty() && !CommandRegistrar::exists(LightweightString<char>(o.command.c_str()))) {
        std::string names;
        for (const auto& name : CommandRegistrar::names()) names += (names.empty() ? "" : ", ") + name.str();
        std::fprintf(stderr, "mosaic-gallery: no command named %s; the commands are: %s\n", o.command.c_str(), names.c_str());
        return false;
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
    if (!known(o)) return 2;
    if (o.dir.empty() && SdlBackend::displayAvailable()) return runWindow(o);
    if (o.dir.empty()) {
        o.dir = "gallery-screenshots";
        std::fprintf(stderr, "mosaic-gallery: no display; writing screenshots to %s\n", o.dir.c_str());
    }
    return writeScreenshots(o);
}
