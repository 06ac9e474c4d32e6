// Creating and destroying a panel with 100 child globs.
#include "controls/StandardPanel.h"

#include <benchmark/benchmark.h>

namespace {

void BM_CreateDestroyPanelWith100Children(benchmark::State& state) {
    for (auto _ : state) {
        Drawable::disableRedraws();
        auto* p = new StandardPanel(600, 2600);
        Glob* previous = nullptr;
        for (int i = 0; i < 100; ++i) {
            StandardPanel::InitArgs row(0, 24);
            previous = p->createWidget<StandardPanel>(row, previous ? Glob::Below(2, previous) : Glob::UserTopLeft(0, 0));
        }
        Drawable::clearPendingRedraws();
        Drawable::enableRedraws();
        delete p;
    }
}
BENCHMARK(BM_CreateDestroyPanelWith100Children)->Unit(benchmark::kMicrosecond);

} // namespace
