#pragma once

#include "AdaptorBase.h"
#include "core/Ptr.h"

/// The widget side of a binding: holds its adaptor and is in the adaptor's set of
/// widgets for as long as it lives.
class WidgetBase {
public:
    WidgetBase() = default;
    WidgetBase(const WidgetBase&) = delete;
    WidgetBase& operator=(const WidgetBase&) = delete;
    virtual ~WidgetBase() { setAdaptor(nullptr); }

    void setAdaptor(const Zn::Ptr<AdaptorBase>& adaptor) {
        if (adaptor.get() == adaptor_.get()) return;
        if (adaptor_) adaptor_->removeWidget(this);
        adaptor_ = adaptor;
        if (adaptor_) adaptor_->addWidget(this);
    }
    const Zn::Ptr<AdaptorBase>& adaptor() const { return adaptor_; }

private:
    Zn::Ptr<AdaptorBase> adaptor_;
};
