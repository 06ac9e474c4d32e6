#include "StandardPanel.h"

#include "draw/Canvas.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"

#include <algorithm>
#include <utility>

namespace {

// A small button of the title bar that draws a glyph and runs an action when clicked.
class FurnitureButton : public Glob {
public:
    enum Glyph { kClose, kCogs, kFlip, kDoIt, kPin, kGrip };

    // The action is given the button, which is where the cogs open their menu.
    FurnitureButton(const GlobCreationInfo& info, Glyph glyph, std::function<void(Glob*)> action)
        : Glob(info), glyph_(glyph), action_(std::move(action)) {}

    const char* idstring() const override { return "FurnitureButton"; }
    Glyph glyph() const { return glyph_; }

    void drawBackground() override {
        CanvasRenderer r(canvas());
        Colour bg = hot_ ? getPalette().window(kShadeLighter) : getPalette().window(kShadeLight);
        if (glyph_ != kGrip) r.render(Glib::RectDescription(BoxInt(0, 0, width(), height()), bg));
        Colour ink = getPalette().text();
        int w = width() - 1, h = height() - 1, m = std::max(2, width() / 4);
        switch (glyph_) {
        case kClose:
            r.render(Glib::LineDescription({double(m), double(m)}, {double(w - m), double(h - m)}, ink, 1.5));
            r.render(Glib::LineDescription({double(m), double(h - m)}, {double(w - m), double(m)}, ink, 1.5));
            break;
        case kCogs: {
            Glib::EllipseDescription wheel({width() / 2.0, height() / 2.0}, {w / 3.0, h / 3.0}, ink, false);
            wheel.lineWidth = std::max(1.5, w / 8.0);
            r.render(wheel);
            break;
        }
        case kDoIt:
            r.render(Glib::LineDescription({double(m), h / 2.0}, {w / 2.0 - 1, double(m)}, ink, 1.5));
            r.render(Glib::LineDescription({w / 2.0 - 1, double(m)}, {double(w - m), double(h - m)}, ink, 1.5));
            break;
        case kPin: r.render(Glib::EllipseDescription({width() / 2.0, height() / 2.0}, {w / 4.0, h / 4.0}, ink, true)); break;
        case kFlip: r.render(Glib::RectDescription(BoxInt(m, m, width() - m, height() - m), ink)); break;
        case kGrip:
            for (int k = 0; k < 3; ++k) r.render(Glib::LineDescription({double(w - 3 * k - 3), 0.0}, {double(w), double(3 * k + 3)}, ink));
            break;
        }
    }

    int react(const Event& e) override {
        if (glyph_ == kGrip) return 0; // the panel drags its frame
        if (mouse_down_event(e) && mouse_left_event(e)) {
            pressed_ = true;
            return 1;
        }
        if (mouse_up_event(e) && mouse_left_event(e)) {
            // A release that ends a press begun elsewhere is not a click.
            bool clicked = std::exchange(pressed_, false) && BoxInt(0, 0, width(), height()).contains(e.pos());
            if (clicked && action_) action_(this);
            return 1;
        }
        return 0;
    }

    void handleMouseContainment(bool inside) override {
        hot_ = inside;
        redraw();
    }

private:
    Glyph glyph_;
    std::function<void(Glob*)> action_;
    bool hot_ = false;
    bool pressed_ = false;
};

constexpr int kFurnitureBits =
    StandardPanel::kCloseBox | StandardPanel::kCogsButton | StandardPanel::kFlipSizeButton | StandardPanel::kDoItButton | StandardPanel::kPinButton;

} // namespace

StandardPanel::StandardPanel(const InitArgs& args) : Glob(args), border_(args.border) { titleFont_ = UifStd::instance().getTitleFont(); }

StandardPanel::StandardPanel(unsigned short width, unsigned short height) : StandardPanel(InitArgs(width, height)) {}

StandardPanel::StandardPanel(unsigned short width, unsigned short height, const Palette& palette, bool child, Canvas* canvas)
    : StandardPanel(InitArgs(GlobCreationInfo(width, height, palette, child, canvas), Border(Border::kNoBorder, 0, 15))) {}

const char* StandardPanel::standardWidgetName(int bit) {
    switch (bit) {
    case kTitleBar: return "Title";
    case kCloseBox: return "Poot";
    case kPinButton: return "Pin";
    case kCogsButton: return "Cogs";
    case kDoItButton: return "DoIt";
    default: return "";
    }
}

StandardPanel::~StandardPanel() = default;

// ---- border, title, furniture -----------------------------------------------

