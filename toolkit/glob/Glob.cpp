#include "Glob.h"

#include "GlobManager.h"
#include "InputDispatcher.h"
#include "Messaging.h"
#include "core/Assert.h"
#include "draw/Canvas.h"
#include "draw/CanvasRenderer.h"
#include "draw/Screen.h"
#include "draw/StateSaver.h"

#include <algorithm>
#include <cstdlib>
#include <mutex>
#include <string>
#include <unordered_set>

namespace {

// Live globs by address, beside the handler registry, so that is_good_glob_ptr can
// tell a glob from another kind of handler at a reused address.
struct GlobSet {
    std::mutex lock;
    std::unordered_set<const Glob*> live;
};
GlobSet& globSet() {
    static GlobSet* s = new GlobSet; // outlives globs destroyed during static destruction
    return *s;
}

} // namespace

Glob::Glob(const GlobCreationInfo& info)
    : Drawable(this), canvas_(info.canvas), palette_(info.palette), w_(std::max(0, info.width)), h_(std::max(0, info.height)) {
    if (!canvas_) {
        ownCanvas_ = std::make_unique<Canvas>(w_, h_);
        canvas_ = ownCanvas_.get();
    }
    GlobSet& s = globSet();
    std::lock_guard<std::mutex> g(s.lock);
    s.live.insert(this);
}

Glob::~Glob() {
    dying_ = true;
    {
        GlobSet& s = globSet();
        std::lock_guard<std::mutex> g(s.lock);
        s.live.erase(this);
    }
    // Children first, youngest first, so that relative positions never refer to the dead.
    while (!children_.empty()) {
        Glob* child = children_.back().child;
        children_.pop_back();
        child->parent_ = nullptr;
        delete child;
    }
    if (parent_ && !parent_->dying_) parent_->detachChild(this);
    GlobManager::instance().forgetGlob(this);
}

bool Glob::isLiveGlob(const Glob* g) {
    if (!g) return false;
    GlobSet& s = globSet();
    std::lock_guard<std::mutex> lock(s.lock);
    return s.live.count(g) != 0;
}

// ---- children ---------------------------------------------------------------

Glob* Glob::addChild(Glob* child, const WidgetPosition& position, WidgetSurround surround) {
    MOSAIC_ASSERT(child != this && !isParentedTo(this, child), "a glob added to itself or to one of its own children");
    if (!child || child == this || isParentedTo(this, child) || !onUIThread()) return child;
    if (child->parent_) child->parent_->detachChild(child);
    GlobManager::instance().forgetRoot(child);
    WidgetDetails d;
    d.child = child;
    d.position = position;
    d.surround = surround;
    if (position.origin == kSiblingRelative) {
        d.sibling = position.relative.sibling;
        if (!d.sibling && !children_.empty()) d.sibling = children_.back().child;
        // A sibling that is not a child of this glob cannot place anything here.
        if (d.sibling && d.sibling->parent_ != this) d.sibling = nullptr;
    }
    child->parent_ = this;
    child->adoptCanvas(canvas_);
    children_.push_back(d);
    placeChild(children_.size() - 1);
    handleWidgetAdded(d);
    // A child added to a panel already on the screen shows at once (or with the
    // next update, inside a bracket of disabled redraws).
    if (GlobManager::instance().isRealized(getRootParent(this))) child->redraw();
    return child;
}

Glob* Glob::addWidget(Glob* child, int x, int y, eCoordinateOrigin origin, WidgetSurround surround, Glob* sibling) {
    WidgetPosition p(origin, {x, y});
    if (origin == kSiblingRelative) p.relative.sibling = sibling;
    return addChild(child, p, surround);
}

Glob* Glob::addWidgetRelative(Glob* child, Glob* sibling, int gap, eWidgetRelativity relativity, WidgetSurround surround,
                              eWidgetAlignment alignment) {
    return addChild(child, rel(relativity, gap, sibling, alignment), surround);
}

void Glob::setWidgetRelativity(Glob* child, const SiblingRelativePosition& relative) {
    WidgetDetails* d = detailsOf(child);
    if (!d) return;
    d->position = WidgetPosition(relative);
    d->sibling = relative.sibling && relative.sibling->parent_ == this ? relative.sibling : nullptr;
    calcAbsoluteWidgetPositions();
}

