#pragma once

#include "core/Colour.h"
#include "core/WidgetCallback.h"
#include "glob/Glob.h"
#include "glob/TabOrderManager.h"
#include "value/ValWidget.h"

/// A horizontal slider over a range of numbers: drag the thumb or click the track,
/// turn the wheel, or use the arrow keys (Page keys step ten times, Home and End go
/// to the ends). A point of interest, such as the default value, is marked on the
/// track, and a drag that passes close to it snaps there. Bound to a value it asks
/// the adaptor for each change (intermediate ones while dragging, a final one on
/// release); unbound it holds its own value. The callback fires on final changes.
class Slider : public Glob, public ValWidget<double>, public TabOrderable {
public:
    /// What a Slider is made from: its width and the colour of its track.
    struct InitArgs : GlobCreationInfo {
        Colour colour;
        InitArgs() = default;
        InitArgs(const Colour& colour, unsigned short width);
    };

    explicit Slider(const InitArgs& args);
    const char* idstring() const override { return "Slider"; }

    // Bounds the wrong way round are swapped; a NaN bound leaves that bound as it was.
    void setValueRange(double min, double max);
    double getMinValue() const { return min_; }
    double getMaxValue() const { return max_; }
    // The step of keys and wheel; one hundredth of the range when not set.
    void setValueIncrement(double increment);
    double getValueIncrement() const;
    void setPointOfInterest(double value);
    // Shows the value, held to the range; NaN shows the minimum. Never asks for a change.
    void setPosition(double value, eRedrawFlag flag = kRedraw);
    double getPosition() const { return value_; }
    void setColour(const Colour& c);
    void setCallback(const WidgetCallback& callback) { callback_ = callback; }
    bool isDragging() const { return dragging_; }

    double getWidgetValue() const override { return value_; }
    void setNewWidgetValue(double& value, eRedrawFlag flag) override { setPosition(value, flag); }
    void setEnabledState(bool enabled) override { setActive(enabled); }
    bool getEnabledState() const override { return isActive(); }

    // The value under a point of the slider, and the point of a value, along x.
    double valueAt(int x) const;
    int xOf(double value) const;
    static int calcHeight();

    int react(const Event& e) override;
    bool acceptsKbdFocus() const override { return isActive() && isVisible(); }
    void handleKbdFocus(bool) override { redraw(); }
    Glob* tabGlob() override { return this; }
    void drawBackground() override;

private:
    int thumbRadius() const;
    // The user chose `value`: show it, ask for it, and report a final one.
    void userChanges(double value, DataChangeType type);
    int handleKey(int key);

    Colour colour_;
    double min_ = 0.0, max_ = 1.0;
    double increment_ = 0.0;
    double value_ = 0.0;
    double pointOfInterest_;
    bool hasPointOfInterest_ = false;
    bool dragging_ = false;
    WidgetCallback callback_;
};
