#pragma once

#include "ZnDeviceDriver.h"

#include <vector>

/// The plug-ins of the device layer, in the order they were found.
class ZnPluginManager {
public:
    virtual ~ZnPluginManager() = default;
    const std::vector<Zn::Ptr<ZnDeviceDriver>>& plugins() const { return plugins_; }
    void addPlugin(const Zn::Ptr<ZnDeviceDriver>& plugin) {
        if (plugin) plugins_.push_back(plugin);
    }

protected:
    std::vector<Zn::Ptr<ZnDeviceDriver>> plugins_;
};
