#pragma once

#include "ControlsTestSupport.h"

#include <climits>
#include <cstdlib>

// Pixel readings shared by the tests of titled rows, groups and panels.
namespace PanelsTest {

// The smallest largest-channel difference between `colour` and any pixel of `g` in `box`:
// 0 when the colour was painted exactly somewhere in the box.
inline int nearestTo(const Glob* g, const BoxInt& box, std::uint32_t colour) {
    int best = INT_MAX;
    for (int y = box.y1; y < box.y2; ++y)
        for (int x = box.x1; x < box.x2; ++x) {
            std::uint32_t p = TestKit::globPixel(g, x, y);
            int worst = 0;
            for (int s = 0; s < 24; s += 8) worst = std::max(worst, std::abs(int((p >> s) & 255) - int((colour >> s) & 255)));
            best = std::min(best, worst);
        }
    return best;
}

} // namespace PanelsTest
