#pragma once

#include "ValAdaptorBase.h"
#include "WidgetBase.h"

/// A widget that shows a value of type T held elsewhere. Code that handles the
/// user's input calls requestSetNewDataValue; code that shows a value implements
/// setNewWidgetValue and never asks for a change from there. Keeping the two apart
/// is what ends the round trip of a change.
template <class T>
class ValWidget : public WidgetBase {
public:
    virtual void setDataAdaptor(const Zn::Ptr<ValAdaptorBase<T>>& adaptor) { setAdaptor(adaptor); }
    virtual Zn::Ptr<ValAdaptorBase<T>> getDataAdaptor() const { return Zn::dynamicCast<ValAdaptorBase<T>>(adaptor()); }
    virtual T getWidgetValue() const = 0;
    // True when there is no adaptor to ask, or the adaptor took the value. Redraws
    // wait until the whole round trip is over.
    virtual bool requestSetNewDataValue(const T& value, DataChangeType type) {
        auto a = getDataAdaptor();
        if (!a) return true;
        Drawable::disableRedraws();
        bool ok = a->requestSetNewDataValue(value, type);
        Drawable::enableRedraws();
        return ok;
    }
    virtual void setNewWidgetValue(T& value, eRedrawFlag redraw) = 0;
    virtual void setEnabledState(bool) {}
    virtual bool getEnabledState() const { return true; }

    // The adaptor's value; a default one with no adaptor.
    T getDataValue() const {
        auto a = getDataAdaptor();
        return a ? a->getDataValue() : T();
    }
};
