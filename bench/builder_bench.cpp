// Panels built from JSON: the whole build of a mixed description (parsing
// included), painting the built panel from scratch, and one user change on a panel
// with many post-conditions, from the control's request to the last listener.
#include "controls/Checkbox.h"
#include "controls/StandardPanel.h"
#include "core/FunctionCallback.h"
#include "draw/UifStd.h"
#include "glob/Glob.h"
#include "glob/GlobManager.h"
#include "params/UIBuilderParams.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

// A mixed description: switches, sliders of both kinds, choices, texts, a few
// labels and headings; every fifth row depends on a switch, as real panels do.
std::wstring description(int rows, int conditions) {
    std::wstring text = L"{\"params\": [";
    for (int i = 0; i < rows; ++i) {
        const std::wstring n = std::to_wstring(i);
        if (i) text += L",";
        std::wstring condition = i > 0 && i % 5 == 0 && conditions-- > 0 ? L", \"active if\": \"p0=true\"" : L"";
        switch (i % 7) {
        case 0:
            text += L"{\"type\": \"bool\", \"name\": \"p" + n + L"\", \"legend\": \"Enable stage " + n + L"\", \"default\": true" + condition + L"}";
            break;
        case 1:
            text += L"{\"type\": \"int\", \"name\": \"p" + n + L"\", \"legend\": \"Level " + n + L"\", \"min\": 0, \"max\": 100, \"default\": 50" +
                    condition + L"}";
            break;
        case 2:
            text += L"{\"type\": \"float\", \"name\": \"p" + n + L"\", \"legend\": \"Gain " + n + L"\", \"min\": 0, \"max\": 2, \"default\": 1" +
                    condition + L"}";
            break;
        case 3:
            text += L"{\"type\": \"int\", \"name\": \"p" + n + L"\", \"legend\": \"Mode " + n +
                    L"\", \"values\": {\"Fast\": 0, \"Good\": 1, \"Best\": 2}" + condition + L"}";
            break;
        case 4:
            text +=
                L"{\"type\": \"text\", \"name\": \"p" + n + L"\", \"legend\": \"Name " + n + L"\", \"value\": \"clip " + n + L"\"" + condition + L"}";
            break;
        case 5: text += L"{\"type\": \"label\", \"name\": \"p" + n + L"\", \"legend\": \"Notes on stage " + n + L" of the export.\"}"; break;
        default: text += L"{\"type\": \"heading\", \"legend\": \"Section " + n + L"\"}"; break;
        }
    }
    return text + L"]}";
}

StandardPanel* makePanel(int rows) {
    const UifStd& u = UifStd::instance();
    auto* panel =
        new StandardPanel(StandardPanel::InitArgs(600, static_cast<unsigned short>(std::min(65000, rows * (u.getRowHeight() + u.getRowGap()) + 40))));
    panel->setupRootPos({0, 0});
    return panel;
}

void BM_BuildFromJSON(benchmark::State& state) {
    const int rows = static_cast<int>(state.range(0));
    const LightweightString<wchar_t> text(description(rows, 0).c_str());
    for (auto _ : state) {
        StandardPanel* panel = makePanel(rows);
        auto set = UIBuilder::buildFromJSON(text, panel);
        benchmark::DoNotOptimize(set->params().size());
        state.PauseTiming();
        delete panel;
        state.ResumeTiming();
    }
    state.counters["rows"] = rows;
}
BENCHMARK(BM_BuildFromJSON)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

void BM_PaintBuiltPanel(benchmark::State& state) {
    StandardPanel* panel = makePanel(100);
    auto set = UIBuilder::buildFromJSON(LightweightString<wchar_t>(description(100, 0).c_str()), panel);
    GlobManager::instance().realize(panel);
    GlobManager::instance().runUntilIdle();
    for (auto _ : state) panel->drawUnbuffered();
    state.counters["height"] = panel->height();
    delete panel;
}
BENCHMARK(BM_PaintBuiltPanel)->Unit(benchmark::kMillisecond);

void BM_OneUserChange(benchmark::State& state) {
    StandardPanel* panel = makePanel(100);
    auto set = UIBuilder::buildFromJSON(LightweightString<wchar_t>(description(100, 20).c_str()), panel);
    GlobManager::instance().realize(panel);
    GlobManager::instance().runUntilIdle();
    int heard = 0;
    set->addListener(
        UIBuilder::Params::Listener(new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([&heard](const NotifyMsg&) {
            ++heard;
            return 0;
        }))));
    auto* box = dynamic_cast<Checkbox*>(set->getWidget("p7"));
    bool on = false;
    // What the change asks to be repainted is dropped: painting is not part of a change.
    Drawable::disableRedraws();
    for (auto _ : state) {
        on = !on;
        box->requestSetNewDataValue(on, kFinalChange);
        Drawable::clearPendingRedraws();
    }
    Drawable::enableRedraws();
    if (heard != static_cast<int>(state.iterations())) state.SkipWithError("a change was not heard once");
    state.counters["postConditions"] = 20;
    delete panel;
}
BENCHMARK(BM_OneUserChange)->Unit(benchmark::kMicrosecond);

} // namespace
