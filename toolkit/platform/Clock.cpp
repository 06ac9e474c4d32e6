#include "Clock.h"

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <string>

namespace {
std::atomic<bool> testing{false};
std::atomic<std::int64_t> testTime{0};
std::atomic<bool> testingWall{false};
std::atomic<std::time_t> testWallTime{0};
// The TZ the process had before a test set one; only the test's thread touches it.
std::optional<std::optional<std::string>> savedZone;

void applyZone(const char* tz) {
    if (tz)
        setenv("TZ", tz, 1);
    else
        unsetenv("TZ");
    tzset();
}
} // namespace

std::int64_t msecsNow() {
    if (testing.load()) return testTime.load();
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

std::time_t wallClockNow() { return testingWall.load() ? testWallTime.load() : std::time(nullptr); }

std::tm localTimeOf(std::time_t t) {
    std::tm out{};
    localtime_r(&t, &out);
    return out;
}

namespace Clock {
void setTestTime(std::int64_t ms) {
    testTime = ms;
    testing = true;
}
void advanceTestTime(std::int64_t ms) { testTime += ms; }
void clearTestTime() { testing = false; }

void setTestWallTime(std::time_t t) {
    testWallTime = t;
    testingWall = true;
}
void clearTestWallTime() { testingWall = false; }

void setTestTimeZone(const char* tz) {
    if (!savedZone) {
        const char* old = std::getenv("TZ");
        savedZone = old ? std::optional<std::string>(old) : std::nullopt;
    }
    applyZone(tz ? tz : "UTC");
}

void clearTestTimeZone() {
    if (!savedZone) return;
    applyZone(*savedZone ? (*savedZone)->c_str() : nullptr);
    savedZone.reset();
}
} // namespace Clock
