#pragma once

#include <cstdint>
#include <ctime>

// Milliseconds of a monotonic clock. Tests may set the clock to make times exact.
std::int64_t msecsNow();

// The wall clock in seconds since the epoch, as time() gives it, and a time as
// local calendar fields, as localtime() gives them. Tests may set both the time
// and the time zone.
std::time_t wallClockNow();
std::tm localTimeOf(std::time_t t);

namespace Clock {
// From now on msecsNow() gives `ms` until advanced or cleared.
void setTestTime(std::int64_t ms);
void advanceTestTime(std::int64_t ms);
void clearTestTime();
// From now on wallClockNow() gives `t` until cleared.
void setTestWallTime(std::time_t t);
void clearTestWallTime();
// Local times (localTimeOf, mktime) are of the zone `tz`, as the TZ variable
// names it ("UTC", "Europe/Berlin"), until cleared, which brings back the zone
// the process had.
void setTestTimeZone(const char* tz);
void clearTestTimeZone();
} // namespace Clock
