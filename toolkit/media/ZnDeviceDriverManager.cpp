#include "ZnDeviceDriverManager.h"

#include "SimulatedDeviceDriver.h"
#include "V4L2DeviceDriver.h"
#include "platform/Configuration.h"

#include <string>

namespace {
// 1080p 25 and 720p 50 of the format table, as a simple card would offer them.
std::set<ShotVideoMetadata> simulatedFormats() {
    std::set<ShotVideoMetadata> formats;
    for (const std::uint32_t uid : {27u, 11u}) {
        const auto info = Zn::DigitalVideoFormats::findByUID(Zn::Image::FormatUID(uid));
        formats.insert(ShotVideoMetadata(info, Zn::Image::Format("YUY2"), Zn::kFrameRateNone, Zn::Image::kAspect16x9, true, info.scanMode, 8));
    }
    return formats;
}
} // namespace

ZnDeviceDriverManager& ZnDeviceDriverManager::theDeviceDriverManager() {
    static ZnDeviceDriverManager manager;
    return manager;
}

void ZnDeviceDriverManager::rediscover() {
    disableDevices();
    plugins_ = V4L2DeviceDriver::discover();
    const int simulated = config_int("simulated_io_drivers", 0);
    const int refused = config_int("simulated_io_refused", 0);
    for (int i = 1; i <= simulated && i <= 0xFFFF; ++i) {
        const std::string name = "Simulated Device " + std::to_string(i);
        addPlugin(Zn::Ptr<ZnDeviceDriver>(new SimulatedDeviceDriver(name.c_str(), kResourceVideoIO, i == refused, simulatedFormats())));
    }
    if (simulated > 0) addPlugin(Zn::Ptr<ZnDeviceDriver>(new SimulatedDeviceDriver("Simulated Mixer", kResourceAudioMixer)));
}

void ZnDeviceDriverManager::disableDevices() {
    for (const Zn::Ptr<ZnDeviceDriver>& d : plugins_)
        if (d->isEnabled()) d->enable(false);
}

bool ZnDeviceDriverManager::toggleDevices(const LightweightString<char>& name, bool exclusive) {
    for (const Zn::Ptr<ZnDeviceDriver>& d : plugins_) {
        if (d->resourceType != kResourceVideoIO || d->name != name) continue;
        if (exclusive) disableDevices();
        return d->enable(true);
    }
    return false;
}

ZnDeviceDriver* ZnDeviceDriverManager::enabledDevice() const {
    for (const Zn::Ptr<ZnDeviceDriver>& d : plugins_)
        if (d->resourceType == kResourceVideoIO && d->isEnabled()) return d.get();
    return nullptr;
}
