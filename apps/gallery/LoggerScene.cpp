// The log panel fed by a worker thread: a row of every kind, indents, a link, a
// section with its rule, wrapped text, and the gauge part way with the time left.
#include "GalleryScene.h"
#include "SampleTaskLog.h"

#include "controls/TableWidget.h"
#include "draw/Screen.h"
#include "glob/GlobManager.h"
#include "logging/Logger.h"
#include "tasks/TaskLog.h"

#include <atomic>
#include <chrono>
#include <thread>

namespace {

// The export as a task runs it: the rows, then its progress a step of work at a
// time, so that the gauge works out the time left from a real rate.
void runExport(const Zn::Ptr<iTaskLog>& log, std::atomic<bool>& done) {
    log->updateProgress(0.0, L"");
    writeSampleExportRows(*log);
    for (int step = 1; step <= 12; ++step) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        log->updateProgress(0.03 * step, L"");
    }
    done = true;
}

void buildLogger() {
    Drawable::disableRedraws();
    GlobManager& gm = GlobManager::instance();
    Zn::Ptr<iTaskLog> log(new TaskLog);
    Logger::InitArgs a(14, 620, Logger::kShowProgress);
    a.taskLog = log;
    a.title = UIString(L"Export log");
    a.palette = UifStd::instance().getColourScheme();
    auto* logger = new Logger(a);
    logger->table()->setName("log");
    logger->setupRootPos({40, gm.screen().height() - 40 - logger->height()});
    gm.realize(logger);
    // The rows and the progress arrive as notices from the worker, in order, while the loop runs.
    std::atomic<bool> done = false;
    std::thread worker(runExport, log, std::ref(done));
    while (!done) {
        gm.runUntilIdle();
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    worker.join();
    Drawable::enableRedraws();
}

GallerySceneRegistration logger("logger", "The log panel fed by a worker thread: every kind of row, a link, a rule, a running gauge", buildLogger);

} // namespace
