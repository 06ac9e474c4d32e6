#include "CanvasStack.h"

#include "Glob.h"
#include "GlobManager.h"
#include "InputDispatcher.h"

XY<int> glib_getMousePos() { return GlobManager::instance().input().mousePos(); }

int mouse_get_current_x() { return glib_getMousePos().x; }

int mouse_get_current_y() { return glib_getMousePos().y; }

void mouse_canvas_connect(Canvas* canvas) {
    if (!canvas) GlobManager::instance().input().releaseCapture();
}

bool canvas_is_topmost(Canvas* canvas) {
    const auto& roots = GlobManager::instance().roots();
    return canvas && !roots.empty() && roots.back()->canvas() == canvas;
}

void canvas_pop_to_top(Canvas* canvas, bool activate) {
    Glob* root = canvas ? canvas_to_glob(canvas) : nullptr;
    if (!root || !GlobManager::instance().isRealized(root)) return;
    root->popToTop(activate);
}
