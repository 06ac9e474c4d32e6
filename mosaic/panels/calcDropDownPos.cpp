#include "calcDropDownPos.h"

#include "draw/Screen.h"
#include "glob/Glob.h"
#include "glob/GlobManager.h"

XY<int> calcDropDownPos(const Glob* button, XY<int> size, eWidgetRelativity side, eWidgetAlignment alignment, bool* moved) {
    if (moved) *moved = false;
    if (!is_good_glob_ptr(button)) return {0, 0};
    GlobManager& gm = GlobManager::instance();
    const XY<int> at = button->screenPos();
    const SiblingRelativePosition rel{side, const_cast<Glob*>(button), 0, alignment};
    XY<int> pos = gm.calcPosForGlob(size, rel, BoxInt(at, button->size()));
    if (pos.y >= 0) return pos;
    pos.y = at.y + button->height();
    if (pos.y + size.y > gm.screen().height()) pos.y = 0;
    if (moved) *moved = true;
    return pos;
}
