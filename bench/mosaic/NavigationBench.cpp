// The navigation widgets' hot paths: one step of dragging a divider between two
// panels of 50 rows, repaint included; split tabs merging or splitting with four
// pages a side; and the page index's window of 255 buttons rebuilt.
#include "controls/TextLabel.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "panels/PageIndexWidget.h"
#include "panels/SpaceDivider.h"
#include "panels/SplitTabsWidget.h"

#include <benchmark/benchmark.h>

namespace {

template <class T>
T* realizeAt(T* g) {
    g->setupRootPos({100, 100});
    GlobManager::instance().realize(g);
    GlobManager::instance().runUntilIdle();
    return g;
}

StandardPanel* rowsPanel(int rows) {
    const auto row = static_cast<unsigned short>(UifStd::instance().getRowHeight());
    StandardPanel::InitArgs args(300, static_cast<unsigned short>(rows * row));
    args.palette = UifStd::instance().getColourScheme();
    auto* p = new StandardPanel(args);
    for (int i = 0; i < rows; ++i) {
        TextLabel::InitArgs l(UIString(L"Clip " + std::to_wstring(i + 1) + L", 00:00:12:05"), 300, row);
        p->createWidget<TextLabel>(l, Glob::UserTopLeft(0, i * row));
    }
    return p;
}

void BM_DividerDragStep(benchmark::State& state) {
    const int h = 50 * UifStd::instance().getRowHeight();
    SpaceDivider::InitArgs args(800, static_cast<unsigned short>(h), Splitter::kSideBySide, rowsPanel(50), rowsPanel(50));
    args.palette = UifStd::instance().getColourScheme();
    auto* divider = realizeAt(new SpaceDivider(args));
    GlobManager& gm = GlobManager::instance();
    const XY<int> grab = divider->getSplitter()->screenPos() + XY<int>(1, h / 2);
    gm.dispatch(Event::mouse(Event::kMouseDown, grab, Event::kLeft));
    int step = 0;
    for (auto _ : state) {
        step = (step + 7) % 200;
        gm.dispatch(Event::mouse(Event::kMouseMove, grab + XY<int>(step - 100, 0), Event::kLeft));
        gm.runUntilIdle();
    }
    gm.dispatch(Event::mouse(Event::kMouseUp, grab, Event::kLeft));
    delete divider;
}
BENCHMARK(BM_DividerDragStep)->Unit(benchmark::kMicrosecond);

void BM_SplitTabsMergeOrSplit(benchmark::State& state) {
    SplitTabsWidget::InitArgs args(900, 400);
    args.palette = UifStd::instance().getColourScheme();
    for (int i = 0; i < 4; ++i) {
        args.leftPages.push_back({rowsPanel(10), UIString(L"Left " + std::to_wstring(i + 1))});
        args.rightPages.push_back({rowsPanel(10), UIString(L"Right " + std::to_wstring(i + 1))});
    }
    args.coalesceWidth = 600;
    auto* tabs = realizeAt(new SplitTabsWidget(args));
    bool narrow = false;
    for (auto _ : state) {
        narrow = !narrow;
        tabs->reshapeAndDraw(XY<int>(narrow ? 500 : 900, 400));
        GlobManager::instance().runUntilIdle();
    }
    delete tabs;
}
BENCHMARK(BM_SplitTabsMergeOrSplit)->Unit(benchmark::kMicrosecond);

void BM_PageIndexRebuild255(benchmark::State& state) {
    PageIndexWidget::InitArgs args(1000, 255, 1880, static_cast<unsigned short>(UifStd::instance().getRowHeight()));
    args.palette = UifStd::instance().getColourScheme();
    auto* index = realizeAt(new PageIndexWidget(args));
    bool far = false;
    for (auto _ : state) {
        far = !far;
        index->setPages(far ? 700 : 300, 1000);
        GlobManager::instance().runUntilIdle();
    }
    delete index;
}
BENCHMARK(BM_PageIndexRebuild255)->Unit(benchmark::kMicrosecond);

} // namespace
