#pragma once

#include "core/Box.h"
#include "core/Colour.h"

class Canvas;

namespace Glib {

// A frame of `thickness` pixels inside `box` that makes it look raised
// (kRaisedDepth: light top and left, dark bottom and right, from `colour`) or
// sunken into the surface (kSunkenDepth: the other way round).
enum eDepthStyle { kRaisedDepth = 0, kSunkenDepth = 1 };
void drawDepthBox(Canvas* canvas, const BoxInt& box, const Colour& colour, int thickness, eDepthStyle style);

} // namespace Glib
