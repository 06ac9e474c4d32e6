#pragma once

#include "ZnVideoOutputResource.h"

#include <memory>

/// The video resources of the device that is on, as the driver layer last reported
/// them, and the video standard it was asked to run at. Used on the
/// user-interface thread.
class ZnVideoResourceInfo {
public:
    // Asks the named device for its resources again; false when it is not on.
    static bool getResources(const LightweightString<char>& deviceName);
    static void setVideoStandard(const ShotVideoMetadata& format);
    static const ShotVideoMetadata& getVideoStandard();
    // The output resource of that number, or null when the device has none.
    static ZnVideoOutputResource* getResourceForOutput(unsigned char output);

private:
    static ZnVideoResourceInfo& state();

    LightweightString<char> device_;
    ShotVideoMetadata standard_;
    std::unique_ptr<ZnVideoOutputResource> output_;
};
