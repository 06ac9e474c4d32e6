#include "GlobManager.h"

#include "Glob.h"
#include "InputDispatcher.h"
#include "Messaging.h"
#include "MouseListeners.h"
#include "draw/Canvas.h"
#include "draw/Screen.h"

#include <algorithm>
#include <cstdlib>

namespace {

GlobManager::EventObserver& eventObserver() {
    static GlobManager::EventObserver o;
    return o;
}

std::map<LightweightString<char>, GlobManager::Maker>& kinds() {
    static std::map<LightweightString<char>, GlobManager::Maker> k;
    return k;
}

// The screen size: MOSAIC_SCREEN_SIZE="WIDTHxHEIGHT", else 1920x1080.
XY<int> screenSize() {
    int w = 1920, h = 1080;
    if (const char* s = std::getenv("MOSAIC_SCREEN_SIZE")) {
        int a = 0, b = 0;
        if (std::sscanf(s, "%dx%d", &a, &b) == 2 && a > 0 && b > 0 && a <= 16384 && b <= 16384) w = a, h = b;
    }
    return {w, h};
}

} // namespace

GlobManager& GlobManager::instance() {
    // Never destroyed: globs that die during static destruction still report here.
    static GlobManager* m = new GlobManager;
    return *m;
}

GlobManager::GlobManager() : input_(std::make_unique<InputDispatcher>()) {}

GlobManager::~GlobManager() = default;

void GlobManager::registerGlobKind(const LightweightString<char>& type, Maker maker) { kinds()[type] = std::move(maker); }

std::vector<LightweightString<char>> GlobManager::globKinds() {
    std::vector<LightweightString<char>> out;
    for (const auto& [name, maker] : kinds()) out.push_back(name);
    return out;
}

Glob* GlobManager::createGlob(const GlobCreationInfo& info) const {
    auto it = kinds().find(info.type);
    if (it == kinds().end()) return nullptr;
    try {
        return it->second(info);
    } catch (...) {
        // A kind whose constructor throws has released what it built; there is just no glob.
        return nullptr;
    }
}

Screen& GlobManager::screen() {
    if (!screen_) {
        XY<int> s = screenSize();
        screen_ = std::make_unique<Screen>(s.x, s.y);
    }
    return *screen_;
}

void GlobManager::realize(Glob* g) {
    if (!onUIThread() || !is_good_glob_ptr(g) || g->parent()) return;
    if (!isRealized(g)) roots_.push_back(g);
    raise(g);
    g->setVisible(true);
    g->redraw();
    screenChanged();
}

bool GlobManager::isRealized(const Glob* g) const { return std::find(roots_.begin(), roots_.end(), g) != roots_.end(); }

void GlobManager::raise(Glob* root) {
    auto it = std::find(roots_.begin(), roots_.end(), root);
    if (it == roots_.end() || it + 1 == roots_.end()) return;
    roots_.erase(it);
    // Globs above a modal glob (its menus) stay above it; a plain panel goes below them.
    auto pos = roots_.end();
    if (Glob* modal = topModal(); modal && !isModal(root) && !isParentedTo(root, modal)) {
        auto m = std::find(roots_.begin(), roots_.end(), modal);
        if (m != roots_.end()) pos = m;
    }
    roots_.insert(pos, root);
    screenChanged();
}

void GlobManager::requestDeletion(Glob* g) {
    if (!onUIThread() || !is_good_glob_ptr(g)) return;
    for (const auto& d : doomed_)
        if (d.refersTo(g)) return;
    doomed_.emplace_back(g);
}

void GlobManager::deleteDoomed() {
    while (!doomed_.empty()) {
        auto batch = std::move(doomed_);
        doomed_.clear();
        for (auto& d : batch) {
            // An earlier deletion in this batch may have taken it with its parent.
            if (Glob* g = d.get()) g->glob_tidy();
            d.deleteGlob();
        }
    }
}

void GlobManager::forgetGlob(Glob* g) {
    forgetRoot(g);
    // A dying glob fails its handle already.
    std::erase_if(modal_, [](const auto& m) { return !m; });
    std::erase_if(contexts_, [](const ModalContext& c) { return !c.modal; });
    timerGlobs_.erase(std::remove(timerGlobs_.begin(), timerGlobs_.end(), g), timerGlobs_.end());
    input_->forget(g);
}

void GlobManager::forgetRoot(Glob* g) {
    auto it = std::find(roots_.begin(), roots_.end(), g);
    if (it == roots_.end()) return;
    roots_.erase(it);
    screenChanged();
}

