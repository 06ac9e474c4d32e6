#pragma once

#include "ShotVideoMetadata.h"

#include <set>

/// The output side of the video device that is on: the formats it can send.
class ZnVideoOutputResource {
public:
    virtual ~ZnVideoOutputResource() = default;
    // The formats of output `channel`; only channel 0 exists so far.
    virtual std::set<ShotVideoMetadata> getFormats(int channel) const = 0;
};
