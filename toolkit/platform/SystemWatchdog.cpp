#include "SystemWatchdog.h"

#include "Clock.h"

#include <atomic>

namespace {
std::atomic<std::int64_t> lastBeat{0};
std::atomic<std::uint64_t> beats{0};
std::atomic<int> lifeSupport{0};
} // namespace

void SystemWatchdog::heartbeat() {
    lastBeat.store(msecsNow(), std::memory_order_relaxed);
    beats.fetch_add(1, std::memory_order_relaxed);
}

void SystemWatchdog::beginLifeSupport() {
    lifeSupport.fetch_add(1, std::memory_order_relaxed);
    heartbeat();
}

void SystemWatchdog::endLifeSupport() {
    int depth = lifeSupport.load(std::memory_order_relaxed);
    while (depth > 0 && !lifeSupport.compare_exchange_weak(depth, depth - 1, std::memory_order_relaxed)) {}
    heartbeat();
}

std::int64_t SystemWatchdog::lastHeartbeat() { return lastBeat.load(std::memory_order_relaxed); }

std::uint64_t SystemWatchdog::heartbeatCount() { return beats.load(std::memory_order_relaxed); }

bool SystemWatchdog::onLifeSupport() { return lifeSupport.load(std::memory_order_relaxed) > 0; }

bool SystemWatchdog::seemsHung(std::int64_t limitMs) {
    if (onLifeSupport()) return false;
    const std::int64_t last = lastHeartbeat();
    return last != 0 && msecsNow() - last > limitMs;
}
