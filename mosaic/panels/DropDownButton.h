#pragma once

#include "controls/Button.h"
#include "controls/DropDownButtonInitArgs.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/GlobHandle.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"
#include "glob/fireCallback.h"

/// A button that opens a widget of type T beside itself when pressed and knows when
/// that widget has gone. The widget belongs to the GlobManager once it stands; the
/// button keeps only a checked handle to it. The widget's end always arrives as
/// "menu_poot" (from the widget or from the toolkit's dismissal of a modal panel),
/// and the button comes up again.
///
/// A latching button opens the widget as it goes down and closes it as it comes up.
/// A button that does not latch goes down as the widget opens and stays down until
/// the widget has gone; a second click asks it to go (handleSecondClick).
template <class T>
class DropDownButton : public Button {
public:
    static constexpr const char* goneMsg = GlobManager::dismissedMsg;

    DropDownButton(unsigned short width, unsigned short height, bool styleFlag, Canvas* canvas)
        : DropDownButton(recordFor(width, height, styleFlag, canvas)) {}
    explicit DropDownButton(const DropDownButtonInitArgs& args) : Button(args), styleFlag_(args.flat) {
        setStyle(styleFlag_ ? kFlatDropDown : kRaised);
    }
    ~DropDownButton() override {
        removeMenuFromScreen();
        if (dropped_.isOwning()) dropped_.deleteGlob();
    }
    const char* idstring() const override { return "DropDownButton"; }

    // Opens the widget; true when it now stands (false when it stood already).
    bool displayDropDown() {
        if (dropped_.valid()) return false;
        if (parent() && UifStd::instance().getWindowArrangement() == 0) parent()->popToTop(false);
        dropped_.reset(generateDropDown(), true);
        return dropped_.valid();
    }
    // Asks the widget to go, if it still stands; a widget that died is not touched.
    void removeMenuFromScreen() {
        T* w = dropped_.get();
        forgetDropDown();
        if (!w) return;
        GlobManager::instance().removeModalGlob(w);
        GlobManager::instance().requestDeletion(w);
    }
    T* getDropDown() const { return dropped_.get(); }
    bool isDroppedWidget(const Glob* g) const { return g && static_cast<const Glob*>(dropped_.get()) == g; }

    // The side of the button the widget opens on (kNoRelativity draws no joined
    // border), and how it lines up with the button along that side.
    void setDropSide(eWidgetRelativity side) { dropSide_ = side; }
    eWidgetRelativity getDropSide() const { return dropSide_; }
    void setDropAlignment(eWidgetAlignment alignment) { dropAlignment_ = alignment; }
    eWidgetAlignment getDropAlignment() const { return dropAlignment_; }

    void switchState(button_state state, bool redraw) override {
        if (isLatching()) {
            if (state == kButtonDown) {
                if (!dropped_.valid()) displayDropDown();
            } else {
                removeMenuFromScreen();
            }
        } else if (state == kButtonDown) {
            if (dropped_.valid())
                handleSecondClick();
            else
                state = displayDropDown() ? kButtonDown : kButtonUp;
        }
        Button::switchState(state, redraw);
    }

    int react(const Event& e) override {
        if (!e.isMessage()) {
            if (mouse_wheel_event(e) && isActive() && handleMouseWheelDelta(e.wheelDelta())) return 1;
            return Button::react(e);
        }
        Glob* sender = event_to_sender_glob(e);
        if (e.messageText() == goneMsg) {
            if (isStaleGoneMsg(e)) return 1;
            forgetDropDown();
            setState(kButtonUp, 1);
            return 1;
        }
        if (dropped_.valid() && isDroppedWidget(sender)) {
            if (handleDropDownMessage(e.messageText().c_str())) removeMenuFromScreen();
            return 1;
        }
        return Button::react(e);
    }

    // The edges of a button that is down with its widget standing, in a lighter
    // shade, all but the one facing the widget: button and widget read as one shape.
    void drawBorder() override {
        T* w = dropped_.get();
        if (getState() != kButtonDown || !w || dropSide_ == kNoRelativity) return;
        const int t = UifStd::instance().getIndentWidth(), W = width(), H = height();
        const Colour c = scale(getCol(), 1.4);
        CanvasRenderer r(canvas());
        auto edge = [&](int x1, int y1, int x2, int y2) { r.render(Glib::RectDescription(BoxInt(x1, y1, x2, y2), c)); };
        const XY<int> me = screenPos();
        if (dropSide_ == kLeftOf || dropSide_ == kRightOf) {
            edge(0, 0, W, t);
            edge(0, H - t, W, H);
            if (w->getX() > me.x)
                edge(0, 0, t, H);
            else
                edge(W - t, 0, W, H);
        } else if (dropSide_ == kAbove || dropSide_ == kBelow) {
            edge(0, 0, t, H);
            edge(W - t, 0, W, H);
            if (w->getY() > me.y)
                edge(0, 0, W, t);
            else
                edge(0, H - t, W, H);
        }
    }

protected:
    // Makes the widget and puts it on the screen; null when it cannot.
    virtual T* generateDropDown() = 0;
    // A message from the widget; true closes it.
    virtual bool handleDropDownMessage(const char* message) = 0;
    // The mouse wheel over the button; true when it was used.
    virtual bool handleMouseWheelDelta(int) { return false; }
    virtual void handleSecondClick() { removeMenuFromScreen(); }

    void clicked() override {
        if (isLatching()) {
            Button::clicked();
            return;
        }
        switchState(kButtonDown, true);
        if (is_good_glob_ptr(this)) fireCallback(this, getCallback());
    }
    // A "menu_poot" from a live glob that is not the widget standing now speaks of an older one.
    bool isStaleGoneMsg(const Event& e) const {
        Glob* sender = event_to_sender_glob(e);
        return dropped_.valid() && sender && !isDroppedWidget(sender);
    }
    // Lets go of the widget without touching it: it has gone, or lives on by itself.
    void forgetDropDown() {
        dropped_.setOwning(false);
        dropped_.reset(nullptr);
    }

private:
    static DropDownButtonInitArgs recordFor(unsigned short width, unsigned short height, bool styleFlag, Canvas* canvas) {
        DropDownButtonInitArgs args(UIString(), WidgetCallback(), width, height);
        args.flat = styleFlag;
        args.canvas = canvas;
        if (Glob* owner = canvas_to_glob(canvas)) args.palette = owner->getPalette();
        return args;
    }

    GlobHandle<T> dropped_;
    eWidgetAlignment dropAlignment_ = kAlignStart;
    eWidgetRelativity dropSide_ = kBelow;
    bool styleFlag_ = false;
};
