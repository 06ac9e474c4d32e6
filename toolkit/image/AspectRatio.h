#pragma once

// The shape of a picture as a ratio of width to height (NUMBERS.md); 0 is a shape
// nobody stated.
namespace Zn {
namespace Image {
enum AspectRatio { kAspectUnknown = 0, kAspect4x3 = 1, kAspect16x9 = 2, kAspect1x1 = 3, kAspect14x9 = 4, kAspect1_85 = 5, kAspect2_39 = 6 };
} // namespace Image

// Width over height; an unknown shape, or a value outside the enumeration, counts
// as 16:9, the usual picture.
double getAspectRatio(Image::AspectRatio ratio);
} // namespace Zn