void Glob::setWidgetPos(Glob* child, const WidgetPosition& position) {
    WidgetDetails* d = detailsOf(child);
    if (!d) return;
    d->position = position;
    if (position.origin == kSiblingRelative)
        d->sibling = position.relative.sibling && position.relative.sibling->parent_ == this ? position.relative.sibling : nullptr;
    calcAbsoluteWidgetPositions();
}

WidgetDetails Glob::getWidget(Glob* child) const {
    for (const WidgetDetails& d : children_)
        if (d.child == child) return d;
    return {};
}

WidgetDetails Glob::getWidget(unsigned short index) const { return index < children_.size() ? children_[index] : WidgetDetails(); }

void Glob::setWidgetDetails(const WidgetDetails& details) {
    WidgetDetails* d = detailsOf(details.child);
    if (!d) return;
    Glob* sibling = details.sibling && details.sibling->parent_ == this && details.sibling != details.child ? details.sibling : nullptr;
    *d = details;
    d->sibling = sibling;
    calcAbsoluteWidgetPositions();
}

void Glob::removeWidget(Glob*& child, bool destroy) {
    if (!child || child->parent_ != this) return;
    detachChild(child);
    child->parent_ = nullptr;
    if (destroy) {
        delete child;
        child = nullptr;
    }
}

void Glob::detachChild(Glob* child) {
    auto it = std::find_if(children_.begin(), children_.end(), [child](const WidgetDetails& d) { return d.child == child; });
    if (it == children_.end()) return;
    // Whoever hung from the leaving child now hangs from what it hung from.
    Glob* inherited = it->sibling;
    children_.erase(it);
    for (WidgetDetails& d : children_)
        if (d.sibling == child) d.sibling = inherited;
    if (!dying_) calcAbsoluteWidgetPositions();
}

std::vector<Glob*> Glob::getChildren() const {
    std::vector<Glob*> out;
    out.reserve(children_.size());
    for (const WidgetDetails& d : children_) out.push_back(d.child);
    return out;
}

WidgetDetails* Glob::detailsOf(const Glob* child) {
    for (WidgetDetails& d : children_)
        if (d.child == child) return &d;
    return nullptr;
}

void Glob::setLogicalParent(Glob* g) { logicalParent_.reset(g); }

Glob* Glob::logicalParent() const {
    if (Glob* g = logicalParent_.get()) return g;
    return parent_;
}

void Glob::placeChild(std::size_t index) {
    WidgetDetails& d = children_[index];
    const BoxInt* sibling = nullptr;
    BoxInt siblingBox;
    if (d.position.origin == kSiblingRelative && d.sibling) {
        siblingBox = d.sibling->box();
        sibling = &siblingBox;
    }
    BoxInt b = d.position.resolve(d.child->size(), size(), getUserArea(), sibling);
    d.child->x_ = b.x1;
    d.child->y_ = b.y1;
}

void Glob::calcAbsoluteWidgetPositions() {
    // Children are placed in the order they were added, so a sibling is always placed
    // before whoever hangs from it.
    for (std::size_t i = 0; i < children_.size(); ++i) placeChild(i);
}

void Glob::adoptCanvas(Canvas* c) {
    if (canvas_ != c) {
        canvas_ = c;
        ownCanvas_.reset();
    }
    for (WidgetDetails& d : children_) d.child->adoptCanvas(c);
}

// ---- geometry ---------------------------------------------------------------

XY<int> Glob::canvasPos() const {
    XY<int> p;
    for (const Glob* g = this; g->parent_; g = g->parent_) p = p + XY<int>(g->x_, g->y_);
    return p;
}

XY<int> Glob::screenPos() const {
    const Glob* root = this;
    while (root->parent_) root = root->parent_;
    return canvasPos() + XY<int>(root->x_, root->y_);
}

XY<int> Glob::screenXYToGlobXY(const XY<int>& p) const { return p - screenPos(); }

void Glob::resize(double width, double height) {
    XY<int> s = sizeConstrain({static_cast<int>(width), static_cast<int>(height)});
    if (s.x == w_ && s.y == h_) return;
    XY<int> old = size();
    oldSize_ = old;
    w_ = s.x;
    h_ = s.y;
    if (ownCanvas_) ownCanvas_->resize(w_, h_);
    calcAbsoluteWidgetPositions();
    if (parent_) parent_->handleChildResize(this, old);
    // The new canvas is blank. It is painted once the whole resize is done, since
    // overrides lay their own furniture out after this returns.
    if (ownCanvas_ && GlobManager::instance().isRealized(this)) {
        redrawLater();
        GlobManager::instance().screenChanged();
    }
}

