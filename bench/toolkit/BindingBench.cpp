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

// The workload other toolkits are measured on: an int property whose listeners
// each store the int they are given.
class Stored : public iCallbackBase<int, NotifierEvent<int>> {
public:
    int execute(const NotifierEvent<int>& e) override {
        value = e.value;
        return 0;
    }
    int value = 0;
};

void BM_ServerAssignStoringListeners(benchmark::State& state) {
    ValServer<int> server;
    std::vector<Zn::Ptr<Stored>> listeners;
    std::vector<Zn::Ptr<Zn::Guard>> guards;
    for (int k = 0; k < state.range(0); ++k) {
        listeners.emplace_back(new Stored);
        guards.push_back(
            server.registerCallback(Zn::Ptr<iCallbackBase<int, NotifierEvent<int>>>(listeners.back()), ValServerBase::valChangedMsgType_));
    }
    int i = 0;
    for (auto _ : state) {
        server = ++i;
        benchmark::DoNotOptimize(listeners.back()->value);
    }
    if (listeners.back()->value != i) state.SkipWithError("a listener missed a change");
}
BENCHMARK(BM_ServerAssignStoringListeners)->Arg(1)->Arg(100);

} // namespace
