#pragma once

#include "glob/WidgetPosition.h"

class Glob;

// Where a widget of `size` dropped from `button` goes on the screen (its bottom
// left, bottom-up): on the button's `side`, lined up by `alignment`. A widget that
// would reach below the screen's bottom goes above the button instead, and one that
// fits neither way sits at the bottom of the screen (y 0). `moved` says whether
// either happened.
XY<int> calcDropDownPos(const Glob* button, XY<int> size, eWidgetRelativity side, eWidgetAlignment alignment, bool* moved = nullptr);