Border StandardPanel::getDefaultBorder() {
    return Border(Border::kSquarePanelBorder, static_cast<unsigned short>(UifStd::instance().getBorderWidth()), 15);
}

void StandardPanel::setBorder(const Border& b) {
    border_ = b;
    calcAbsoluteWidgetPositions();
    layoutFurniture();
}

void StandardPanel::setBorderStyle(Border::eType type) { setBorder(Border(type, border_.size(), border_.sides())); }

void StandardPanel::setTitle(const UIString& title, const Glib::FontDesc& font, eRedrawFlag flag) {
    bool hadBar = hasTitleBar();
    title_ = title;
    titleFont_ = (font == Glib::FontDesc()) ? UifStd::instance().getTitleFont() : font.resolved();
    if (hadBar != hasTitleBar()) {
        calcAbsoluteWidgetPositions();
        layoutFurniture();
    }
    handleTitleChange();
    if (flag == kRedraw) redraw();
}

bool StandardPanel::hasTitleBar() const { return !title_.empty() || (standardWidgets_ & (kFurnitureBits | kTitleBar)); }

BoxInt StandardPanel::titleBarBox() const {
    if (!hasTitleBar()) return {};
    int top = height() - border_.top();
    return BoxInt(border_.left(), top - UifStd::instance().getTitleHeight(), width() - border_.right(), top);
}

void StandardPanel::addStandardWidgets(int bits) {
    bool hadBar = hasTitleBar();
    standardWidgets_ |= bits;
    for (Glob* f : furniture_) {
        Glob* doomed = f;
        removeWidget(doomed, true);
    }
    furniture_.clear();
    int h = UifStd::instance().getTitleHeight();
    int box = h - 2 * UifStd::instance().getRowGap();
    GlobCreationInfo info(static_cast<unsigned short>(box), static_cast<unsigned short>(box), getPalette(), true, canvas());
    auto add = [&](FurnitureButton::Glyph g, std::function<void(Glob*)> action) {
        furniture_.push_back(new FurnitureButton(info, g, std::move(action)));
        addChild(furniture_.back(), TopRight(0, 0));
    };
    if (standardWidgets_ & kCloseBox) add(FurnitureButton::kClose, [this](Glob*) { handlePoot(); });
    if (standardWidgets_ & kCogsButton)
        add(FurnitureButton::kCogs, [this](Glob* cogs) { makeMenu(Event::mouse(Event::kMouseDown, cogs->screenPos(), Event::kLeft)); });
    if (standardWidgets_ & kFlipSizeButton) add(FurnitureButton::kFlip, [this](Glob*) { handleFlipSize(); });
    if (standardWidgets_ & kDoItButton) add(FurnitureButton::kDoIt, [this](Glob* button) { sendMessage(doItMsg, this, button); });
    if (standardWidgets_ & kPinButton) add(FurnitureButton::kPin, [this](Glob*) { handlePinned(!pinned_); });
    if (standardWidgets_ & kResizeGrip) {
        GlobCreationInfo grip(info, static_cast<unsigned short>(h / 2), static_cast<unsigned short>(h / 2));
        furniture_.push_back(new FurnitureButton(grip, FurnitureButton::kGrip, {}));
        furniture_.back()->setLightweight(true);
        addChild(furniture_.back(), BottomRight(0, 0));
        setResizable(true);
    }
    if (standardWidgets_ & kTitleBar) setMovable(true);
    if (hadBar != hasTitleBar()) calcAbsoluteWidgetPositions();
    layoutFurniture();
}

void StandardPanel::removeStandardWidgets(int bits, bool redrawNow) {
    int keep = standardWidgets_ & ~bits;
    standardWidgets_ = 0;
    addStandardWidgets(keep);
    if (!(keep & kTitleBar)) setMovable(false);
    if (!(keep & kResizeGrip)) setResizable(false);
    if (redrawNow) redraw();
}

void StandardPanel::layoutFurniture() {
    int gap = UifStd::instance().getRowGap();
    int x = border_.right() + gap;
    for (Glob* f : furniture_) {
        if (static_cast<FurnitureButton*>(f)->glyph() == FurnitureButton::kGrip) {
            setWidgetPos(f, BottomRight(border_.right(), border_.bottom()));
            continue;
        }
        setWidgetPos(f, TopRight(x, border_.top() + gap));
        x += f->width() + gap;
    }
}

int StandardPanel::calcMaxTitleWidgetWidth() const {
    int w = 0, gap = UifStd::instance().getRowGap();
    for (Glob* f : furniture_)
        if (static_cast<FurnitureButton*>(f)->glyph() != FurnitureButton::kGrip) w += f->width() + gap;
    return w;
}

