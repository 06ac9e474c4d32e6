#pragma once

#include "ZnPluginManagerIter.h"

/// Walks the drivers of the device layer of one resource type: init(manager, true,
/// 0) first, then init(type).
class ZnDeviceDriverManagerIter : public ZnPluginManagerIter {
public:
    using ZnPluginManagerIter::init;
    void init(ZnResourceType type) {
        type_ = type;
        settle();
    }
};
