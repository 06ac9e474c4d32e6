// The picker, the eye dropper and the magnifier: a picker dropped from its swatch
// button and painted, first paint included; one magnifier frame (grab, enlarge,
// paint) at two levels; a small grab off an up-to-date screen, and the mean of the
// whole screen.
#include "BenchHost.h"
#include "colour/ColEyeDropBase.h"
#include "colour/DropDownColourPickerButton.h"
#include "colour/MagnifyTool.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/glib_getScreenRect.h"

#include <benchmark/benchmark.h>

namespace {

void BM_PickerDroppedFromSwatchAndPainted(benchmark::State& state) {
    StandardPanel* host = makeBenchHost(200, 100);
    DropDownColourPickerButton::InitArgs args(24, 24);
    auto* button = host->createWidget<DropDownColourPickerButton>(args, Glob::BottomLeft(10, 10));
    GlobManager::instance().runUntilIdle();
    for (auto _ : state) {
        button->displayDropDown();
        GlobManager::instance().runUntilIdle();
        state.PauseTiming();
        button->removeMenuFromScreen();
        GlobManager::instance().runUntilIdle();
        state.ResumeTiming();
    }
    delete host;
}
BENCHMARK(BM_PickerDroppedFromSwatchAndPainted)->Unit(benchmark::kMillisecond);

void BM_MagnifierFrame(benchmark::State& state) {
    StandardPanel* host = makeBenchHost(400, 400);
    MagnifyTool::InitArgs args(MagnifyTool::kToolWindow, static_cast<int>(state.range(0)));
    args.width = 200;
    args.height = 220;
    auto* tool = new MagnifyTool(args);
    tool->setupRootPos({800, 400});
    GlobManager::instance().realize(tool);
    GlobManager::instance().runUntilIdle();
    for (auto _ : state) {
        tool->drawMagnified();
        GlobManager::instance().compose();
    }
    delete tool;
    delete host;
}
BENCHMARK(BM_MagnifierFrame)->Arg(2)->Arg(8)->Unit(benchmark::kMicrosecond);

void BM_GrabFromUpToDateScreen(benchmark::State& state) {
    StandardPanel* host = makeBenchHost(400, 400);
    GlobManager::instance().runUntilIdle();
    for (auto _ : state) benchmark::DoNotOptimize(glib_getScreenRect(BoxInt(200, 200, 217, 217)));
    delete host;
}
BENCHMARK(BM_GrabFromUpToDateScreen)->Unit(benchmark::kMicrosecond);

void BM_MeanOfWholeScreen(benchmark::State& state) {
    StandardPanel* host = makeBenchHost(400, 400);
    GlobManager::instance().runUntilIdle();
    const Screen& s = GlobManager::instance().screen();
    for (auto _ : state)
        benchmark::DoNotOptimize(ColEyeDropBase::getPixelColour({0.0, 0.0, static_cast<double>(s.width()), static_cast<double>(s.height())}));
    delete host;
}
BENCHMARK(BM_MeanOfWholeScreen)->Unit(benchmark::kMillisecond);

} // namespace
