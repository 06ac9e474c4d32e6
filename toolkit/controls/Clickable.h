#pragma once

#include "glob/Glob.h"
#include "glob/TabOrderManager.h"

/// The press-and-release behaviour that every button-like control shares: a left
/// click inside (pressed and released over the control) or Space/Return while it
/// has the keyboard focus makes a click; hovering, pressing and focus change what
/// it shows. An inactive control ignores input.
class Clickable : public Glob, public TabOrderable {
public:
    explicit Clickable(const GlobCreationInfo& info) : Glob(info) {}

    bool isHovered() const { return hovered_; }
    // Held down with the mouse still over it.
    bool isPressed() const { return pressed_ && armed_; }

    // By default a click is made as the button is released over the control; false
    // makes it as the button goes down.
    void setMessageOnMouseUp(bool onUp) { messageOnMouseUp_ = onUp; }
    bool messageOnMouseUp() const { return messageOnMouseUp_; }
    // A control that ignores mouse clicks still shows itself and takes the keys.
    void setIgnoreMouseClicks(bool ignore) { ignoreMouseClicks_ = ignore; }
    bool ignoresMouseClicks() const { return ignoreMouseClicks_; }

    int react(const Event& e) override;
    void handleMouseContainment(bool inside) override;
    bool acceptsKbdFocus() const override { return isActive() && isVisible(); }
    void handleKbdFocus(bool) override { redraw(); }
    Glob* tabGlob() override { return this; }
    bool canTakeTabFocus() override { return acceptsKbdFocus(); }

protected:
    // A complete click, by mouse or keyboard.
    virtual void clicked() = 0;
    // The modifier keys held with the input that made the click.
    unsigned clickModifiers() const { return clickModifiers_; }
    // Keys other than the click keys, while focused; non-zero consumes.
    virtual int handleKey(int) { return 0; }
    // Paints the raised face of a button in `box` for the present state; a flat
    // face shows only while hovered or pressed. A button held down shows pressed.
    void drawFace(const BoxInt& box, bool flat, bool heldDown = false) const;

private:
    bool hovered_ = false;
    bool pressed_ = false;
    bool armed_ = false;
    bool messageOnMouseUp_ = true;
    bool ignoreMouseClicks_ = false;
    unsigned clickModifiers_ = 0;
};
