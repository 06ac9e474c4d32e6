#pragma once

#include "core/LightweightString.h"
#include "platform/UIString.h"

// The arithmetic and wording of the time a task has taken or has left, shared by
// the progress displays.
namespace ProgressTime {

// Resource strings of the displays.
constexpr ResId kWorkingTitle = 350;
constexpr ResId kRenderingTitle = 351;
constexpr ResId kTimeLeft = 352;

// Whole seconds left of a task `fraction` done after `elapsedMs`, on the
// assumption that the rate so far holds; truncated, held to the range of int,
// and 0 when the figures give no number.
int secondsLeft(double elapsedMs, double fraction);
// "%02d:%02d:%02d" of hours, minutes and seconds.
LightweightString<wchar_t> formatDuration(int seconds);
// The resource string `id` with every "$TIME$" replaced by the duration.
LightweightString<wchar_t> durationText(ResId id, int seconds);

} // namespace ProgressTime
