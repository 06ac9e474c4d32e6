#pragma once

#include "Clickable.h"
#include "core/WidgetCallback.h"
#include "draw/FontDesc.h"
#include "value/ValWidget.h"

/// A box to tick, with a label at its right. A click toggles it; bound to a value
/// through an adaptor it shows the value and asks the adaptor to change it, and
/// unbound it holds its own state. Either way the callback fires after the change.
class Checkbox : public Clickable, public ValWidget<bool>, public Glib::FontUser {
public:
    /// What a Checkbox is made from: its label, its first state and what a click does.
    struct InitArgs : GlobCreationInfo {
        LightweightString<wchar_t> label;
        bool state = false;
        WidgetCallback callback;
        InitArgs() { style = 3; }
        InitArgs(const LightweightString<wchar_t>& label, bool state, const WidgetCallback& callback = {}, unsigned short width = 0,
                 unsigned short height = 0)
            : GlobCreationInfo(width, height), label(label), state(state), callback(callback) {
            style = 3;
        }
    };

    explicit Checkbox(const InitArgs& args);
    const char* idstring() const override { return "Checkbox"; }

    bool getState() const { return state_; }
    void setState(bool state, eRedrawFlag flag = kRedraw);
    const LightweightString<wchar_t>& getLabel() const { return label_; }
    void setLabel(const LightweightString<wchar_t>& label);
    void setCallback(const WidgetCallback& callback) { callback_ = callback; }

    bool getWidgetValue() const override { return state_; }
    void setNewWidgetValue(bool& value, eRedrawFlag flag) override { setState(value, flag); }
    void setEnabledState(bool enabled) override { setActive(enabled); }
    bool getEnabledState() const override { return isActive(); }

    // The box's side, and the width that shows `label` beside it.
    static int boxSize();
    static int calcWidth(const LightweightString<wchar_t>& label);

    void drawBackground() override;

protected:
    void clicked() override;

private:
    LightweightString<wchar_t> label_;
    bool state_;
    WidgetCallback callback_;
};
