#pragma once

#include "AdaptorBase.h"
#include "DataChangeType.h"
#include "core/LightweightString.h"
#include "glob/Drawable.h"

#include <vector>

template <class T>
class ValWidget;

/// The data source of widgets that show a T: gives the value, takes the widgets'
/// requests to change it, and tells them when it has changed.
template <class T>
class ValAdaptorBase : public AdaptorBase {
public:
    virtual T getDataValue() = 0;
    // Fills the widgets with the current value: how a widget is first filled.
    virtual void forceWidgetUpdate(eRedrawFlag redraw) { setNewWidgetValue(getDataValue(), redraw); }
    virtual bool requestSetNewDataValue(const T& value, DataChangeType type) = 0;
    virtual void handleMsgForParent(LightweightString<char>) {}
    // Shows the value in every widget, in the order of the set. Each widget gets its
    // own copy, so that none sees what another did to it. A widget that dies on
    // the way leaves the list at once; indexing keeps the loop safe.
    virtual void setNewWidgetValue(T value, eRedrawFlag redraw) {
        for (std::size_t i = 0; i < valWidgets_.size(); ++i) {
            T copy = value;
            valWidgets_[i]->setNewWidgetValue(copy, redraw);
        }
    }

protected:
    void widgetsChanged() override {
        valWidgets_.clear();
        for (WidgetBase* w : widgets())
            if (auto* vw = dynamic_cast<ValWidget<T>*>(w)) valWidgets_.push_back(vw);
    }

private:
    // The widgets of the set that show a T, cast once rather than at every change.
    std::vector<ValWidget<T>*> valWidgets_;
};
