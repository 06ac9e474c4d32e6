#pragma once

#include "core/XY.h"

// Where a new top-level window of the size goes on the screen (its bottom left),
// as the interface arranges new windows, kept on the screen.
XY<int> glib_getPosForWindow(int width, int height);
