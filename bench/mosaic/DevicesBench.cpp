// The device manager made for the first time over eight simulated drivers: the
// device list, the stored choice and its output format read from the preferences.
#include "media/UIHWDeviceManager.h"
#include "media/ZnDeviceDriverManager.h"
#include "platform/Configuration.h"

#include <benchmark/benchmark.h>
#include <loki/Singleton.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

void BM_DeviceManagerFirstUseWithEightDrivers(benchmark::State& state) {
    // A settings folder of its own, so that the user's preferences stay out of it.
    const std::filesystem::path home = std::filesystem::temp_directory_path() / ("mosaic-devices-bench-" + std::to_string(getpid()));
    std::filesystem::create_directories(home);
    std::ofstream(home / "config.json") << R"({"simulated_io_drivers": 8})";
    setenv("MOSAIC_HOME", home.c_str(), 1);
    Configuration::reload();
    ZnDeviceDriverManager::theDeviceDriverManager().rediscover();
    std::size_t devices = 0;
    for (auto _ : state) {
        Loki::DeletableSingleton<UIHWDeviceManager>::GracefulDelete();
        devices = UIHWDeviceManager::instance().getDevices().size();
    }
    if (devices != 9) state.SkipWithError("simulated drivers missing");
    std::filesystem::remove_all(home);
}
BENCHMARK(BM_DeviceManagerFirstUseWithEightDrivers)->Unit(benchmark::kMicrosecond);

} // namespace
