#include "Clickable.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"

int Clickable::react(const Event& e) {
    if (!isActive()) return mouse_event(e) ? 1 : 0;
    clickModifiers_ = e.modifiers();
    const BoxInt self(0, 0, width(), height());
    if (ignoreMouseClicks_ && mouse_event(e)) return 1;
    if (mouse_down_event(e) && mouse_left_event(e)) {
        if (!messageOnMouseUp_) {
            clicked();
            return 1;
        }
        pressed_ = armed_ = true;
        redraw();
        return 1;
    }
    if (mouse_move_event(e) && pressed_) {
        bool inside = self.contains(e.pos());
        if (inside != armed_) {
            armed_ = inside;
            redraw();
        }
        return 1;
    }
    if (mouse_up_event(e) && mouse_left_event(e)) {
        bool click = pressed_ && self.contains(e.pos());
        pressed_ = armed_ = false;
        redraw();
        if (click) clicked();
        return 1;
    }
    if (e.type() == Event::kKeyPress) {
        const int key = Keys::plain(e.keyCode());
        if (key == Keys::Space || key == Keys::Return || key == Keys::KeypadEnter) {
            clicked();
            return 1;
        }
        return handleKey(e.keyCode());
    }
    return mouse_event(e) ? 1 : 0;
}

void Clickable::handleMouseContainment(bool inside) {
    hovered_ = inside;
    redraw();
}

void Clickable::drawFace(const BoxInt& box, bool flat, bool heldDown) const {
    const Palette& p = getPalette();
    const double scale = UifStd::instance().getScale();
    Glib::RectDescription face(box, p.window(kShadeLight));
    face.cornerRadius = 3.0 * scale;
    if (!isActive())
        face.fill = p.window(kShadeNormal);
    else if (isPressed() || heldDown)
        face.fill = p.window(kShadeDark);
    else if (hovered_)
        face.fill = p.window(kShadeLighter);
    else if (flat)
        face.filled = false;
    face.outline = hasKbdFocus() ? p.selection(kSelectionFocused) : p.window(kShadeDarker);
    face.outlineWidth = (flat && !hovered_ && !isPressed() && !heldDown && !hasKbdFocus()) ? 0.0 : (hasKbdFocus() ? 2.0 : 1.0) * scale;
    CanvasRenderer(canvas()).render(face);
}
