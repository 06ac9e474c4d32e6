// The log panel fed by a worker thread: a row of every kind, indents, a link, a
// section with its rule, wrapped text, and the gauge part way with the time left.
#include "GalleryScene.h"

#include "controls/TableWidget.h"
#include "draw/Screen.h"
#include "glob/GlobManager.h"
#include "logging/Logger.h"
#include "tasks/HyperLink.h"
#include "tasks/TaskLog.h"

#include <thread>

namespace {

void feed(const Zn::Ptr<iTaskLog>& log) {
    using LB = LoggerBase;
    log->updateProgress(0.0, L"");
    log->write(L"Export of Reel 1", LB::otStatus);
    log->write(L"Source: 1920x1080, 25 frames a second, 4,812 frames", LB::otNormal);
    log->write(L"(probing the audio tracks quietly)", LB::otQuiet);
    log->incIndent();
    log->write(L"Track A1: 48 kHz, 24 bit", LB::otNormal);
    log->write(L"Track A2: silent for the first 12 frames", LB::otEmphasis);
    log->decIndent();
    log->write(L"3 frames dropped at 00:01:12:04", LB::otWarning);
    log->write(L"Could not read the LUT \"warm.cube\": using none", LB::otError);
    log->write(L"Video", LB::otHeading);
    log->write(L"Long lines wrap at the panel's width: the encoder was asked for a constant quality of 18, two passes, "
               L"and key frames every 50 frames, and it kept to all three.",
               LB::otNormal);
    log->write(L"Summary", LB::otSection);
    log->write(L"/tmp/exports/Reel 1.mov", LB::otHyperLink);
    log->write(L"<b>Mark-up</b> rows show <font color=\"#4aa3ff\">their own colours</font>", LB::otNormal);
    log->write(L"Reel 1 exported", LB::otSuccess);
    for (int i = 1; i <= 6; ++i) log->updateProgress(0.1 * i, L"");
}

void buildLogger() {
    Drawable::disableRedraws();
    const Screen& screen = GlobManager::instance().screen();
    Zn::Ptr<iTaskLog> log(new TaskLog);
    Logger::InitArgs a(14, 620, Logger::kShowProgress);
    a.taskLog = log;
    a.title = UIString(L"Export log");
    a.palette = UifStd::instance().getColourScheme();
    auto* logger = new Logger(a);
    logger->table()->setName("log");
    logger->setupRootPos({40, screen.height() - 40 - logger->height()});
    GlobManager::instance().realize(logger);
    // The rows arrive as notices from the worker, in order, when the loop runs.
    std::thread worker(feed, log);
    worker.join();
    Drawable::enableRedraws();
}

GallerySceneRegistration logger("logger", "The log panel fed by a worker thread: every kind of row, a link, a rule, a running gauge",
                                buildLogger);

} // namespace
