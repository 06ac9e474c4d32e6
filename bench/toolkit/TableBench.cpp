// Scrolling a table one page and repainting it, for tables of 100 and of 100,000
// rows: only the rows in view are asked for and painted, so both cost the same.
#include "controls/TableWidget.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

class NumberedRows : public iTableAdaptor {
public:
    explicit NumberedRows(unsigned n) : n_(n) {}
    std::vector<TableColumnDescription> getColumnDefinitions() override {
        return {TableColumnDescription(UIString(L"Clip")), TableColumnDescription(UIString(L"Frames"), 90),
                TableColumnDescription(UIString(L"Format"), 90)};
    }
    unsigned getSize() override { return n_; }
    LightweightString<wchar_t> getFieldText(const XY<int>& cell) override {
        asked_++;
        if (cell.x == 0) return LightweightString<wchar_t>(L"clip_" + std::to_wstring(cell.y) + L".mov");
        if (cell.x == 1) return LightweightString<wchar_t>(std::to_wstring(cell.y * 25));
        return L"1080p25";
    }
    long asked() const { return asked_; }

private:
    unsigned n_;
    long asked_ = 0;
};

void BM_TableScrollPageAndRepaint(benchmark::State& state) {
    NumberedRows rows(static_cast<unsigned>(state.range(0)));
    TableWidget::InitArgs args(&rows, 600, static_cast<unsigned short>(TableWidget::calcHeight(30, 2)));
    args.palette = UifStd::instance().getColourScheme();
    auto* table = new TableWidget(args);
    table->setupRootPos({100, 100});
    GlobManager& gm = GlobManager::instance();
    gm.realize(table);
    gm.runUntilIdle();
    int page = table->numLines();
    int row = 0;
    for (auto _ : state) {
        row += page;
        if (row >= state.range(0)) row = 0;
        // The bracket turns the scroll's repaint into exactly one paint of the view.
        Drawable::disableRedraws();
        table->scrollToRow(row);
        Drawable::enableRedraws();
        benchmark::DoNotOptimize(table->getLastVisibleRow());
    }
    state.counters["cells_asked_per_page"] = benchmark::Counter(static_cast<double>(rows.asked()) / static_cast<double>(state.iterations()));
    delete table;
    gm.runUntilIdle();
}
BENCHMARK(BM_TableScrollPageAndRepaint)->Arg(100)->Arg(100000)->Unit(benchmark::kMicrosecond);

} // namespace