Glob* GlobManager::globAt(const XY<int>& screen, const Glob* beneath) const {
    for (auto it = roots_.rbegin(); it != roots_.rend(); ++it) {
        Glob* root = *it;
        if (root == beneath || !root->isVisible() || root->passesInput() || !root->box().contains(screen)) continue;
        return root->findGlobAt(screen - XY<int>(root->getX(), root->getY()));
    }
    return nullptr;
}

Glob* GlobManager::find(const IdStamp& stamp) const {
    Glob* found = nullptr;
    for (Glob* r : roots_) {
        r->visitSubtree([&](Glob* g) {
            if (g->stamp() == stamp) found = g;
            return !found;
        });
        if (found) break;
    }
    return found;
}

Glob* GlobManager::find(const LightweightString<char>& name) const {
    if (name.empty()) return nullptr;
    Glob* found = nullptr;
    for (auto it = roots_.rbegin(); it != roots_.rend() && !found; ++it) {
        (*it)->visitSubtree([&](Glob* g) {
            if (g->name() == name || (g->name().empty() && name == g->idstring())) found = g;
            return !found;
        });
    }
    return found;
}

bool GlobManager::isModal(Glob* g) const {
    return std::any_of(modal_.begin(), modal_.end(), [g](const auto& m) { return m.refersTo(g); });
}

void GlobManager::addModalGlob(Glob* g, Glob*) {
    if (!is_good_glob_ptr(g) || isModal(g)) return;
    modal_.emplace_back(g);
    raise(g);
}

void GlobManager::removeModalGlob(Glob* g) {
    std::erase_if(modal_, [g](const auto& m) { return m.refersTo(g) || !m; });
    std::erase_if(contexts_, [g](const ModalContext& c) { return c.modal.refersTo(g) || !c.modal; });
}

void GlobManager::addModalContextGlob(Glob* g, Glob* context) {
    if (!is_good_glob_ptr(g) || !is_good_glob_ptr(context)) return;
    addModalGlob(g, context);
    std::erase_if(contexts_, [g](const ModalContext& c) { return c.modal.refersTo(g); });
    // A glob that is its own context is a modal dialogue: only its own buttons close it.
    if (context != g) contexts_.push_back({GlobHandle<Glob>(g), GlobHandle<Glob>(context)});
}

bool GlobManager::dismissModalContext() {
    Glob* modal = topModal();
    auto it = std::find_if(contexts_.begin(), contexts_.end(), [modal](const ModalContext& c) { return c.modal.refersTo(modal); });
    if (it == contexts_.end()) return false;
    const GlobHandle<Glob> context = it->context;
    removeModalGlob(modal);
    if (Glob* c = context.get()) sendMessage(dismissedMsg, c, modal);
    requestDeletion(modal);
    return true;
}

Glob* GlobManager::topModal() const {
    for (auto it = modal_.rbegin(); it != modal_.rend(); ++it)
        if (Glob* g = it->get()) return g;
    return nullptr;
}

XY<int> GlobManager::getSafePosForGlob(Canvas*, const XY<int>& pos, const XY<int>& size) const {
    const Screen& s = const_cast<GlobManager*>(this)->screen();
    int x = std::clamp(pos.x, 0, std::max(0, s.width() - size.x));
    // A glob taller than the screen hangs from its top, so that its title bar can be reached.
    int y = size.y > s.height() ? s.height() - size.y : std::clamp(pos.y, 0, s.height() - size.y);
    return {x, y};
}

XY<int> GlobManager::calcPosForGlob(const XY<int>& size, const SiblingRelativePosition& rel, const BoxInt& area) const {
    BoxInt b = placeBeside(size, area, rel);
    return {b.x1, b.y1};
}

XY<int> GlobManager::getPosForGlob(const GlobCreationInfo& info, const WidgetPosition& pos) {
    XY<int> size(info.width, info.height);
    Screen& s = screen();
    if (pos.origin == kSiblingRelative && is_good_glob_ptr(pos.relative.sibling)) {
        Glob* sib = getRootParent(pos.relative.sibling);
        return getSafePosForGlob(nullptr, calcPosForGlob(size, pos.relative, BoxInt(sib->screenPos(), sib->size())), size);
    }
    if (pos.origin != kNoPosition && pos.origin != kSiblingRelative) {
        BoxInt b = pos.resolve(size, {s.width(), s.height()}, s.bounds(), nullptr);
        return getSafePosForGlob(nullptr, {b.x1, b.y1}, size);
    }
    // A cascade from the top left, starting again when it would leave the screen.
    int step = 24;
    cascade_ = cascade_ + XY<int>(step, step);
    if (cascade_.x + size.x > s.width() || cascade_.y + size.y > s.height()) cascade_ = {step, step};
    return getSafePosForGlob(nullptr, {cascade_.x, s.height() - cascade_.y - size.y}, size);
}

