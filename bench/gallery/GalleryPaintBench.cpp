// Painting each gallery scene from scratch on a full-HD headless screen: every
// top-level glob draws its whole tree on its canvas, then the screen is composited.
// The "controls" counter is the number of globs below the top-level ones.
#include "GalleryScene.h"

#include "draw/Screen.h"
#include "glob/Glob.h"
#include "glob/GlobManager.h"

#include <benchmark/benchmark.h>

namespace {

void paintScene(benchmark::State& state, const GalleryScene& scene) {
    GlobManager& gm = GlobManager::instance();
    GalleryScene::clearScreen();
    scene.build();
    gm.runUntilIdle();
    if (gm.screen().width() != 1920 || gm.screen().height() != 1080) state.SkipWithError("screen is not 1920x1080");
    for (auto _ : state) {
        for (Glob* root : gm.roots()) root->drawUnbuffered();
        gm.compose();
        benchmark::DoNotOptimize(gm.screen().pixel(100, 100));
    }
    state.counters["controls"] = GalleryScene::countControls();
    GalleryScene::clearScreen();
}

} // namespace

// Scenes register themselves during static initialisation, in no set order with
// this file's, so the benchmarks are made from them only once main runs.
int main(int argc, char** argv) {
    for (const GalleryScene& scene : GalleryScene::all())
        benchmark::RegisterBenchmark(("BM_PaintGalleryScene/" + scene.name.str()).c_str(), paintScene, scene)->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
