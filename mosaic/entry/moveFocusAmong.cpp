#include "moveFocusAmong.h"

#include "glob/Glob.h"

bool moveFocusAmong(const std::vector<TabOrderable*>& stops, bool backwards) {
    const int n = static_cast<int>(stops.size());
    int at = -1;
    for (int i = 0; i < n; ++i)
        if (stops[i]->tabGlob() && stops[i]->tabGlob()->hasKbdFocus()) at = i;
    if (at < 0) return false;
    for (int i = at + (backwards ? -1 : 1); i >= 0 && i < n; i += backwards ? -1 : 1)
        if (stops[i]->canTakeTabFocus() && stops[i]->tabGlob()->claimKbdFocus()) return true;
    return false;
}
