#pragma once

#include "core/NotifyMsg.h"
#include "core/iCallbackBase.h"
#include "iValueChangeHandler.h"

/// Tells a parameter set that one of its parameters changed, by the parameter's id
/// alone: a listener reads the value from the parameter itself.
class ChangeBroadcaster : public GenericParam::iValueChangeHandler {
public:
    explicit ChangeBroadcaster(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& callback) : callback_(callback) {}

    void valueChanged(const LightweightString<char>& id, const LightweightString<wchar_t>& value) override;
    // Called by the set as it dies: its parameters may live on, and reach nothing.
    void disconnect() { callback_ = nullptr; }

private:
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> callback_;
};
