// Typing one character into the code editor and repainting it, for texts of 100
// and of 10,000 lines: only the lines in view are laid out and painted, so the
// long text costs little more than the short one.
#include "controls/CodeEditor.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

LightweightString<wchar_t> jsonLines(int n) {
    std::wstring s = L"[\n";
    for (int i = 0; i < n; ++i)
        s += L"    { \"type\": \"int\", \"name\": \"p" + std::to_wstring(i) + L"\", \"default\": " + std::to_wstring(i) + L" },\n";
    return LightweightString<wchar_t>(s + L"]");
}

void BM_CodeEditorTypeAndRepaint(benchmark::State& state) {
    CodeEditor::InitArgs args(jsonLines(static_cast<int>(state.range(0))), 600, 400);
    args.palette = UifStd::instance().getColourScheme();
    auto* editor = new CodeEditor(args);
    editor->setupRootPos({100, 100});
    GlobManager& gm = GlobManager::instance();
    gm.realize(editor);
    editor->setCursorPosition(editor->indexOf(static_cast<int>(state.range(0) / 2), 4));
    gm.runUntilIdle();
    bool typing = true;
    for (auto _ : state) {
        // The bracket turns the edit's repaint into exactly one paint of the view.
        Drawable::disableRedraws();
        if (typing)
            editor->insertText(L"x");
        else
            editor->undo();
        typing = !typing;
        Drawable::enableRedraws();
        benchmark::DoNotOptimize(editor->getCursorPosition());
    }
    delete editor;
    gm.runUntilIdle();
}
BENCHMARK(BM_CodeEditorTypeAndRepaint)->Arg(100)->Arg(10000)->Unit(benchmark::kMicrosecond);

} // namespace
