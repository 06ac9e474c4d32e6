// Scanning a folder of 1,000 tutorials of 20 phases each, as the catalogue does at start.
#include "core/Utf8.h"
#include "tutorials/TutorialsManager.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <unistd.h>

namespace {

LightweightString<wchar_t> makeFolder(int count, int phases) {
    auto dir = std::filesystem::temp_directory_path() / ("mosaic-bench-tutorials-" + std::to_string(getpid()));
    std::filesystem::create_directories(dir);
    LightweightString<wchar_t> folder = fromUTF8(dir.string().c_str());
    for (int i = 0; i < count; ++i) {
        Tutorial t;
        t.setName(L"Tutorial");
        t.setCategory(i % 2 ? L"Editing" : L"Colour");
        t.addComponent({"Timeline", {0, 0}, {}, {1200, 300}});
        for (int p = 0; p < phases; ++p) {
            Zn::Ptr<Tutorial::Phase> phase(new Tutorial::Phase);
            phase->pointer.x = 10 * p;
            phase->pointer.y = 20;
            phase->message.text = L"Move the playhead to the marked frame and press the key.";
            phase->message.target = L"Timeline";
            phase->message.relativity = kAbove;
            phase->action.event = "click";
            phase->action.modifiers = Modifiers::Shift;
            phase->pause = 0.5f;
            t.addPhase(phase);
        }
        t.save(folder + fromUTF8(("/T" + std::to_string(i) + ".ZnTutorial").c_str()));
    }
    return folder;
}

void BM_ScanThousandTutorials(benchmark::State& state) {
    LightweightString<wchar_t> folder = makeFolder(1000, 20);
    for (auto _ : state) {
        TutorialsManager m(folder);
        if (m.tutorials().size() != 1000) state.SkipWithError("not every tutorial was read");
        benchmark::DoNotOptimize(m.categories().size());
    }
    std::filesystem::remove_all(toUTF8(folder).c_str());
}
BENCHMARK(BM_ScanThousandTutorials)->Unit(benchmark::kMillisecond);

} // namespace