void Glob::handleChildResize(const Glob*, const XY<int>&) { calcAbsoluteWidgetPositions(); }

XY<int> Glob::sizeConstrain(const XY<int>& s) const {
    XY<int> out = s;
    if (maxSize_) out = {std::min(out.x, maxSize_->x), std::min(out.y, maxSize_->y)};
    return {std::max({0, minSize_.x, out.x}), std::max({0, minSize_.y, out.y})};
}

XY<int> Glob::realPositionConstrain(const XY<int>& pos) const {
    return GlobManager::instance().getSafePosForGlob(canvas_, positionConstrain(pos), size());
}

void Glob::constrainWithinScreen() {
    if (!parent_) setupRootPos(realPositionConstrain({x_, y_}));
}

void Glob::setSizeState(eSizeState state) {
    if (parent_ || state == sizeState_) return;
    if (sizeState_ == kNormalSize) normalBox_ = box();
    sizeState_ = state;
    switch (state) {
    case kMaximised: {
        const Screen& screen = GlobManager::instance().screen();
        resize(screen.width(), screen.height());
        setupRootPos({0, 0});
        setVisible(true);
        break;
    }
    case kMinimised: setVisible(false); break;
    default:
        resize(normalBox_.width(), normalBox_.height());
        setupRootPos({normalBox_.x1, normalBox_.y1});
        setVisible(true);
        break;
    }
    redraw();
}

void Glob::reshape() {
    calcAbsoluteWidgetPositions();
    redraw();
}

bool Glob::reparentTo(Glob* newParent) {
    if (!reparentable_) return false;
    MOSAIC_ASSERT(newParent != this && !isParentedTo(newParent, this), "a glob moved into itself or into one of its own children");
    if (!newParent || newParent == parent_ || newParent == this || isParentedTo(newParent, this)) return false;
    WidgetDetails d = parent_ ? parent_->getWidget(this) : WidgetDetails();
    // A position hung from an old sibling cannot hold in the new parent.
    if (d.position.origin == kSiblingRelative) d.position = WidgetPosition(kBottomLeft, {x_, y_});
    if (!parent_) d.position = WidgetPosition(kBottomLeft, {0, 0});
    newParent->addChild(this, d.position, d.surround);
    return true;
}

void Glob::reshapeWidgetAt(Glob* child, double x, double y, Glob* sibling) {
    XY<int> at(static_cast<int>(x), static_cast<int>(y));
    if (sibling && sibling->parent_ == this) at = at + XY<int>(sibling->x_, sibling->y_);
    setWidgetPos(child, BottomLeft(at));
    if (child && child->parent_ == this) redraw();
}

void Glob::startMoving(const XY<int>& grab, bool raise) {
    Glob* root = getRootParent(this);
    if (raise) GlobManager::instance().raise(root);
    GlobManager::instance().input().startMoving(root, grab);
}

void Glob::setModalContextGlob(Glob* modal, Glob* context) { GlobManager::instance().addModalContextGlob(modal, context ? context : this); }

void Glob::unsetModalContextGlob(Glob* modal) { GlobManager::instance().removeModalGlob(modal); }

void Glob::reshapeAndDraw(const XY<int>& s) {
    resize(s.x == kUnset ? w_ : s.x, s.y == kUnset ? h_ : s.y);
    redraw();
}

void Glob::setMinSize(unsigned short w, unsigned short h) {
    minSize_ = {w, h};
    if (w_ < w || h_ < h) resize(std::max<int>(w_, w), std::max<int>(h_, h));
}

void Glob::setupRootPos(const XY<int>& p) {
    if (parent_) return;
    if (p == XY<int>(x_, y_)) return;
    x_ = p.x;
    y_ = p.y;
    GlobManager::instance().screenChanged();
    moved();
}

void Glob::setupRootPos(Canvas*, const XY<int>& p) { setupRootPos(p); }

// ---- look and state ---------------------------------------------------------

void Glob::setPalette(const Palette& p) { palette_ = p; }

int Glob::theme() const { return palette_.isDark() ? 0 : 1; }

void Glob::setCol(const Colour& c, bool redrawNow) {
    palette_.setColour(Palette::kWindow, c);
    if (redrawNow) redraw();
}

bool Glob::isShowing() const {
    for (const Glob* g = this; g; g = g->parent_)
        if (!g->visible_) return false;
    return parent_ || GlobManager::instance().isRealized(getRootParent(const_cast<Glob*>(this)));
}

