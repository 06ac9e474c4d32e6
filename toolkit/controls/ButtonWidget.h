#pragma once

#include "Button.h"
#include "value/ValWidget.h"

/// A button that shows a value and changes it: a click offers the value that
/// nextValue() gives (by default the one shown) to the adaptor, then fires the
/// button's callback. The label shows the value through labelFor().
template <class T>
class ButtonWidget : public Button, public ValWidget<T> {
public:
    explicit ButtonWidget(const Button::InitArgs& args, const T& value = T()) : Button(args), value_(value) {}
    const char* idstring() const override { return "ButtonWidget"; }

    T getWidgetValue() const override { return value_; }
    void setNewWidgetValue(T& value, eRedrawFlag flag) override {
        value_ = value;
        setLabel(labelFor(value), flag);
    }
    void setEnabledState(bool enabled) override { setActive(enabled); }
    bool getEnabledState() const override { return isActive(); }

protected:
    virtual T nextValue() const { return value_; }
    virtual UIString labelFor(const T&) const { return getLabel(); }
    void clicked() override {
        T wanted = nextValue();
        if (!this->getDataAdaptor()) value_ = wanted;
        const IdStamp me = this->stamp();
        this->requestSetNewDataValue(wanted, kFinalChange);
        // A listener of the value may have deleted the button.
        if (EventHandler::valid(this, me)) Button::clicked();
    }

private:
    T value_;
};
