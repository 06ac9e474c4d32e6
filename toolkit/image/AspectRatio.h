#pragma once

// The shape of a picture as a ratio of width to height.
namespace Zn {
namespace Image {
enum AspectRatio { kAspect4x3 = 0, kAspect16x9 = 1, kAspect1x1 = 2, kAspect14x9 = 3, kAspect1_85 = 4, kAspect2_39 = 5 };
} // namespace Image

// Width over height; a value outside the enumeration counts as 16:9, the usual picture.
double getAspectRatio(Image::AspectRatio ratio);
} // namespace Zn
