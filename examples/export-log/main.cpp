// export-log: a log panel fed by a worker thread, with a progress gauge. The worker
// writes to the task log from its own thread; the panel takes the rows and the
// progress in on the user-interface thread as the loop runs. With a display it
// shows the window until it is closed; with --headless (or with no display) it
// runs until the work is done, prints what the panel shows and, given a file
// after --headless, writes a picture of the screen there.
#include "backend/SdlBackend.h"
#include "controls/Gauge.h"
#include "draw/Screen.h"
#include "glob/GlobManager.h"
#include "logging/Logger.h"
#include "tasks/TaskLog.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <string>
#include <thread>

namespace {

const int kClips = 24;

// The work: any thread may write to a task log and report its progress.
void exportClips(const Zn::Ptr<iTaskLog>& log, std::atomic<bool>& done) {
    log->write(L"Exporting " + LightweightString<wchar_t>(std::to_wstring(kClips)) + L" clips", LoggerBase::otEmphasis);
    for (int clip = 1; clip <= kClips; ++clip) {
        std::this_thread::sleep_for(std::chrono::milliseconds(40));
        const auto name = LightweightString<wchar_t>(L"clip_" + std::to_wstring(clip) + L".mov");
        log->write(name + (clip % 8 ? L" written" : L" written with a warning: no audio"), clip % 8 ? LoggerBase::otNormal : LoggerBase::otWarning);
        log->updateProgress(static_cast<double>(clip) / kClips, L"");
    }
    log->write(L"Export finished", LoggerBase::otSuccess);
    done = true;
}

} // namespace

int main(int argc, char** argv) {
    const bool headless = (argc > 1 && !std::strcmp(argv[1], "--headless")) || !SdlBackend::displayAvailable();
    GlobManager& gm = GlobManager::instance();

    Zn::Ptr<iTaskLog> log(new TaskLog);
    Logger::InitArgs args(14, 560, Logger::kShowProgress);
    args.taskLog = log;
    args.title = UIString(L"Export");
    auto* logger = new Logger(args);
    logger->setupRootPos({40, gm.screen().height() - 40 - logger->height()});
    gm.realize(logger);

    std::atomic<bool> done = false;
    std::thread worker(exportClips, log, std::ref(done));
    if (headless) {
        while (!done) {
            gm.runUntilIdle();
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        worker.join();
        gm.runUntilIdle();
        std::printf("%u rows, gauge at %.0f%%\n", logger->rowCount(), logger->gauge() ? logger->gauge()->getMeasure() * 100 : 0.0);
        if (argc > 2 && !gm.screen().writePNG(argv[2])) return 1;
        return 0;
    }
    SdlBackend window;
    if (!window.open("Export log")) {
        std::fprintf(stderr, "export-log: cannot open a window (%s)\n", SdlBackend::lastError());
        done.wait(false);
        worker.join();
        return 1;
    }
    window.run(true);
    // The log outlives the panel, so the worker may finish after the window closed.
    worker.join();
    return 0;
}
