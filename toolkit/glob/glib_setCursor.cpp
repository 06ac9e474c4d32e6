#include "glib_setCursor.h"

namespace {
bool contextLogic = true;
MouseCursorID setCursor = kCursorArrow;
} // namespace

void glib_enableMouseContextLogic(bool enabled) { contextLogic = enabled; }

bool glib_mouseContextLogicEnabled() { return contextLogic; }

void glib_setCursor(MouseCursorID id) { setCursor = id; }

std::optional<MouseCursorID> glib_forcedCursor() {
    if (contextLogic) return std::nullopt;
    return setCursor;
}
