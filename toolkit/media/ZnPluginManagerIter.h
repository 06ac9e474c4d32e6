#pragma once

#include "ZnPluginManager.h"

/// Walks the plug-ins of a manager, all of them or those of one resource type.
/// operator* gives the current one, null past the end.
class ZnPluginManagerIter {
public:
    // With `all` false only plug-ins that are switched on are walked; `start` is the first place.
    void init(ZnPluginManager& manager, bool all, int start);
    ZnDeviceDriver* operator*() const;
    ZnPluginManagerIter& operator++();

protected:
    // Skips to the next plug-in of the type, from where it stands.
    void settle();

    ZnPluginManager* manager_ = nullptr;
    std::size_t at_ = 0;
    bool all_ = true;
    ZnResourceType type_ = kResourceNone;
};
