#include "Drawable.h"

#include "EventHandler.h"

#include <algorithm>

namespace {

struct Pending {
    Drawable* drawable;
    EventHandler* owner;
    IdStamp stamp;
};

// Redraws happen on the user-interface thread only, so no lock is needed.
struct State {
    int depth = 0;
    std::vector<Pending> pending;
};

State& state() {
    static State s;
    return s;
}

} // namespace

void Drawable::disableRedraws() { ++state().depth; }

void Drawable::enableRedraws() {
    State& s = state();
    if (s.depth > 0 && --s.depth == 0) update();
}

bool Drawable::redrawsEnabled() { return state().depth == 0; }
int Drawable::disableDepth() { return state().depth; }
std::size_t Drawable::pendingCount() { return state().pending.size(); }

void Drawable::clearPendingRedraws() { state().pending.clear(); }

void Drawable::clearPendingRedraws(const std::function<bool(const Drawable&)>& drop) {
    std::erase_if(state().pending, [&](const Pending& p) { return !EventHandler::valid(p.owner, p.stamp) || drop(*p.drawable); });
}

void Drawable::update() {
    // Painting may ask for more redraws, so take the list first.
    std::vector<Pending> work;
    work.swap(state().pending);
    for (const Pending& p : work)
        if (EventHandler::valid(p.owner, p.stamp)) p.drawable->paintNow();
}

void Drawable::redraw() {
    State& s = state();
    if (s.depth == 0) {
        std::erase_if(s.pending, [this](const Pending& p) { return p.drawable == this; });
        paintNow();
        return;
    }
    redrawLater();
}

void Drawable::redrawLater() {
    State& s = state();
    bool already = std::any_of(s.pending.begin(), s.pending.end(), [this](const Pending& p) { return p.drawable == this; });
    if (!already) s.pending.push_back({this, owner_, owner_ ? owner_->stamp() : IdStamp()});
}
