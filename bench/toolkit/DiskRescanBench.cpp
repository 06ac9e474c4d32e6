// One rescan of the drives as the watcher thread makes it: a mount table of 100
// volumes read into drives with their ids, and statvfs asked of each; and the
// table alone.
#include "media/DiskScanner.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <unistd.h>

namespace {

// With `withSpace` false only the table is read, to tell its part from statvfs's.
void rescan(benchmark::State& state, bool withSpace) {
    const std::filesystem::path root = std::filesystem::temp_directory_path() / ("mosaic-rescan-" + std::to_string(getpid()));
    std::string table;
    for (int i = 0; i < 100; ++i) {
        const std::filesystem::path at = root / ("volume " + std::to_string(i));
        std::filesystem::create_directories(at);
        std::string escaped = at.string();
        escaped.replace(escaped.find(' '), 1, "\\040");
        table += std::to_string(30 + i) + " 1 8:" + std::to_string(i) + " / " + escaped + " rw,relatime shared:1 - ext4 /dev/sd" + std::to_string(i) +
                 " rw\n";
    }
    DiskScanner scanner{DiskSources{}};
    std::size_t found = 0;
    for (auto _ : state) {
        const std::vector<MediaDrive> volumes = withSpace ? scanner.scan(table) : scanner.volumesOf(table);
        found = volumes.size();
        benchmark::DoNotOptimize(volumes.data());
    }
    if (found != 100) state.SkipWithError("volumes missing from the scan");
    std::filesystem::remove_all(root);
}
void BM_DiskRescanOfAHundredVolumes(benchmark::State& state) { rescan(state, true); }
void BM_DiskTableOfAHundredVolumes(benchmark::State& state) { rescan(state, false); }
BENCHMARK(BM_DiskRescanOfAHundredVolumes)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_DiskTableOfAHundredVolumes)->Unit(benchmark::kMicrosecond);

} // namespace
