// Counting the wrapped lines of short log rows, as a log panel does for every row
// it receives: a Pango layout per row, against calcNumDisplayLines, which counts
// plain Latin text from cached advances and leaves other text to Pango.
#include "draw/FontDesc.h"
#include "draw/WordWrappingTextRenderer.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

using Glib::WordWrappingTextRenderer;

std::vector<LightweightString<wchar_t>> logRows(int n) {
    std::vector<LightweightString<wchar_t>> rows;
    for (int i = 0; i < n; ++i) {
        std::wstring row = L"Rendering frame " + std::to_wstring(i * 37 % 9000) + L" of clip_" + std::to_wstring(i % 97) +
                           L".mov (proxy) at 1920x1080, " + std::to_wstring(i % 60) + L" fps";
        if (i % 3 == 0) row += L": waiting for the disk cache to settle before the next pass";
        rows.emplace_back(row);
    }
    return rows;
}

std::vector<LightweightString<wchar_t>> otherScriptRows(int n) {
    std::vector<LightweightString<wchar_t>> rows;
    for (int i = 0; i < n; ++i) rows.emplace_back(L"\u6e32\u67d3 " + std::to_wstring(i) + L" \u0645\u0631\u062d\u0628\u0627 well-known/path");
    return rows;
}

// Items are rows; the wrap width is the argument.
void countRows(benchmark::State& state, const std::vector<LightweightString<wchar_t>>& rows, bool viaLayout) {
    Glib::FontDesc font = Glib::getDefaultFont();
    int width = static_cast<int>(state.range(0));
    std::size_t i = 0;
    for (auto _ : state) {
        const auto& row = rows[i++ % rows.size()];
        unsigned short n =
            viaLayout ? WordWrappingTextRenderer(row, font, width).numLines() : WordWrappingTextRenderer::calcNumDisplayLines(row, width, font);
        benchmark::DoNotOptimize(n);
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_WrapLogRowsWithAPangoLayout(benchmark::State& state) { countRows(state, logRows(1000), true); }
void BM_WrapLogRowsWithCalcNumDisplayLines(benchmark::State& state) { countRows(state, logRows(1000), false); }
void BM_WrapOtherScriptsWithCalcNumDisplayLines(benchmark::State& state) { countRows(state, otherScriptRows(100), false); }

} // namespace

BENCHMARK(BM_WrapLogRowsWithAPangoLayout)->Arg(200)->Arg(600);
BENCHMARK(BM_WrapLogRowsWithCalcNumDisplayLines)->Arg(200)->Arg(600);
BENCHMARK(BM_WrapOtherScriptsWithCalcNumDisplayLines)->Arg(200);
