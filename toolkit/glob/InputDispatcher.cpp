#include "InputDispatcher.h"

#include "Glob.h"
#include "GlobManager.h"
#include "getEventInterceptStack.h"

#include <chrono>
#include <cstdlib>
#include <vector>

namespace {
constexpr long long kDoubleClickMs = 400;

long long steadyMs() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}
} // namespace

Glob* InputDispatcher::focus() const { return focus_.get(); }
Glob* InputDispatcher::capture() const { return capture_.get(); }
Glob* InputDispatcher::hover() const { return hover_.get(); }

void InputDispatcher::change(Ref& ref, Glob* g, void (Glob::*tell)(bool)) {
    Glob* old = ref.get();
    if (old == g) return;
    ref.reset(g);
    if (old) (old->*tell)(false);
    // The old glob's handler may have moved the reference on, or deleted `g`.
    if (g && ref.get() == g) (g->*tell)(true);
}

void InputDispatcher::setFocus(Glob* g) { change(focus_, g, &Glob::handleKbdFocus); }

void InputDispatcher::forget(Glob*) {
    // A dying glob already fails its handles: drop every handle that fails.
    for (Ref* r : {&focus_, &capture_, &hover_, &moving_, &it_})
        if (!*r) r->reset();
    std::erase_if(outsideWatchers_, [](const Ref& r) { return !r; });
}

void InputDispatcher::watchPressesOutside(Glob* g) {
    if (!g) return;
    stopWatchingPressesOutside(g);
    outsideWatchers_.emplace_back(g);
}

void InputDispatcher::stopWatchingPressesOutside(Glob* g) {
    std::erase_if(outsideWatchers_, [g](const Ref& r) { return !r || r.refersTo(g); });
}

bool InputDispatcher::pressedOutside(const Event& e) {
    // A copy: a watcher that closes stops watching, and may start another.
    std::vector<Ref> watchers = outsideWatchers_;
    bool swallowed = false;
    for (auto it = watchers.rbegin(); it != watchers.rend(); ++it) {
        Glob* g = it->get();
        if (!g) continue;
        Glob* root = getRootParent(g);
        if (root->isVisible() && root->box().contains(e.screenPos())) continue;
        Event local = e;
        local.setLocalPos(g->screenXYToGlobXY(e.screenPos()));
        if (g->handleEvent(local)) swallowed = true;
    }
    return swallowed;
}

Glob* InputDispatcher::it() const { return it_.get(); }

void InputDispatcher::setIt(Glob* root) {
    if (root && root->canBeIt()) change(it_, root, &Glob::handle_it);
}

void InputDispatcher::startMoving(Glob* root, XY<int> grab) {
    if (!root || root->parent()) return;
    moving_.reset(root);
    moveGrab_ = grab;
    moveOrigin_ = {root->getX(), root->getY()};
}

bool InputDispatcher::moveWithMouse(const Event& e) {
    Glob* g = moving_.get();
    if (!g) return false;
    g->setupRootPos(moveOrigin_ + (e.screenPos() - moveGrab_));
    if (e.type() == Event::kMouseUp) moving_ = Ref();
    return true;
}

bool InputDispatcher::intercepted(Glob* target, const Event& e) {
    std::vector<Ref> chain;
    for (Glob* g = target->parent(); g; g = g->parent()) chain.emplace_back(g);
    for (auto it = chain.rbegin(); it != chain.rend(); ++it) {
        Glob* g = it->get();
        if (!g) return true;
        Event local = e;
        local.setLocalPos(g->screenXYToGlobXY(e.screenPos()));
        if (g->intercept(local)) return true;
    }
    return false;
}

Glob* InputDispatcher::targetForMouse(const Event& e) const {
    if (Glob* c = capture_.get(); c && e.type() != Event::kMouseDown) return c;
    GlobManager& gm = GlobManager::instance();
    const auto& roots = gm.roots();
    Glob* modal = gm.topModal();
    for (auto it = roots.rbegin(); it != roots.rend(); ++it) {
        Glob* root = *it;
        if (!root->isVisible() || root->passesInput()) continue;
        if (root->box().contains(e.screenPos())) return root->findGlobAt(e.screenPos() - XY<int>(root->getX(), root->getY()));
        // Nothing below a modal glob takes the mouse.
        if (root == modal) return nullptr;
    }
    return nullptr;
}

Glob* InputDispatcher::targetForKeys() const {
    if (Glob* f = focus_.get(); f && f->isShowing()) {
        Glob* modal = GlobManager::instance().topModal();
        if (!modal || getRootParent(f) == modal || !GlobManager::instance().isModal(getRootParent(f))) return f;
    }
    if (Glob* modal = GlobManager::instance().topModal()) return modal;
    const auto& roots = GlobManager::instance().roots();
    for (auto it = roots.rbegin(); it != roots.rend(); ++it)
        if ((*it)->isVisible()) return *it;
    return nullptr;
}

Glob* InputDispatcher::bubble(Glob* g, Event e) {
    while (g) {
        const Ref self(g), parent(g->parent());
        if (g->isActive() || !mouse_event(e)) {
            e.setLocalPos(g->screenXYToGlobXY(e.screenPos()));
            if (g->handleEvent(e)) return self.get();
        }
        // The handler may have deleted the glob, or its parent.
        g = parent.get();
    }
    return nullptr;
}

void InputDispatcher::updateHover(Glob* g) { change(hover_, g, &Glob::handleMouseContainment); }

void InputDispatcher::countClicks(Event& e) {
    long long now = steadyMs();
    bool near = std::abs(e.screenPos().x - lastClickPos_.x) <= 3 && std::abs(e.screenPos().y - lastClickPos_.y) <= 3;
    clicks_ = (near && now - lastClickMs_ <= kDoubleClickMs) ? clicks_ + 1 : 1;
    lastClickMs_ = now;
    lastClickPos_ = e.screenPos();
    e.setClickCount(clicks_);
}

void InputDispatcher::dispatch(const Event& event) {
    Event e = event;
    if (mouse_event(e)) {
        mouse_ = e.screenPos();
        if (getEventInterceptStack().filter(e)) return;
        if (moveWithMouse(e)) return;
        if (e.type() == Event::kMouseDown && !outsideWatchers_.empty() && pressedOutside(e)) return;
        Glob* target = targetForMouse(e);
        // A press that no glob at or above the modal one takes is outside it.
        if (!target && e.type() == Event::kMouseDown && GlobManager::instance().dismissModalContext()) return;
        if (e.type() == Event::kMouseMove || e.type() == Event::kMouseDown) updateHover(capture_.get() ? capture_.get() : target);
        if (!target) return;
        if (e.type() == Event::kMouseDown) {
            countClicks(e);
            capture_.reset(target);
            target->popToTop(true);
            setIt(getRootParent(target));
            if (target->acceptsKbdFocus() && target->isActive()) setFocus(target);
        }
        if (!intercepted(target, e)) bubble(target, e);
        if (e.type() == Event::kMouseUp) capture_ = Ref();
        return;
    }
    if (e.type() == Event::kKeyPress || e.type() == Event::kKeyRelease || e.type() == Event::kTextInput) {
        if (getEventInterceptStack().filter(e)) return;
        Glob* target = targetForKeys();
        if (target && !intercepted(target, e)) bubble(target, e);
    }
}
