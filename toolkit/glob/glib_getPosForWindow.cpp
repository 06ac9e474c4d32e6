#include "glib_getPosForWindow.h"

#include "GlobManager.h"

#include <algorithm>

XY<int> glib_getPosForWindow(int width, int height) {
    auto side = [](int v) { return static_cast<unsigned short>(std::clamp(v, 0, 65535)); };
    return GlobManager::instance().getPosForGlob(GlobCreationInfo(side(width), side(height)), WidgetPosition());
}
