#include "TabOrderManager.h"

#include "Glob.h"
#include "Messaging.h"

#include <algorithm>

void TabOrderManager::addTabStop(TabOrderable& stop, unsigned int position) {
    Glob* g = stop.tabGlob();
    if (!g) return;
    Stop s{&stop, GlobHandle<Glob>(g)};
    if (position >= stops_.size())
        stops_.push_back(s);
    else
        stops_.insert(stops_.begin() + position, s);
}

void TabOrderManager::addTabStopsFrom(TabOrderableHost& host, unsigned int position) {
    for (TabOrderable* t : host.getTabStops()) {
        if (!t) continue;
        addTabStop(*t, position);
        if (position < kAppend) ++position;
    }
}

void TabOrderManager::removeTabStop(TabOrderable& stop) {
    stops_.erase(std::remove_if(stops_.begin(), stops_.end(), [&](const Stop& s) { return s.stop == &stop; }), stops_.end());
}

bool TabOrderManager::move(int direction) {
    stops_.erase(std::remove_if(stops_.begin(), stops_.end(), [](const Stop& s) { return !s.glob; }), stops_.end());
    int n = static_cast<int>(stops_.size());
    if (n == 0) return false;
    Glob* focus = get_kbd_focus();
    int current = -1;
    for (int i = 0; i < n; ++i)
        if (stops_[i].glob.refersTo(focus)) current = i;
    if (current < 0) current = direction > 0 ? n - 1 : 0;
    for (int step = 1; step <= n; ++step) {
        const Stop& s = stops_[((current + direction * step) % n + n) % n];
        Glob* g = s.glob.get();
        if (g && g->isShowing() && g->isActive() && s.stop->canTakeTabFocus()) {
            set_kbd_focus(g);
            return get_kbd_focus() == g;
        }
    }
    return false;
}

bool TabOrderManager::incrementTabStop() { return move(1); }
bool TabOrderManager::decrementTabStop() { return move(-1); }
