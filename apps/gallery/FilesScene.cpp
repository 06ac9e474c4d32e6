// File browsers on a made-up project folder: one choosing a clip among the
// project's video files, with a clip selected, and one choosing a folder.
#include "GalleryScene.h"

#include "controls/FileBrowser.h"
#include "core/Utf8.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"

#include <chrono>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

struct SampleFile {
    const char* name;
    std::uintmax_t size;
    int daysAgo;
};

// Every file gets a fixed size and date, so that each screenshot shows the same list.
fs::file_time_type dayOf(int daysBefore) {
    using namespace std::chrono;
    const sys_days base = year{2024} / May / 14;
    const sys_seconds at = base - days{daysBefore} + hours{10} + minutes{7 * daysBefore % 60};
    return file_clock::from_sys(at);
}

// The project folder, made afresh in the temporary folder: sizes are sparse, so a
// "1.4 GB" clip costs no disk.
fs::path makeProject() {
    const fs::path project = fs::temp_directory_path() / "mosaic-gallery-files" / "Harbour documentary";
    std::error_code ec;
    for (const char* folder : {"Audio", "Exports", "Footage", "Graphics"}) {
        fs::create_directories(project / folder, ec);
        fs::last_write_time(project / folder, dayOf(3), ec);
    }
    static const SampleFile files[] = {
        {"harbour_cut_v3.mov", 1503238553ull, 1}, {"interview_anna.mov", 734003200ull, 9},
        {"pier_drone.MP4", 412090368ull, 12},     {"titles.png", 2202009ull, 4},
        {"colour_notes.txt", 3412ull, 2},         {"edit_decisions.edl", 18022ull, 1},
        {"thumbnail.jpg", 286720ull, 6},          {"boat_horn.wav", 52428800ull, 15},
    };
    for (const SampleFile& f : files) {
        const fs::path p = project / f.name;
        std::ofstream(p, std::ios::binary).flush();
        fs::resize_file(p, f.size, ec);
        fs::last_write_time(p, dayOf(f.daysAgo), ec);
    }
    return project;
}

void buildFiles() {
    const fs::path project = makeProject();
    const Screen& screen = GlobManager::instance().screen();
    const int row = UifStd::instance().getRowHeight();

    FileBrowserBase::InitArgs clip(UIString(L"Import a clip"));
    clip.filters = {L"mov", L"mp4"};
    clip.startDirectory = fromUTF8((project / "harbour_cut_v3.mov").string().c_str());
    FileBrowser* clips = FileBrowser::make(clip, {40, screen.height() - 60 - FileBrowserBase::calcSize().y});
    clips->setName("fileBrowser");

    FileBrowserBase::InitArgs exports(UIString(L"Export to folder"), FileBrowserBase::kFolder, static_cast<unsigned short>(24 * row),
                                      static_cast<unsigned short>(16 * row));
    exports.startDirectory = fromUTF8(project.string().c_str());
    FileBrowser* folders = FileBrowser::make(exports, {80 + FileBrowserBase::calcSize().x, screen.height() - 60 - 16 * row});
    folders->setName("folderBrowser");
}

GallerySceneRegistration files("files", "file browsers: a clip chosen among video files, and a folder chooser", buildFiles);

} // namespace
