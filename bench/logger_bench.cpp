// The log panel under load: a worker thread writes short lines that a 600-pixel
// wide logger on the screen takes in (rows made, measured and wrapped, the table
// painted once per run of arrivals); and the painting of one screen of rows, which
// must not depend on how many rows the logger holds.
#include "logging/Logger.h"

#include "controls/TableWidget.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "tasks/TaskLog.h"

#include <benchmark/benchmark.h>

#include <string>
#include <thread>

namespace {

Logger* makeLogger(const Zn::Ptr<iTaskLog>& log) {
    Logger::InitArgs a(20, 600, 0);
    a.taskLog = log;
    a.palette = UifStd::instance().getColourScheme();
    auto* l = new Logger(a);
    l->setupRootPos({40, 40});
    GlobManager::instance().realize(l);
    return l;
}

void BM_LoggerTakesLinesFromAWorker(benchmark::State& state) {
    const int lines = static_cast<int>(state.range(0));
    for (auto _ : state) {
        Zn::Ptr<iTaskLog> log(new TaskLog);
        Logger* l = makeLogger(log);
        std::thread worker([&log, lines] {
            for (int i = 0; i < lines; ++i)
                log->write(LightweightString<wchar_t>(L"frame " + std::to_wstring(i) + L" rendered in 41 ms"), LoggerBase::otNormal);
        });
        while (l->rowCount() < lines) GlobManager::instance().processPending();
        worker.join();
        state.PauseTiming();
        delete l;
        GlobManager::instance().runUntilIdle();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * lines);
}
BENCHMARK(BM_LoggerTakesLinesFromAWorker)->Arg(60'000)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_LoggerPaintsOneScreen(benchmark::State& state) {
    Zn::Ptr<iTaskLog> log(new TaskLog);
    for (int i = 0; i < state.range(0); ++i)
        log->write(LightweightString<wchar_t>(L"frame " + std::to_wstring(i) + L" rendered in 41 ms"),
                   i % 50 ? LoggerBase::otNormal : LoggerBase::otWarning);
    Logger* l = makeLogger(log);
    GlobManager::instance().runUntilIdle();
    l->table()->revealRow(static_cast<int>(state.range(0)) / 2, true, 0);
    for (auto _ : state) l->table()->redraw();
    delete l;
    GlobManager::instance().runUntilIdle();
}
BENCHMARK(BM_LoggerPaintsOneScreen)->Arg(100)->Arg(60'000)->Unit(benchmark::kMicrosecond);

} // namespace
