#pragma once

#include "MouseCursor.h"

#include <optional>

// The mouse cursor normally follows the glob under the mouse (contextCursor). A
// tool that takes the whole screen over (the eye dropper) turns that off and sets
// one cursor for everywhere. User-interface thread only.
void glib_enableMouseContextLogic(bool enabled);
bool glib_mouseContextLogicEnabled();
// The cursor shown while context logic is off.
void glib_setCursor(MouseCursorID id);
// The cursor to show now: the one set while context logic is off, else none.
std::optional<MouseCursorID> glib_forcedCursor();
