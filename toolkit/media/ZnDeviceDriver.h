#pragma once

#include "ShotVideoMetadata.h"
#include "ZnResourceType.h"
#include "core/Ptr.h"
#include "core/iObject.h"

#include <set>

/// One driver of the device layer: a video input/output device or an audio mixer,
/// with its name (UTF-8, valid) and its resource type. Switched on and off by
/// ZnDeviceDriverManager on the user-interface thread; held by Zn::Ptr.
class ZnDeviceDriver : public iObject {
public:
    ZnDeviceDriver(const LightweightString<char>& name, ZnResourceType type) : name(name), resourceType(type) {}

    const LightweightString<char> name;
    const ZnResourceType resourceType;

    // Switches the device on or off; false when it will not come on.
    virtual bool enable(bool on) = 0;
    bool isEnabled() const { return enabled_; }
    // The formats the device can send out; empty when it cannot say.
    virtual std::set<ShotVideoMetadata> outputFormats() const = 0;

protected:
    bool enabled_ = false;
};
