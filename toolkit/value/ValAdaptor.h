#pragma once

#include "DataConvert.h"
#include "ValAdaptorBase.h"
#include "ValClient.h"
#include "ValWidget.h"

/// Binds widgets showing a T to a server holding a U, converting both ways with
/// DataConvert: a double widget on an int server truncates, text widgets on numbers
/// format and parse. Held by its widgets through Zn::Ptr.
template <class T, class U>
class ValAdaptor : public ValAdaptorBase<T>, public ValClient<U> {
public:
    ValAdaptor() = default;
    explicit ValAdaptor(ValServer<U>* server) : ValClient<U>(server) {}

    T getDataValue() override { return DataConvert::convert<U, T>(static_cast<U>(*this)); }
    // The change type does not matter here; the server has the last word on the value.
    bool requestSetNewDataValue(const T& value, DataChangeType) override {
        ValClient<U>::operator=(DataConvert::convert<T, U>(value));
        return true;
    }
    void valChangedNtfy() override { this->setNewWidgetValue(getDataValue(), kRedraw); }
};
