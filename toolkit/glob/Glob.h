#pragma once

#include "Drawable.h"
#include "EventHandler.h"
#include "GlobCreationInfo.h"
#include "GlobHandle.h"
#include "MouseCursor.h"
#include "WidgetDetails.h"
#include "platform/UIString.h"
#include "platform/configb.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class Canvas;

/// A widget: a box in a tree, drawn on the canvas it shares with its top-level
/// ancestor, driven by events and named messages.
///
/// A parent owns its children and deletes them with itself. Positions count upward
/// from the bottom left of the parent. A glob made without a canvas is a top-level
/// glob with a canvas of its own; adding it to a parent moves it onto the parent's.
class Glob : public EventHandler, public Drawable, public Dirtiable {
public:
    enum eSizeState { kNormalSize = 0, kMinimised = 1, kMaximised = 2 };
    enum eDropReason { kDropped = 0, kDropCancelled = 1 };
    // What about the appearance changed (NUMBERS.md): the language or the fonts, so
    // that texts are to be taken and measured again.
    enum eUIChange : unsigned { kLanguageChanged = 8 };

    explicit Glob(const GlobCreationInfo& info);
    ~Glob() override;

    const char* idstring() const override { return "Glob"; }
    // A name that find() looks globs up by; the empty name matches nothing.
    const LightweightString<char>& name() const { return name_; }
    void setName(const LightweightString<char>& n) { name_ = n; }

    // Children.
    Glob* addChild(Glob* child, const WidgetPosition& position, WidgetSurround surround = {});
    Glob* addWidget(Glob* child, int x, int y, eCoordinateOrigin origin, WidgetSurround surround = {}, Glob* sibling = nullptr);
    Glob* addWidgetRelative(Glob* child, Glob* sibling, int gap, eWidgetRelativity relativity, WidgetSurround surround = {},
                            eWidgetAlignment alignment = kAlignStart);
    void setWidgetRelativity(Glob* child, const SiblingRelativePosition& relative);
    void setWidgetPos(Glob* child, const WidgetPosition& position);
    WidgetDetails getWidget(Glob* child) const;
    WidgetDetails getWidget(unsigned short index) const;
    void setWidgetDetails(const WidgetDetails& details);
    // Takes the child out of this glob; with `destroy` it is deleted and the pointer nulled.
    virtual void removeWidget(Glob*& child, bool destroy);
    std::vector<Glob*> getChildren() const;
    std::size_t numChildren() const { return children_.size(); }
    // Moves this glob to another parent, keeping how it was positioned; refused
    // unless the glob was made reparentable.
    virtual bool reparentTo(Glob* newParent);
    virtual void setReparentable(bool r) { reparentable_ = r; }
    virtual bool isReparentable() const { return reparentable_; }
    // Puts a child at (x, y) of this glob, relative to `sibling`'s bottom left when one is given.
    void reshapeWidgetAt(Glob* child, double x, double y, Glob* sibling = nullptr);
    Glob* parent() const { return parent_; }
    bool isChildGlob() const { return parent_ != nullptr; }
    // The glob that hears this one's messages when it has no parent (a menu's owner, say).
    void setLogicalParent(Glob* g);
    Glob* logicalParent() const;
    // Recomputes every child's place from its WidgetPosition.
    void calcAbsoluteWidgetPositions();