void StandardPanel::handlePoot() { GlobManager::instance().requestDeletion(this); }

void StandardPanel::handleFlipSize() {
    // Flips between the current size and the smallest that still shows the title.
    XY<int> now = size();
    XY<int> other = flipSize_.x >= 0 ? flipSize_ : XY<int>(width(), border_.top() + border_.bottom() + UifStd::instance().getTitleHeight());
    flipSize_ = now;
    int top = getY() + height();
    resize(other.x, other.y);
    if (!parent()) setupRootPos({getX(), top - height()});
    redraw();
}

// ---- geometry ---------------------------------------------------------------

BoxInt StandardPanel::getUserArea() const {
    BoxInt a(border_.left(), border_.bottom(), width() - border_.right(), height() - border_.top());
    if (hasTitleBar()) a.y2 -= UifStd::instance().getTitleHeight();
    if (a.x2 < a.x1) a.x2 = a.x1;
    if (a.y2 < a.y1) a.y2 = a.y1;
    return a;
}

BoxInt StandardPanel::getUserAreaBorders(int standardWidgets, const Border& border) {
    int title = (standardWidgets & (kFurnitureBits | kTitleBar)) ? UifStd::instance().getTitleHeight() : 0;
    return BoxInt(border.left(), border.bottom(), border.right(), border.top() + title);
}

BoxInt StandardPanel::getUserArea(int standardWidgets, const XY<int>& size, const Border& border) {
    BoxInt b = getUserAreaBorders(standardWidgets, border);
    return BoxInt(b.x1, b.y1, std::max(b.x1, size.x - b.x2), std::max(b.y1, size.y - b.y2));
}

XY<int> StandardPanel::calcPanelSize(const XY<int>& userSize, int standardWidgets, const Border& border) {
    BoxInt b = getUserAreaBorders(standardWidgets, border);
    return {userSize.x + b.x1 + b.x2, userSize.y + b.y1 + b.y2};
}

XY<int> StandardPanel::calcSize(eSpacing spacing, const Border& border) {
    const UifStd& u = UifStd::instance();
    int rows = spacing == kCompact ? 4 : spacing == kNormal ? 8 : 12;
    return calcPanelSize({u.getRowHeight() * 12, rows * (u.getRowHeight() + u.getRowGap())}, 0, border);
}

XY<int> StandardPanel::getOriginXY(eCoordinateOrigin origin) const {
    BoxInt b = WidgetPosition(origin, {}).resolve({0, 0}, size(), getUserArea(), nullptr);
    return {b.x1, b.y1};
}

void StandardPanel::resize(double w, double h) {
    Glob::resize(w, h);
    layoutFurniture();
}

// ---- painting ---------------------------------------------------------------

void StandardPanel::drawBackground() {
    CanvasRenderer r(canvas());
    r.fill(getPalette().window());
    if (!hasTitleBar()) return;
    BoxInt bar = titleBarBox();
    r.render(Glib::RectDescription(bar, getPalette().window(kShadeDark)));
    if (!title_.empty()) {
        int indent = UifStd::instance().getRowGap() * 2;
        BoxInt text(bar.x1 + indent, bar.y1, bar.x2 - calcMaxTitleWidgetWidth() - indent, bar.y2);
        Glib::TextDescription t(text, title_.getString(), titleFont_, getPalette().text());
        t.ellipsize = true;
        r.render(t);
    }
    drawTitleSeparator();
}

void StandardPanel::drawTitleSeparator() {
    BoxInt bar = titleBarBox();
    if (bar.isEmpty()) return;
    CanvasRenderer(canvas()).render(
        Glib::LineDescription({double(bar.x1), double(bar.y1)}, {double(bar.x2 - 1), double(bar.y1)}, getPalette().window(kShadeDarkest)));
}

