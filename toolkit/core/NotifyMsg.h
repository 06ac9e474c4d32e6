#pragma once

#include "LightweightString.h"
#include "Ptr.h"
#include "iObject.h"

/// A named notice with an optional payload, read by dynamic cast to the expected type.
class NotifyMsg {
public:
    NotifyMsg() = default;
    NotifyMsg(const LightweightString<char>& name, const Zn::Ptr<iObject>& data = {}) : name_(name), data_(data) {}
    explicit NotifyMsg(const Zn::Ptr<iObject>& data) : data_(data) {}

    operator const char*() const { return name_.c_str(); }
    const LightweightString<char>& name() const { return name_; }
    const Zn::Ptr<iObject>& data() const { return data_; }
    template <class T>
    Zn::Ptr<T> dataAs() const {
        return Zn::dynamicCast<T>(data_);
    }

private:
    LightweightString<char> name_;
    Zn::Ptr<iObject> data_;
};