    // Position factories.
    static WidgetPosition UserTopLeft(int x, int y) { return {kUserTopLeft, {x, y}}; }
    static WidgetPosition UserTopRight(int x, int y) { return {kUserTopRight, {x, y}}; }
    static WidgetPosition UserBottomLeft(int x, int y) { return {kUserBottomLeft, {x, y}}; }
    static WidgetPosition UserBottomRight(int x, int y) { return {kUserBottomRight, {x, y}}; }
    static WidgetPosition UserBottomCentre(int x, int y, eWidgetAlignment = kAlignCentre) { return {kUserBottomCentre, {x, y}}; }
    static WidgetPosition UserCentre(int x, int y) { return {kUserCentre, {x, y}}; }
    static WidgetPosition BottomLeft(int x, int y) { return {kBottomLeft, {x, y}}; }
    static WidgetPosition BottomLeft(const XY<int>& p) { return {kBottomLeft, p}; }
    static WidgetPosition BottomRight(int x, int y) { return {kBottomRight, {x, y}}; }
    static WidgetPosition TopLeft(int x, int y) { return {kTopLeft, {x, y}}; }
    static WidgetPosition TopRight(int x, int y) { return {kTopRight, {x, y}}; }
    static WidgetPosition Centre(int x, int y, eWidgetAlignment = kAlignCentre) { return {kCentre, {x, y}}; }
    static WidgetPosition LeftCentre(int x, int y, eWidgetAlignment = kAlignCentre) { return {kLeftCentre, {x, y}}; }
    static WidgetPosition RightCentre(int x, int y, eWidgetAlignment = kAlignCentre) { return {kRightCentre, {x, y}}; }
    static WidgetPosition Above(int gap, Glob* sibling = nullptr, eWidgetAlignment a = kAlignStart) { return rel(kAbove, gap, sibling, a); }
    static WidgetPosition Below(int gap, Glob* sibling = nullptr, eWidgetAlignment a = kAlignStart) { return rel(kBelow, gap, sibling, a); }
    static WidgetPosition LeftOf(int gap, Glob* sibling = nullptr, eWidgetAlignment a = kAlignStart) { return rel(kLeftOf, gap, sibling, a); }
    static WidgetPosition RightOf(int gap, Glob* sibling = nullptr, eWidgetAlignment a = kAlignStart) { return rel(kRightOf, gap, sibling, a); }

    // Geometry. getX/getY are relative to the parent, or to the screen for a top-level glob.
    int getX() const { return x_; }
    int getY() const { return y_; }
    virtual int width() const { return w_; }
    virtual int height() const { return h_; }
    XY<int> size() const { return {w_, h_}; }
    BoxInt box() const { return BoxInt(x_, y_, x_ + w_, y_ + h_); }
    // The area children are laid out in, in this glob's coordinates.
    virtual BoxInt getUserArea() const { return BoxInt(0, 0, w_, h_); }
    // Where this glob's bottom left is on its canvas, and on the screen.
    XY<int> canvasPos() const;
    XY<int> screenPos() const;
    XY<int> screenXYToGlobXY(const XY<int>& p) const;
    // Sizes below the minimum size are raised to it. Children are laid out again.
    virtual void resize(double width, double height);
    // The mark of a coordinate that is not given: a size side of kUnset keeps that
    // side, a point of (kUnset, kUnset) is no point.
    static constexpr int kUnset = -1234;
    // Resizes to `size` (kUnset in either keeps that side) and repaints.
    void reshapeAndDraw(const XY<int>& size);
    virtual void setMinSize(unsigned short w, unsigned short h);
    virtual XY<int> getMinSize() const { return minSize_; }
    // The largest size resizing gives; none set means no limit.
    void setMaxSize(const std::optional<XY<int>>& size) { maxSize_ = size; }
    virtual std::optional<XY<int>> getMaxSize() const { return maxSize_; }
    int oldWidth() const { return oldSize_.x; }
    int oldHeight() const { return oldSize_.y; }
    // Hooks that may adjust a size or a top-level position before it is applied.
    virtual XY<int> sizeConstrain(const XY<int>& size) const;
    virtual XY<int> positionConstrain(const XY<int>& pos) const { return pos; }
    // Keeps a top-level glob wholly on the screen where it fits.
    XY<int> realPositionConstrain(const XY<int>& pos) const;
    void constrainWithinScreen();
    // Normal, minimised (hidden) or maximised (the whole screen) for a top-level glob.
    virtual void setSizeState(eSizeState state);
    eSizeState sizeState() const { return sizeState_; }
    // Lays the children out again and repaints.
    virtual void reshape();
    // Recomputes this glob's own size from its content; nothing to do by default.
    virtual void reshape_myself() {}
    // A top-level glob's place on the screen.
    void setupRootPos(const XY<int>& screenPos);
    void setupRootPos(Canvas* c, const XY<int>& screenPos);
    // Lets the mouse carry this top-level glob from `grab` (a screen point) until the
    // button is released; with `raise` it comes to the top first.
    void startMoving(const XY<int>& grab, bool raise = true);
    // Called after a top-level glob moved on the screen.
    virtual void moved() {}
    // Makes `modal` take all input while it is up, with `context` (this glob if null)
    // below it; a press outside it dismisses it and tells the context
    // (GlobManager::addModalContextGlob).
    void setModalContextGlob(Glob* modal, Glob* context = nullptr);
    void unsetModalContextGlob(Glob* modal);

