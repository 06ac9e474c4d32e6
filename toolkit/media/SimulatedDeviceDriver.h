#pragma once

#include "ZnDeviceDriver.h"

/// A device of our own making, so that every path of device selection runs on a
/// machine with no hardware: it comes on unless told to refuse, and offers the
/// formats it is given.
class SimulatedDeviceDriver : public ZnDeviceDriver {
public:
    SimulatedDeviceDriver(const LightweightString<char>& name, ZnResourceType type, bool refuses = false, std::set<ShotVideoMetadata> formats = {})
        : ZnDeviceDriver(name, type), refuses_(refuses), formats_(std::move(formats)) {}

    bool enable(bool on) override {
        if (on && refuses_) return false;
        enabled_ = on;
        return true;
    }
    std::set<ShotVideoMetadata> outputFormats() const override { return formats_; }

private:
    bool refuses_;
    std::set<ShotVideoMetadata> formats_;
};
