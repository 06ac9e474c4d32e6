#pragma once

#include "iObject.h"

#include <utility>

/// One value as a reference-counted iObject, so that it can travel as the payload
/// of a message or a NotifyMsg and be read back by dynamic cast.
template <class T>
class WrappedData : public iObject {
public:
    WrappedData() = default;
    explicit WrappedData(const T& value) : value_(value) {}
    explicit WrappedData(T&& value) : value_(std::move(value)) {}

    const T& get() const { return value_; }
    T& get() { return value_; }
    void set(const T& value) { value_ = value; }

private:
    T value_{};
};