    // Look and state.
    Canvas* canvas() const { return canvas_; }
    const Palette& getPalette() const { return palette_; }
    virtual void setPalette(const Palette& p);
    int theme() const;
    Colour getCol() const { return palette_.window(); }
    virtual void setCol(const Colour& c, bool redrawNow);
    bool isVisible() const { return visible_; }
    // True when this glob and all its ancestors are visible.
    bool isShowing() const;
    virtual void setVisible(bool v);
    bool isActive() const { return active_; }
    virtual void setActive(bool a, eRedrawFlag flag = kRedraw);
    // A lightweight glob takes no mouse input of its own: the glob below it does.
    void setLightweight(bool l) { lightweight_ = l; }
    bool isLightweight() const { return lightweight_; }
    // A top-level glob that passes input lets the mouse through to what lies
    // beneath it: an overlay that only shows something.
    void setPassesInput(bool passes) { passesInput_ = passes; }
    bool passesInput() const { return passesInput_; }
    void setIndestructible(bool i) { indestructible_ = i; }
    bool isIndestructible() const { return indestructible_; }
    virtual bool canBeDestroyed(int) const { return !indestructible_; }
    void setContextString(const UIString& tooltip, const UIString& extra = {});
    virtual UIString contextString() const { return tooltip_; }
    void setDefaultMouseCursor(MouseCursorID c) { cursor_ = c; }
    virtual MouseCursorID contextCursor(const XY<int>&) const { return cursor_; }
    XY<int> getHotSpot() const { return hotSpot_; }
    void setHotSpot(const XY<int>& p) { hotSpot_ = p; }
    // A drop shadow under a top-level glob, and a coloured frame drawn around any
    // glob; removeSurround takes away both.
    void addShadow();
    bool hasShadow() const { return shadow_; }
    void addSurround(const Colour& colour, unsigned long width = 2, float opacity = 1.0f, unsigned int sides = 15);
    void removeSurround();
    bool hasSurround() const { return surround_.width > 0; }
    // Opacity of a top-level glob on the screen, 0 to 1.
    virtual void setOpacity(double o);
    double opacity() const { return opacity_; }
    virtual void setQuickDraw(bool q) { quickDraw_ = q; }
    virtual bool getQuickDraw() const { return quickDraw_; }
    virtual bool isMagnetic() const { return false; }
    // "It" is the top-level glob the user last worked in; globs that cannot be it are passed over.
    virtual void setCanBeIt(bool c) { canBeIt_ = c; }
    virtual bool canBeIt() const { return canBeIt_; }
    virtual void handle_it(bool isIt) {}
    // Called once, just before a glob is deleted at a safe moment.
    virtual void glob_tidy() {}
    LightweightString<char> get_glob_cookie() const { return stamp().asString(); }
    void setMovable(bool m) { movable_ = m; }
    bool isMovable() const { return movable_; }
    void setResizable(bool r) { resizable_ = r; }
    bool isResizable() const { return resizable_; }
    // Called on every glob when the appearance of the whole application changes;
    // `what` holds eUIChange bits.
    virtual void handleUIChange(unsigned int what);

    // Painting: draw() paints the background, the children and the border, in
    // that order, inside this glob's box.
    virtual void draw();
    virtual bool canDraw() const;
    virtual void drawBackground();
    virtual void drawWidgets();
    virtual void drawBorder() {}
    // Whether a pixel of this glob is painted solid; transparent globs let the one below show.
    virtual bool isOpaqueAt(const XY<int>&) const { return true; }
    // Paints at once whether or not redraws are disabled.
    void drawUnbuffered();
    // Makes this glob's canvas the one drawing goes to by default.
    void makeCanvasCurrent();
    // Matches a top-level glob's canvas to its size.
    virtual void reshapeCanvas();

    // Persistence of a glob's place and size: load and dump read and write them in a
    // configb when the glob is persistable.
    virtual void load(const configb& c);
    virtual void dump(configb& c);
    virtual void setPersistable(bool p) { persistable_ = p; }
    virtual bool isPersistable() const { return persistable_; }

    // Drag and drop: pick starts carrying the glob, drop ends it.
    virtual void pick() {}
    virtual void drop(eDropReason) {}

