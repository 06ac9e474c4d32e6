#pragma once

#include "NotifyMsg.h"
#include "iCallbackBase.h"

/// What a control does when it fires: call the callback with a NotifyMsg of the
/// message name and payload, or, with no callback, send the named message to the owner.
class WidgetCallback : public iObject {
public:
    WidgetCallback() = default;
    WidgetCallback(const LightweightString<char>& message) : message_(message) {}
    WidgetCallback(const char* message) : message_(message) {}
    WidgetCallback(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& callback, const LightweightString<char>& message = {},
                   const Zn::Ptr<iObject>& payload = {})
        : callback_(callback), message_(message), payload_(payload) {}

    const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& callback() const { return callback_; }
    const LightweightString<char>& message() const { return message_; }
    const Zn::Ptr<iObject>& payload() const { return payload_; }
    bool isEmpty() const { return !callback_ && message_.empty(); }

    // Calls the callback, if any; returns false when there is none to call.
    bool invoke(int* result = nullptr) const {
        if (!callback_) return false;
        int r = callback_->execute(NotifyMsg(message_, payload_));
        if (result) *result = r;
        return true;
    }

private:
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> callback_;
    LightweightString<char> message_;
    Zn::Ptr<iObject> payload_;
};
