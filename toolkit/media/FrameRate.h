#pragma once

#include "core/LightweightString.h"

#include <vector>

namespace Zn {

// A frame rate of video, in frames per second. Stored formats keep these numbers,
// so a new rate takes a new number at the end.
enum FrameRate : int {
    kFrameRateNone = 0,
    kFrameRate23_976 = 1,
    kFrameRate24 = 2,
    kFrameRate25 = 3,
    kFrameRate29_97 = 4,
    kFrameRate30 = 5,
    kFrameRate50 = 6,
    kFrameRate59_94 = 7,
    kFrameRate60 = 8,
    kFrameRate47_952 = 9,
    kFrameRate48 = 10,
    kFrameRate100 = 11,
    kFrameRate119_88 = 12,
    kFrameRate120 = 13,
    kFrameRate12 = 14,
    kFrameRate12_5 = 15,
    kFrameRate15 = 16,
};

namespace FrameRateGroups {
// The rates offered together: every rate, the rates of broadcast and editing, the
// high rates and the low ones.
enum FrameRateGroup : int { kAllRates = 0, kVideoRates = 1, kHighRates = 2, kLowRates = 3 };
} // namespace FrameRateGroups

/// Frames per second as a fraction, as 30000/1001; 0/1 for no rate.
struct FrameRateFraction {
    int num = 0;
    int den = 1;
};

// The rate as the user sees it ("25", "29.97"); each rate has its own text, and no
// rate the empty one.
LightweightString<wchar_t> getDisplayString(FrameRate rate);
// The rate whose text this is, spaces around it aside; no rate for any other text.
FrameRate getFrameRateFromDisplayString(const LightweightString<wchar_t>& text);
// Replaces `rates` with the group's rates, slowest first.
void getFrameRates(FrameRateGroups::FrameRateGroup group, std::vector<FrameRate>& rates);
FrameRateFraction getFrameRateFraction(FrameRate rate);

} // namespace Zn
