#pragma once

namespace Zn {
namespace Image {

// How the lines of a picture are scanned. Stored formats keep these numbers.
enum ScanMode : int {
    kScanUnknown = 0,
    kInterlacedUpperFieldFirst = 1,
    kInterlacedLowerFieldFirst = 2,
    kProgressive = 3,
    // Progressive pictures carried as two fields.
    kProgressiveSegmentedFrame = 4,
};

constexpr bool isInterlaced(ScanMode mode) { return mode == kInterlacedUpperFieldFirst || mode == kInterlacedLowerFieldFirst; }

} // namespace Image
} // namespace Zn