    // Events.
    int handleEvent(const Event& e) override { return react(e); }
    virtual int react(const Event& e) { return 0; }
    virtual void handleMouseContainment(bool inside) {}
    // Lets an ancestor see input meant for a descendant first; non-zero consumes it.
    virtual int intercept(const Event& e) { return 0; }
    virtual UIString getTooltipDetails() const { return contextExtra_; }
    virtual bool acceptsKbdFocus() const { return false; }
    virtual bool claimKbdFocus();
    virtual void handleKbdFocus(bool gained) {}
    virtual void relinquishKbdFocus(Glob* next);
    bool hasKbdFocus() const;
    // Interest bits: Event::kTimer asks for timer ticks (handleTimerEvent on panels).
    virtual void setInterest(int bits);
    virtual void clearInterest(int bits);
    int interest() const { return interest_; }
    virtual void popToTop(bool activate = true);
    // The deepest visible child at `p` (this glob's coordinates) that takes the
    // mouse, or this glob itself.
    Glob* findGlobAt(const XY<int>& p);

    // Posts, or delivers at once, a named message to `target` with this glob as sender.
    void sendMsg(Glob* target, const char* message);
    void callMsg(Glob* target, const char* message);

    // Visitors: return false from the function to stop.
    void visitChildren(const std::function<bool(Glob*)>& f) const;
    bool visitSubtree(const std::function<bool(Glob*)>& f);
    void visitAncestors(const std::function<bool(Glob*)>& f) const;
    void visitPostOrder(const std::function<void(Glob*)>& f);
    // Siblings added before this glob, after it, or all of them, in order.
    void visitOlderSiblings(const std::function<bool(Glob*)>& f) const;
    void visitYoungerSiblings(const std::function<bool(Glob*)>& f) const;
    void visitSiblings(const std::function<bool(Glob*)>& f) const;

    // True for the glob with this address while it lives. Safe on dangling pointers.
    static bool isLiveGlob(const Glob* g);

protected:
    void paintNow() override;
    // Called after a child's size changed.
    virtual void handleChildResize(const Glob* child, const XY<int>& oldSize);
    virtual void handleWidgetAdded(const WidgetDetails&) {}

private:
    static WidgetPosition rel(eWidgetRelativity r, int gap, Glob* s, eWidgetAlignment a) {
        return WidgetPosition(SiblingRelativePosition{r, s, gap, a});
    }
    void placeChild(std::size_t index);
    void adoptCanvas(Canvas* c);
    WidgetDetails* detailsOf(const Glob* child);
    void detachChild(Glob* child);

    LightweightString<char> name_;
    Glob* parent_ = nullptr;
    GlobHandle<Glob> logicalParent_;
    std::vector<WidgetDetails> children_;
    Canvas* canvas_ = nullptr;
    std::unique_ptr<Canvas> ownCanvas_;
    Palette palette_;
    int x_ = 0, y_ = 0, w_ = 0, h_ = 0;
    XY<int> minSize_;
    std::optional<XY<int>> maxSize_;
    XY<int> hotSpot_;
    UIString tooltip_, contextExtra_;
    MouseCursorID cursor_ = kCursorArrow;
    int interest_ = 0;
    bool visible_ = true;
    bool active_ = true;
    bool lightweight_ = false;
    bool passesInput_ = false;
    bool indestructible_ = false;
    bool movable_ = false;
    bool resizable_ = false;
    bool dying_ = false;
    bool reparentable_ = false;
    bool persistable_ = false;
    bool shadow_ = false;
    bool quickDraw_ = false;
    bool canBeIt_ = true;
    double opacity_ = 1.0;
    eSizeState sizeState_ = kNormalSize;
    XY<int> oldSize_;
    BoxInt normalBox_;
    struct Surround {
        Colour colour;
        unsigned long width = 0;
        float opacity = 1.0f;
        unsigned int sides = 15;
    } surround_;

    void drawSurround();
};

// True when `g` denotes a live glob; safe on a dangling pointer.
bool is_good_glob_ptr(const Glob* g);
Glob* getRootParent(Glob* g);
bool isParentedTo(const Glob* g, const Glob* ancestor);
// The top-level glob that owns a canvas, or null.
Glob* canvas_to_glob(Canvas* c);
// Calls `f` on every realized top-level glob, bottom of the stack first.
void walk_all_root_globs(const std::function<void(Glob*)>& f);
// Writes what a glob shows (its box on its canvas) as a PNG file, atomically.
bool writeGlobPNG(const Glob* g, const LightweightString<char>& path);
// The glob that sent a message event, if it still lives.
Glob* event_to_sender_glob(const Event& e);
