#pragma once

#include "Clickable.h"
#include "core/ColourData.h"
#include "core/WidgetCallback.h"
#include "value/ValWidget.h"

/// A swatch of one colour, optionally outlined. A colour with alpha below 1 is
/// shown over a chequer so that its transparency can be seen. A click (or Space or
/// Return while focused) fires the callback; the swatch never changes its own
/// colour on a click. Bound to a value through an adaptor it shows the value.
class ColRect : public Clickable, public ValWidget<ColourData> {
public:
    /// What a ColRect is made from: its colour, whether it is outlined, and what a click does.
    struct InitArgs : GlobCreationInfo {
        ColourData colour;
        WidgetCallback callback;
        bool outline = true;
        InitArgs() = default;
        InitArgs(const ColourData& colour, const WidgetCallback& callback, unsigned short width, unsigned short height)
            : GlobCreationInfo(width, height), colour(colour), callback(callback) {}
    };

    explicit ColRect(const InitArgs& args);
    const char* idstring() const override { return "ColRect"; }

    void setColour(const ColourData& colour, eRedrawFlag flag = kRedraw);
    const ColourData& getColour() const { return colour_; }
    // The colour as painted, alpha included.
    Colour displayColour() const;
    void setOutline(bool outline, eRedrawFlag flag = kRedraw);
    bool hasOutline() const { return outline_; }
    void setCallback(const WidgetCallback& callback) { callback_ = callback; }
    // A swatch that only shows a colour takes no focus and no clicks.
    void setClickable(bool clickable) { clickable_ = clickable; }
    bool isClickable() const { return clickable_; }

    ColourData getWidgetValue() const override { return colour_; }
    void setNewWidgetValue(ColourData& value, eRedrawFlag flag) override { setColour(value, flag); }
    void setEnabledState(bool enabled) override { setActive(enabled); }
    bool getEnabledState() const override { return isActive(); }

    int react(const Event& e) override;
    bool acceptsKbdFocus() const override { return clickable_ && Clickable::acceptsKbdFocus(); }
    void drawBackground() override;

protected:
    void clicked() override;

private:
    ColourData colour_;
    WidgetCallback callback_;
    bool outline_;
    bool clickable_ = true;
};