void GlobManager::show(Glob* g, const WidgetPosition& where) {
    if (!g) return;
    // Nothing comes up larger than the screen, where part of it could not be reached.
    const Screen& s = screen();
    if (g->width() > s.width() || g->height() > s.height()) g->resize(std::min(g->width(), s.width()), std::min(g->height(), s.height()));
    GlobCreationInfo info(static_cast<unsigned short>(g->width()), static_cast<unsigned short>(g->height()));
    g->setupRootPos(getPosForGlob(info, where));
    realize(g);
}

void GlobManager::redisplay(Glob* g, const XY<int>& pos, eCoordinateOrigin origin, bool doRaise) {
    if (!is_good_glob_ptr(g) || g->parent()) return;
    GlobCreationInfo info(static_cast<unsigned short>(g->width()), static_cast<unsigned short>(g->height()));
    g->setupRootPos(getPosForGlob(info, WidgetPosition(origin, pos)));
    if (doRaise) raise(g);
    realize(g);
}

void GlobManager::setKbdFocus(Glob* g) {
    if (!onUIThread() || (g && !is_good_glob_ptr(g))) return;
    input_->setFocus(g);
}

Glob* GlobManager::kbdFocus() const { return input_->focus(); }

void GlobManager::setTimerInterest(Glob* g, bool on) {
    auto it = std::find(timerGlobs_.begin(), timerGlobs_.end(), g);
    if (on && it == timerGlobs_.end()) timerGlobs_.push_back(g);
    if (!on && it != timerGlobs_.end()) timerGlobs_.erase(it);
}

void GlobManager::tickTimers() {
    if (!onUIThread()) return;
    std::vector<GlobHandle<Glob>> ticking;
    for (Glob* g : timerGlobs_) ticking.emplace_back(g);
    for (const auto& t : ticking)
        if (Glob* g = t.get()) g->handleEvent(Event::timer());
    if (const EventObserver& o = eventObserver()) o(Event::timer());
    deleteDoomed();
}

void GlobManager::post(const Event& e, EventHandler* target) { queue_.post({e, GlobHandle<EventHandler>(target)}); }

std::size_t GlobManager::deliverMessages() {
    queue_.takeAll(delivering_);
    std::size_t n = 0;
    while (!delivering_.empty()) {
        MessageQueue::Item item = std::move(delivering_.front());
        delivering_.pop_front();
        ++n;
        if (EventHandler* target = item.target.get()) target->handleEvent(item.event);
        // Deletions requested by a handler happen before the next message, never inside it.
        if (!doomed_.empty()) deleteDoomed();
    }
    return n;
}

bool GlobManager::processPending() {
    if (!onUIThread()) return false;
    bool did = deliverMessages() > 0;
    if (!doomed_.empty()) {
        deleteDoomed();
        did = true;
    }
    if (Drawable::pendingCount() && Drawable::redrawsEnabled()) {
        Drawable::update();
        did = true;
    }
    return did;
}

void GlobManager::runUntilIdle(int maxRounds) {
    for (int i = 0; i < maxRounds && processPending(); ++i) {}
    compose();
}

void GlobManager::setEventObserver(EventObserver observer) { eventObserver() = std::move(observer); }

void GlobManager::dispatch(const Event& e) {
    if (!onUIThread()) return;
    input_->dispatch(e);
    MouseListeners::notify(e);
    if (const EventObserver& o = eventObserver()) o(e);
    deleteDoomed();
}

namespace {
std::uint64_t generationOf(const Glob* g) { return g->canvas() ? g->canvas()->generation() : 0; }
} // namespace

bool GlobManager::screenDirty() const {
    if (screenDirty_) return true;
    std::size_t layer = 0;
    for (Glob* g : roots_) {
        if (!g->isVisible()) continue;
        if (layer == composed_.size() || composed_[layer] != generationOf(g)) return true;
        ++layer;
    }
    return layer != composed_.size();
}

bool GlobManager::compose() {
    if (!screenDirty()) return false;
    std::vector<Screen::Layer> layers;
    composed_.clear();
    for (Glob* g : roots_) {
        if (!g->isVisible()) continue;
        layers.push_back({g->canvas(), {g->getX(), g->getY()}, g->opacity(), g->hasShadow()});
        composed_.push_back(generationOf(g));
    }
    screen().composite(layers);
    screenDirty_ = false;
    return true;
}
