#pragma once

#include "core/XY.h"

class Canvas;

// The older calls by canvas: where the mouse is, letting go of it, and the order of
// the top-level canvases on the screen.

// The mouse's last position on the screen.
XY<int> glib_getMousePos();
int mouse_get_current_x();
int mouse_get_current_y();
// With null, ends any capture of the mouse, so that the next events go wherever
// the mouse is (as before handing a drag to another program). A canvas is not
// captured by this call: a press on a glob captures the mouse already.
void mouse_canvas_connect(Canvas* canvas);
// True when the canvas belongs to the realized top-level glob on top of all others.
bool canvas_is_topmost(Canvas* canvas);
// Raises the top-level glob of the canvas above all others; with `activate` it
// also becomes the glob the user works in. Unknown canvases are ignored.
void canvas_pop_to_top(Canvas* canvas, bool activate);
