#pragma once

#include "ParamBase.h"
#include "core/MethodCallback.h"
#include "core/NormalisedRGB.h"
#include "value/DataConvert.h"
#include "value/ValServer.h"

#include <type_traits>

namespace GenericParam {

/// A parameter whose value is a T, held in a server of its own of which the
/// parameter is the manager: every new value passes the constraints (as text)
/// before it is stored, and every stored value is told to the change handlers.
template <class T>
class Param : public ValManagerBase<T>, public ParamBase {
public:
    Param(const T& value, const LightweightString<char>& id, const UIString& legend, const UIString& tooltip,
          const LightweightString<char>& valueType)
        : ParamBase(id, valueType, legend, tooltip), server_(value), defaultValue_(value) {
        init();
    }
    ~Param() override { server_.setManager(nullptr); }

    ValServer<T>& server() { return server_; }
    T getValue() const { return server_.value(); }
    const T& getDefaultValue() const { return defaultValue_; }
    void setDefaultValue(const T& v) { defaultValue_ = v; }
    const T& getMinValue() const { return minValue_; }
    const T& getMaxValue() const { return maxValue_; }
    bool hasRange() const { return hasRange_; }
    void setRange(const T& min, const T& max) {
        minValue_ = min;
        maxValue_ = max;
        hasRange_ = true;
    }

    LightweightString<wchar_t> getValueAsString() const override { return toText(getValue()); }
    // Integers are held to their range here; every other type is stored as given,
    // and its range is kept only by its widgets.
    void setValueFromString(const LightweightString<wchar_t>& text) override {
        T v = fromText(text);
        if constexpr (std::is_same_v<T, int>)
            if (hasRange_) v = DataConvert::constrain(v, minValue_, maxValue_);
        server_ = v;
    }
    bool reset() override {
        if (valEqualsVal(getValue(), defaultValue_)) return false;
        server_ = defaultValue_;
        return true;
    }
    void enforceConstraints() override {
        LightweightString<wchar_t> text = getValueAsString();
        requestValueChange(text);
        handleDataChange(text);
    }

    // A parameter never refuses a value; its constraints may change it.
    bool requestValChange(ValServer<T>*, T& value) override {
        if constexpr (std::is_same_v<T, LightweightString<wchar_t>>)
            value = requestValueChange(value);
        else
            value = fromText(requestValueChange(toText(value)));
        return true;
    }
    void releaseServer(ValServer<T>*) override {}

    int handleValueChange(const NotifierEvent<T>&) {
        handleDataChange(getValueAsString());
        return 0;
    }

protected:
    // For clone(): the same settings, the value and a server of its own.
    Param(const Param& other)
        : Zn::InternalRefCount(), ValManagerBase<T>(), ParamBase(other), server_(other.getValue()), defaultValue_(other.defaultValue_),
          minValue_(other.minValue_), maxValue_(other.maxValue_), hasRange_(other.hasRange_) {
        init();
    }

private:
    static LightweightString<wchar_t> toText(const T& v) { return DataConvert::convert<T, LightweightString<wchar_t>>(v); }
    static T fromText(const LightweightString<wchar_t>& s) { return DataConvert::convert<LightweightString<wchar_t>, T>(s); }

    void init() {
        if (server_.manager() && server_.manager() != this) server_.manager()->releaseServer(&server_);
        server_.setManager(this);
        Zn::Ptr<iCallbackBase<int, NotifierEvent<T>>> cb(new MethodCallback<Param, NotifierEvent<T>, int>(this, &Param::handleValueChange));
        guard_ = server_.registerCallback(cb, NotifyMsgTypeDictionary::instance().allMsgType);
    }

    ValServer<T> server_;
    T defaultValue_;
    T minValue_{};
    T maxValue_{};
    bool hasRange_ = false;
    Zn::Ptr<Zn::Guard> guard_;
};

extern template class Param<bool>;
extern template class Param<int>;
extern template class Param<unsigned int>;
extern template class Param<double>;
extern template class Param<LightweightString<wchar_t>>;
extern template class Param<NormalisedRGB>;

} // namespace GenericParam
