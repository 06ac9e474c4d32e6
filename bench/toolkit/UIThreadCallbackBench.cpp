// Handing calls from a worker thread to the UI thread through a deferred callback.
#include "controls/StandardPanel.h"
#include "glob/GlobManager.h"
#include "value/UIThreadCallback.h"

#include <benchmark/benchmark.h>

#include <atomic>
#include <thread>

namespace {

class Sink : public StandardPanel {
public:
    Sink() : StandardPanel(10, 10) {}
    int onNotice(const NotifyMsg&) { return ++received; }
    long received = 0;
};

void BM_DeferredCallsFromWorkerToUIThread(benchmark::State& state) {
    const long batch = state.range(0);
    Sink sink;
    auto cb = makeDeferredCallback(&sink, &Sink::onNotice);
    NotifyMsg msg("tick");
    for (auto _ : state) {
        sink.received = 0;
        std::thread worker([&] {
            for (long i = 0; i < batch; ++i) cb->execute(msg);
        });
        while (sink.received < batch) GlobManager::instance().processPending();
        worker.join();
    }
    state.SetItemsProcessed(state.iterations() * batch);
}
BENCHMARK(BM_DeferredCallsFromWorkerToUIThread)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
