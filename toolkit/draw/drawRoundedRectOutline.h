#pragma once

#include "core/Box.h"
#include "core/Colour.h"

class Canvas;

namespace Glib {

// The outline of `box` in a line of `lineWidth`, with the corners that `corners`
// names (RectDescription's corner bits; 0 none, 15 all) rounded by twice the line
// width. kOutlineInside keeps the line within the box; kOutlineOnEdge centres it
// on the box's edge, so that half of it lies outside.
enum eOutlineStyle { kOutlineInside = 0, kOutlineOnEdge = 1 };
void drawRoundedRectOutline(Canvas* canvas, const BoxInt& box, double lineWidth, unsigned corners, eOutlineStyle style, const Colour& colour);

} // namespace Glib