void Glob::setVisible(bool v) {
    if (v == visible_) return;
    visible_ = v;
    if (parent_) {
        // What was under a hidden child shows again.
        parent_->redraw();
    } else {
        GlobManager::instance().screenChanged();
        if (v) redraw();
    }
}

void Glob::setActive(bool a, eRedrawFlag flag) {
    active_ = a;
    if (flag == kRedraw) redraw();
}

void Glob::addSurround(const Colour& colour, unsigned long width, float opacity, unsigned int sides) {
    surround_ = {colour, width, opacity, sides};
    redraw();
}

void Glob::addShadow() {
    shadow_ = true;
    GlobManager::instance().screenChanged();
}

void Glob::removeSurround() {
    if (shadow_) {
        shadow_ = false;
        GlobManager::instance().screenChanged();
    }
    if (!hasSurround()) return;
    surround_ = Surround();
    // What the surround covered belongs to the parent.
    if (parent_)
        parent_->redraw();
    else
        redraw();
}

void Glob::setOpacity(double o) {
    opacity_ = std::clamp(o, 0.0, 1.0);
    GlobManager::instance().screenChanged();
}

void Glob::setContextString(const UIString& tooltip, const UIString& extra) {
    tooltip_ = tooltip;
    contextExtra_ = extra;
}

void Glob::handleUIChange(unsigned int what) {
    for (WidgetDetails& d : children_) d.child->handleUIChange(what);
}

// ---- painting ---------------------------------------------------------------

bool Glob::canDraw() const { return canvas_ && visible_ && w_ > 0 && h_ > 0; }

void Glob::paintNow() {
    if (!canDraw()) return;
    for (const Glob* g = parent_; g; g = g->parent_)
        if (!g->visible_) return;
    // A child paints inside every ancestor's box.
    BoxInt clip(canvasPos(), size());
    for (const Glob* g = parent_; g; g = g->parent_) clip.clip(BoxInt(g->canvasPos(), g->size()));
    canvas_->pushOrigin({0, 0}, clip);
    draw();
    canvas_->popOrigin();
    GlobManager::instance().screenChanged();
}

void Glob::draw() {
    if (!canDraw()) return;
    canvas_->pushOrigin(canvasPos(), BoxInt(canvasPos(), size()));
    drawBackground();
    drawWidgets();
    drawBorder();
    drawSurround();
    canvas_->popOrigin();
}

void Glob::drawBackground() { CanvasRenderer(canvas_).fill(palette_.window()); }

void Glob::drawSurround() {
    if (!hasSurround()) return;
    Colour c = surround_.colour;
    c.setAlpha(c.alpha() * surround_.opacity);
    CanvasRenderer r(canvas_);
    int t = static_cast<int>(surround_.width);
    if (surround_.sides & 1) r.render(Glib::RectDescription(BoxInt(0, 0, t, h_), c));
    if (surround_.sides & 2) r.render(Glib::RectDescription(BoxInt(w_ - t, 0, w_, h_), c));
    if (surround_.sides & 4) r.render(Glib::RectDescription(BoxInt(0, 0, w_, t), c));
    if (surround_.sides & 8) r.render(Glib::RectDescription(BoxInt(0, h_ - t, w_, h_), c));
}

void Glob::drawUnbuffered() { paintNow(); }

void Glob::makeCanvasCurrent() { Glib::setCurrentCanvas(canvas_); }

void Glob::reshapeCanvas() {
    if (ownCanvas_) ownCanvas_->resize(w_, h_);
}

void Glob::load(const configb& c) {
    if (!persistable_) return;
    auto number = [&](const char* key, int fallback) {
        LightweightString<char> v = c.get(key);
        char* end = nullptr;
        long n = std::strtol(v.c_str(), &end, 10);
        return (v.empty() || *end) ? fallback : static_cast<int>(n);
    };
    resize(number("width", w_), number("height", h_));
    if (!parent_) setupRootPos(realPositionConstrain({number("x", x_), number("y", y_)}));
    makeClean();
}

void Glob::dump(configb& c) {
    if (!persistable_) return;
    c.set("x", LightweightString<char>(std::to_string(x_)));
    c.set("y", LightweightString<char>(std::to_string(y_)));
    c.set("width", LightweightString<char>(std::to_string(w_)));
    c.set("height", LightweightString<char>(std::to_string(h_)));
    makeClean();
}

