#pragma once

#include "core/iObject.h"

#include <set>

class WidgetBase;

/// The data source of a set of widgets. The widgets are not owned: each leaves the
/// set as it dies or takes another adaptor.
class AdaptorBase : public iObject {
public:
    void addWidget(WidgetBase* w) {
        if (widgets_.insert(w).second) widgetsChanged();
    }
    void removeWidget(WidgetBase* w) {
        if (widgets_.erase(w)) widgetsChanged();
    }
    const std::set<WidgetBase*>& widgets() const { return widgets_; }

protected:
    // Lets a typed adaptor keep its own view of the set up to date.
    virtual void widgetsChanged() {}

private:
    std::set<WidgetBase*> widgets_;
};
