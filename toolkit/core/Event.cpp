#include "Event.h"

#include <cstdlib>

Event Event::message(const LightweightString<char>& text, EventHandler* sender, const IdStamp& senderStamp, const Zn::Ptr<iObject>& payload) {
    Event e;
    e.type_ = kMessage;
    e.message_ = text;
    e.payload_ = payload;
    e.sender_ = sender;
    e.senderStamp_ = senderStamp;
    return e;
}

Event Event::mouse(Type type, XY<int> screenPos, Button button, unsigned modifiers) {
    Event e;
    e.type_ = type;
    e.screen_ = e.local_ = screenPos;
    e.button_ = button;
    e.modifiers_ = modifiers;
    return e;
}

Event Event::wheel(XY<int> screenPos, int delta, unsigned modifiers) {
    Event e = mouse(kMouseWheel, screenPos, kNoButton, modifiers);
    e.wheel_ = delta;
    return e;
}

Event Event::key(Type type, int keyCode, unsigned modifiers) {
    Event e;
    e.type_ = type;
    e.key_ = Keys::plain(keyCode);
    e.modifiers_ = (modifiers | Keys::modifiersOf(keyCode)) & Modifiers::All;
    return e;
}

Event Event::text(const LightweightString<wchar_t>& typed) {
    Event e;
    e.type_ = kTextInput;
    e.typed_ = typed;
    return e;
}

Event Event::timer() {
    Event e;
    e.type_ = kTimer;
    return e;
}

bool mouse_event(const Event& e) { return e.type() >= Event::kMouseMove && e.type() <= Event::kMouseLeave; }
bool mouse_move_event(const Event& e) { return e.type() == Event::kMouseMove; }
bool mouse_down_event(const Event& e) { return e.type() == Event::kMouseDown; }
bool mouse_up_event(const Event& e) { return e.type() == Event::kMouseUp; }
bool mouse_left_event(const Event& e) { return mouse_event(e) && e.button() == Event::kLeft; }
bool mouse_right_event(const Event& e) { return mouse_event(e) && e.button() == Event::kRight; }
bool mouse_chord_event(const Event& e) { return mouse_event(e) && e.button() == Event::kMiddle; }
bool mouse_wheel_event(const Event& e) { return e.type() == Event::kMouseWheel; }
bool key_event(const Event& e) { return e.type() == Event::kKeyPress || e.type() == Event::kKeyRelease; }
bool message_event(const Event& e) { return e.type() == Event::kMessage; }

bool isMouseMoveSignificant(const Event* e) {
    static thread_local XY<int> last{-100000, -100000};
    if (!e || !mouse_event(*e)) return false;
    XY<int> p = e->screenPos();
    if (!mouse_move_event(*e)) {
        last = p;
        return true;
    }
    if (std::abs(p.x - last.x) <= 2 && std::abs(p.y - last.y) <= 2) return false;
    last = p;
    return true;
}
