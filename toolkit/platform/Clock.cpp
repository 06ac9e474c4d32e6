#include "Clock.h"

#include <atomic>
#include <chrono>

namespace {
std::atomic<bool> testing{false};
std::atomic<std::int64_t> testTime{0};
} // namespace

std::int64_t msecsNow() {
    if (testing.load()) return testTime.load();
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

namespace Clock {
void setTestTime(std::int64_t ms) {
    testTime = ms;
    testing = true;
}
void advanceTestTime(std::int64_t ms) { testTime += ms; }
void clearTestTime() { testing = false; }
} // namespace Clock
