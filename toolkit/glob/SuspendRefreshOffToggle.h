#pragma once

#include "core/IdStamp.h"

#include <vector>

class Glob;

/// Lets the display show painting for the length of a scope although a long task
/// has turned the refresh of its canvases off: in force, the canvases of every
/// realized top-level glob are refreshed; at its end each goes back to the depth
/// of refresh-off it had. Canvases whose glob died in the meantime are left alone.
class SuspendRefreshOffToggle {
public:
    // Mode 1 suspends refresh-off on all realized top-level globs; any other does nothing.
    explicit SuspendRefreshOffToggle(int mode);
    ~SuspendRefreshOffToggle();
    SuspendRefreshOffToggle(const SuspendRefreshOffToggle&) = delete;
    SuspendRefreshOffToggle& operator=(const SuspendRefreshOffToggle&) = delete;

private:
    struct Suspended {
        Glob* glob;
        IdStamp stamp;
        int depth;
    };
    std::vector<Suspended> suspended_;
};
