#pragma once

#include <cstdint>

/// Watches that the user-interface thread stays responsive. A long task on that
/// thread beats the heart as it goes; a task that knows it will be long puts the
/// watchdog on life support, so that a missing beat during it is not a hang.
/// Every operation is safe from any thread.
class SystemWatchdog {
public:
    static void heartbeat();
    static void beginLifeSupport();
    // Unbalanced ends are ignored: the depth never goes below zero.
    static void endLifeSupport();

    static std::int64_t lastHeartbeat(); // msecsNow() of the last beat, 0 before any
    static std::uint64_t heartbeatCount();
    static bool onLifeSupport();
    // Hung: no beat for longer than `limitMs` while not on life support.
    static bool seemsHung(std::int64_t limitMs);
};
