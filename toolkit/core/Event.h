#pragma once

#include "IdStamp.h"
#include "KeyCodes.h"
#include "LightweightString.h"
#include "Ptr.h"
#include "XY.h"
#include "iObject.h"

class EventHandler;

/// The toolkit's event record: input, timer ticks and named messages.
class Event {
public:
    enum Type : int {
        kNone = 0,
        kKeyPress = 0x0100,
        kKeyRelease = 0x0101,
        kTextInput = 0x0102,
        kMouseMove = 0x0200,
        kMouseDown = 0x0201,
        kMouseUp = 0x0202,
        kMouseWheel = 0x0203,
        kMouseEnter = 0x0204,
        kMouseLeave = 0x0205,
        kTimer = 4096,
        kFocusIn = 0x2001,
        kFocusOut = 0x2002,
        kMessage = 16385,
    };
    enum Button : int { kNoButton = 0, kLeft = 1, kMiddle = 2, kRight = 3 };

    Event() = default;
    // The sender's stamp tells later whether the sender is still alive.
    static Event message(const LightweightString<char>& text, EventHandler* sender, const IdStamp& senderStamp, const Zn::Ptr<iObject>& payload = {});
    static Event mouse(Type type, XY<int> screenPos, Button button = kNoButton, unsigned modifiers = 0);
    static Event wheel(XY<int> screenPos, int delta, unsigned modifiers = 0);
    // Modifier bits may come in `keyCode`, in `modifiers` or in both.
    static Event key(Type type, int keyCode, unsigned modifiers = 0);
    static Event text(const LightweightString<wchar_t>& typed);
    static Event timer();

    Type type() const { return type_; }
    bool isMessage() const { return type_ == kMessage; }
    const LightweightString<char>& messageText() const { return message_; }
    const Zn::Ptr<iObject>& payload() const { return payload_; }
    // The key with the modifiers held (see Keys).
    int keyCode() const { return key_ | static_cast<int>(modifiers_); }
    unsigned modifiers() const { return modifiers_; }
    Button button() const { return button_; }
    int wheelDelta() const { return wheel_; }
    const LightweightString<wchar_t>& typedText() const { return typed_; }
    // Where the mouse is on the screen, and in the glob that receives the event.
    XY<int> screenPos() const { return screen_; }
    XY<int> pos() const { return local_; }
    void setLocalPos(XY<int> p) { local_ = p; }
    EventHandler* sender() const { return sender_; }
    const IdStamp& senderStamp() const { return senderStamp_; }
    int clickCount() const { return clicks_; }
    void setClickCount(int n) { clicks_ = n; }

private:
    Type type_ = kNone;
    LightweightString<char> message_;
    Zn::Ptr<iObject> payload_;
    LightweightString<wchar_t> typed_;
    int key_ = 0;
    unsigned modifiers_ = 0;
    Button button_ = kNoButton;
    int wheel_ = 0;
    int clicks_ = 1;
    XY<int> screen_, local_;
    EventHandler* sender_ = nullptr;
    IdStamp senderStamp_;
};

bool mouse_event(const Event& e);
bool mouse_move_event(const Event& e);
bool mouse_down_event(const Event& e);
bool mouse_up_event(const Event& e);
bool mouse_left_event(const Event& e);
bool mouse_right_event(const Event& e);
// The middle button, or left and right together.
bool mouse_chord_event(const Event& e);
bool mouse_wheel_event(const Event& e);
bool key_event(const Event& e);
bool message_event(const Event& e);
// A move counts when the mouse went further than a couple of pixels since the
// last significant position, so that hand tremor does not start a drag.
bool isMouseMoveSignificant(const Event* e);
