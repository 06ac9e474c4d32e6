// Compositing a full-HD screen of ten top-level panels.
#include "controls/StandardPanel.h"
#include "draw/Screen.h"
#include "glob/GlobManager.h"

#include <benchmark/benchmark.h>

namespace {

void BM_CompositeTenPanels(benchmark::State& state) {
    GlobManager& gm = GlobManager::instance();
    std::vector<StandardPanel*> panels;
    for (int i = 0; i < 10; ++i) {
        auto* p = new StandardPanel(480, 360);
        p->setBorder(StandardPanel::getDefaultBorder());
        p->setTitle(UIString(L"Panel"));
        p->setupRootPos({60 + 130 * i, 80 + 50 * i});
        gm.realize(p);
        panels.push_back(p);
    }
    gm.runUntilIdle();
    if (gm.screen().width() != 1920 || gm.screen().height() != 1080) state.SkipWithError("screen is not 1920x1080");
    for (auto _ : state) {
        gm.screenChanged();
        gm.compose();
        benchmark::DoNotOptimize(gm.screen().pixel(100, 100));
    }
    for (StandardPanel* p : panels) delete p;
}
BENCHMARK(BM_CompositeTenPanels)->Unit(benchmark::kMillisecond);

} // namespace
