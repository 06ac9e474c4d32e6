// The cost of one value change: a server alone, and a server with adaptors that
// each show the value in one widget.
#include "value/ValAdaptor.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

class Shown : public ValWidget<int> {
public:
    int getWidgetValue() const override { return value; }
    void setNewWidgetValue(int& v, eRedrawFlag) override { value = v; }
    int value = 0;
};

void BM_ServerAssignNoClient(benchmark::State& state) {
    ValServer<int> server;
    int i = 0;
    for (auto _ : state) {
        server = ++i;
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_ServerAssignNoClient);

// Each client is an adaptor with one widget, as a control bound to a value is.
void BM_ServerAssignAdaptorClients(benchmark::State& state) {
    ValServer<int> server;
    std::vector<Shown> widgets(static_cast<std::size_t>(state.range(0)));
    for (auto& w : widgets) w.setDataAdaptor(Zn::Ptr<ValAdaptorBase<int>>(new ValAdaptor<int, int>(&server)));
    int i = 0;
    for (auto _ : state) {
        server = ++i;
        benchmark::DoNotOptimize(widgets.back().value);
    }
    if (widgets.back().value != i) state.SkipWithError("a widget missed a change");
}
BENCHMARK(BM_ServerAssignAdaptorClients)->Arg(1)->Arg(100);

} // namespace