void StandardPanel::drawBorder() {
    const Border::eType type = border_.type();
    if (type == Border::kNoBorder || border_.size() == 0) return;
    const Palette& p = getPalette();
    CanvasRenderer r(canvas());
    const int w = width(), h = height();
    if (type == Border::kCurvedPanelBorder || type == Border::kDarkenedRoundedRect) {
        Glib::RectDescription ring(BoxInt(0, 0, w, h), Colour());
        ring.filled = false;
        ring.outline = p.window(type == Border::kCurvedPanelBorder ? kShadeDarker : kShadeDarkest);
        ring.outlineWidth = border_.size();
        ring.cornerRadius = 3.0 * border_.size();
        r.render(ring);
        return;
    }
    Colour topLeft = p.window(kShadeLightest), bottomRight = p.window(kShadeDarkest);
    if (type == Border::kSunkenBorder) std::swap(topLeft, bottomRight);
    if (type == Border::kMenuBorder) topLeft = bottomRight = p.window(kShadeDarkest);
    if (type == Border::kDropMenuBorder) topLeft = bottomRight = p.window(kShadeDarker);
    if (type == Border::kLineBorder) topLeft = bottomRight = p.text();
    if (border_.left()) r.render(Glib::RectDescription(BoxInt(0, 0, border_.left(), h), topLeft));
    if (border_.top()) r.render(Glib::RectDescription(BoxInt(0, h - border_.top(), w, h), topLeft));
    if (border_.right()) r.render(Glib::RectDescription(BoxInt(w - border_.right(), 0, w, h), bottomRight));
    if (border_.bottom()) r.render(Glib::RectDescription(BoxInt(0, 0, w, border_.bottom()), bottomRight));
    if (type == Border::kDialogueBorder) {
        Glib::RectDescription line(BoxInt(0, 0, w, h), Colour());
        line.filled = false;
        line.outline = p.window(kShadeDarkest);
        line.outlineWidth = 1.0;
        r.render(line);
    }
}

// ---- events -----------------------------------------------------------------

int StandardPanel::react(const Event& e) {
    switch (e.type()) {
    case Event::kMessage: {
        Glob* sender = event_to_sender_glob(e);
        if (e.payload()) return handleDataMessageEvent(e.messageText(), sender, e.payload());
        if (int r = handleMessageEvent(e.messageText(), sender)) return r;
        // A "poot" that the panel leaves alone closes it as its close box would.
        if (e.messageText() == pootMsg) {
            handlePoot();
            return 1;
        }
        return 0;
    }
    case Event::kKeyPress: {
        modifiers_ = e.modifiers();
        if (int r = handleKeyboardEvent(e.keyCode())) return r;
        if (Keys::plain(e.keyCode()) == Keys::Tab && tabOrder_.size())
            return (e.modifiers() & Modifiers::Shift) ? tabOrder_.decrementTabStop() : tabOrder_.incrementTabStop();
        return 0;
    }
    case Event::kKeyRelease: return handleKeyReleaseEvent(e.keyCode());
    case Event::kTimer: return handleTimerEvent();
    default: break;
    }
    if (mouse_event(e)) {
        if (dragFrame(e)) return 1;
        if (int r = handleMouseEvent(e)) return r;
        // A right press that the panel left alone opens its context menu, if it has one.
        if (mouse_down_event(e) && mouse_right_event(e) && canMakeMenu(e) && makeMenu(e)) return 1;
        return 0;
    }
    return 0;
}

// Moves a top-level panel by its title bar, or resizes it by its grip.
bool StandardPanel::dragFrame(const Event& e) {
    if (parent()) return false;
    if (mouse_down_event(e) && mouse_left_event(e)) {
        BoxInt grip(width() - UifStd::instance().getTitleHeight() / 2, 0, width(), UifStd::instance().getTitleHeight() / 2);
        if (isResizable() && grip.contains(e.pos())) {
            drag_ = kResizing;
        } else if (isMovable() && titleBarBox().contains(e.pos())) {
            drag_ = kMoving;
        } else {
            return false;
        }
        dragStart_ = e.screenPos();
        dragOrigin_ = {getX(), getY()};
        dragSize_ = size();
        return true;
    }
    if (drag_ == kNoDrag) return false;
    XY<int> d = e.screenPos() - dragStart_;
    if (drag_ == kMoving) {
        setupRootPos(dragOrigin_ + d);
    } else {
        // The grip is at the bottom right: the top edge stays where it is.
        int top = dragOrigin_.y + dragSize_.y;
        resize(dragSize_.x + d.x, dragSize_.y - d.y);
        setupRootPos({dragOrigin_.x, top - height()});
        redraw();
    }
    if (mouse_up_event(e)) drag_ = kNoDrag;
    return true;
}

int StandardPanel::handleMessageEvent(const LightweightString<char>&, Glob*) { return 0; }

int StandardPanel::handleDataMessageEvent(const LightweightString<char>& message, Glob* sender, const Zn::Ptr<iObject>&) {
    return handleMessageEvent(message, sender);
}

int StandardPanel::handleKeyboardEvent(int) { return 0; }
int StandardPanel::handleKeyReleaseEvent(int) { return 0; }
int StandardPanel::handleMouseEvent(const Event&) { return 0; }
int StandardPanel::handleTimerEvent() { return 0; }