void Glob::drawWidgets() {
    for (WidgetDetails& d : children_)
        if (d.child->isVisible()) d.child->draw();
}

// ---- events -----------------------------------------------------------------

bool Glob::claimKbdFocus() {
    if (!acceptsKbdFocus() || !active_) return false;
    set_kbd_focus(this);
    return get_kbd_focus() == this;
}

void Glob::relinquishKbdFocus(Glob* next) {
    if (hasKbdFocus()) set_kbd_focus(next);
}

bool Glob::hasKbdFocus() const { return get_kbd_focus() == this; }

void Glob::setInterest(int bits) {
    interest_ |= bits;
    if (bits & Event::kTimer) GlobManager::instance().setTimerInterest(this, true);
}

void Glob::clearInterest(int bits) {
    interest_ &= ~bits;
    if (bits & Event::kTimer) GlobManager::instance().setTimerInterest(this, false);
}

void Glob::popToTop(bool) { GlobManager::instance().raise(getRootParent(this)); }

Glob* Glob::findGlobAt(const XY<int>& p) {
    // Younger children lie on top of older ones.
    for (auto it = children_.rbegin(); it != children_.rend(); ++it) {
        Glob* c = it->child;
        if (!c->visible_ || !c->box().contains(p)) continue;
        Glob* hit = c->findGlobAt(p - XY<int>(c->x_, c->y_));
        if (hit != c || !c->lightweight_) return hit;
    }
    return this;
}

void Glob::sendMsg(Glob* target, const char* message) { sendMessage(message, target, this); }

void Glob::callMsg(Glob* target, const char* message) { callMessage(message, target, this); }

// ---- visitors ---------------------------------------------------------------

void Glob::visitChildren(const std::function<bool(Glob*)>& f) const {
    for (const WidgetDetails& d : children_)
        if (!f(d.child)) return;
}

bool Glob::visitSubtree(const std::function<bool(Glob*)>& f) {
    if (!f(this)) return false;
    for (const WidgetDetails& d : children_)
        if (!d.child->visitSubtree(f)) return false;
    return true;
}

void Glob::visitAncestors(const std::function<bool(Glob*)>& f) const {
    for (Glob* g = parent_; g; g = g->parent_)
        if (!f(g)) return;
}

void Glob::visitPostOrder(const std::function<void(Glob*)>& f) {
    for (const WidgetDetails& d : children_) d.child->visitPostOrder(f);
    f(this);
}

void Glob::visitOlderSiblings(const std::function<bool(Glob*)>& f) const {
    if (!parent_) return;
    for (const WidgetDetails& d : parent_->children_) {
        if (d.child == this || !f(d.child)) return;
    }
}

void Glob::visitYoungerSiblings(const std::function<bool(Glob*)>& f) const {
    if (!parent_) return;
    bool after = false;
    for (const WidgetDetails& d : parent_->children_) {
        if (after && !f(d.child)) return;
        after = after || d.child == this;
    }
}

void Glob::visitSiblings(const std::function<bool(Glob*)>& f) const {
    if (!parent_) return;
    for (const WidgetDetails& d : parent_->children_)
        if (d.child != this && !f(d.child)) return;
}

// ---- free functions ---------------------------------------------------------

bool is_good_glob_ptr(const Glob* g) { return Glob::isLiveGlob(g); }

Glob* getRootParent(Glob* g) {
    if (!g) return nullptr;
    while (g->parent()) g = g->parent();
    return g;
}

bool isParentedTo(const Glob* g, const Glob* ancestor) {
    if (!g || !ancestor) return false;
    for (const Glob* p = g->parent(); p; p = p->parent())
        if (p == ancestor) return true;
    return false;
}

Glob* canvas_to_glob(Canvas* c) {
    Glob* found = nullptr;
    walk_all_root_globs([&](Glob* g) {
        if (g->canvas() == c) found = g;
    });
    return found;
}

void walk_all_root_globs(const std::function<void(Glob*)>& f) {
    for (Glob* g : GlobManager::instance().roots()) f(g);
}

bool writeGlobPNG(const Glob* g, const LightweightString<char>& path) {
    if (!is_good_glob_ptr(g) || !g->canvas()) return false;
    BoxInt area(g->canvasPos(), g->size());
    return writeCanvasPNG(*g->canvas(), path, &area);
}

Glob* event_to_sender_glob(const Event& e) {
    if (!EventHandler::valid(e.sender(), e.senderStamp())) return nullptr;
    return dynamic_cast<Glob*>(e.sender());
}
