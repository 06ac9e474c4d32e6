#include "ZnVideoResourceInfo.h"

#include "ZnDeviceDriverManager.h"

namespace {

// The formats a device reported when its resources were last asked.
class ReportedOutput : public ZnVideoOutputResource {
public:
    explicit ReportedOutput(std::set<ShotVideoMetadata> formats) : formats_(std::move(formats)) {}
    std::set<ShotVideoMetadata> getFormats(int channel) const override { return channel == 0 ? formats_ : std::set<ShotVideoMetadata>(); }

private:
    std::set<ShotVideoMetadata> formats_;
};

} // namespace

ZnVideoResourceInfo& ZnVideoResourceInfo::state() {
    static ZnVideoResourceInfo info;
    return info;
}

bool ZnVideoResourceInfo::getResources(const LightweightString<char>& deviceName) {
    ZnVideoResourceInfo& s = state();
    s.output_.reset();
    ZnDeviceDriver* device = ZnDeviceDriverManager::theDeviceDriverManager().enabledDevice();
    if (!device || device->name != deviceName) return false;
    s.device_ = deviceName;
    s.output_ = std::make_unique<ReportedOutput>(device->outputFormats());
    return true;
}

void ZnVideoResourceInfo::setVideoStandard(const ShotVideoMetadata& format) { state().standard_ = format; }

const ShotVideoMetadata& ZnVideoResourceInfo::getVideoStandard() { return state().standard_; }

ZnVideoOutputResource* ZnVideoResourceInfo::getResourceForOutput(unsigned char output) {
    ZnVideoResourceInfo& s = state();
    // A device switched off since its resources were asked has none.
    const ZnDeviceDriver* device = ZnDeviceDriverManager::theDeviceDriverManager().enabledDevice();
    if (output != 0 || !device || device->name != s.device_) return nullptr;
    return s.output_.get();
}
