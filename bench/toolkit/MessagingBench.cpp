// Posting messages from a worker thread and delivering them on the UI thread.
#include "controls/StandardPanel.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"

#include <benchmark/benchmark.h>

#include <atomic>
#include <thread>

namespace {

class Sink : public StandardPanel {
public:
    Sink() : StandardPanel(10, 10) {}
    int handleMessageEvent(const LightweightString<char>&, Glob*) override {
        ++received;
        return 1;
    }
    long received = 0;
};

void BM_PostFromWorkerDeliverOnUIThread(benchmark::State& state) {
    const long batch = state.range(0);
    GlobManager& gm = GlobManager::instance();
    Sink sink;
    LightweightString<char> name("tick");
    for (auto _ : state) {
        sink.received = 0;
        std::thread worker([&] {
            for (long i = 0; i < batch; ++i) sendMessage(name, &sink);
        });
        while (sink.received < batch) gm.processPending();
        worker.join();
    }
    state.SetItemsProcessed(state.iterations() * batch);
}
BENCHMARK(BM_PostFromWorkerDeliverOnUIThread)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
