#include "SuspendRefreshOffToggle.h"

#include "EventHandler.h"
#include "Glob.h"
#include "GlobManager.h"
#include "draw/Canvas.h"

SuspendRefreshOffToggle::SuspendRefreshOffToggle(int mode) {
    if (mode != 1) return;
    for (Glob* root : GlobManager::instance().roots()) {
        Canvas* c = root->canvas();
        if (!c || c->isRefreshOn()) continue;
        int depth = 0;
        while (!c->isRefreshOn()) {
            c->refreshOn();
            ++depth;
        }
        suspended_.push_back({GlobHandle<Glob>(root), depth});
    }
    if (!suspended_.empty()) GlobManager::instance().screenChanged();
}

SuspendRefreshOffToggle::~SuspendRefreshOffToggle() {
    for (const Suspended& s : suspended_) {
        Glob* g = s.glob.get();
        if (!g || !g->canvas()) continue;
        for (int i = 0; i < s.depth; ++i) g->canvas()->refreshOff();
    }
}
