// The track and inspector widgets' hot paths: 50 track buttons with their glow
// repainted, and the glob tree tool opened over a tree of 5,000 globs.
#include "BenchHost.h"
#include "controls/StandardPanel.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "imaging/TrackButton.h"
#include "inspector/GlobTreePanel.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

void BM_RepaintFiftyGlowingTrackButtons(benchmark::State& state) {
    const int row = UifStd::instance().getRowHeight();
    StandardPanel* p = makeBenchHost(200, 50 * row, false);
    for (int i = 0; i < 50; ++i) {
        TrackButton::InitArgs args({}, {}, 200, static_cast<unsigned short>(row));
        auto* t = p->createWidget<TrackButton>(args, Glob::UserTopLeft(0, i * row));
        t->setTrackName(LightweightString<wchar_t>((L"Track " + std::to_wstring(i + 1)).c_str()));
        t->setGlowColour(TrackButton::defaultGlowColour());
    }
    GlobManager::instance().realize(p);
    GlobManager::instance().runUntilIdle();
    for (auto _ : state) {
        p->redraw();
        GlobManager::instance().runUntilIdle();
    }
    delete p;
}
BENCHMARK(BM_RepaintFiftyGlowingTrackButtons)->Unit(benchmark::kMicrosecond);

void BM_OpenGlobTreeOnFiveThousandGlobs(benchmark::State& state) {
    StandardPanel* p = makeBenchHost(400, 400, false);
    for (int i = 0; i < 50; ++i) {
        StandardPanel::InitArgs group(40, 40);
        auto* g = p->createWidget<StandardPanel>(group, Glob::BottomLeft(i % 10 * 40, i / 10 * 40));
        for (int j = 0; j < 99; ++j) {
            StandardPanel::InitArgs leaf(4, 4);
            g->createWidget<StandardPanel>(leaf, Glob::BottomLeft(j % 10 * 4, j / 10 * 4));
        }
    }
    GlobManager::instance().realize(p);
    GlobManager::instance().runUntilIdle();
    for (auto _ : state) {
        GlobTreePanel* tree = GlobTreePanel::create();
        GlobManager::instance().runUntilIdle();
        state.PauseTiming();
        delete tree;
        GlobManager::instance().runUntilIdle();
        state.ResumeTiming();
    }
    delete p;
}
BENCHMARK(BM_OpenGlobTreeOnFiveThousandGlobs)->Unit(benchmark::kMillisecond);

} // namespace
