#pragma once

#include <cstdint>

// Milliseconds of a monotonic clock. Tests may set the clock to make times exact.
std::int64_t msecsNow();

namespace Clock {
// From now on msecsNow() gives `ms` until advanced or cleared.
void setTestTime(std::int64_t ms);
void advanceTestTime(std::int64_t ms);
void clearTestTime();
} // namespace Clock
