#pragma once

#include "iCallbackBase.h"

/// Calls a member function on an object. It holds no reference to the object:
/// whoever keeps the callback must know the object outlives it, or wrap it in a check.
template <class C, class A, class R>
class MethodCallback : public iCallbackBase<R, A> {
public:
    using Method = R (C::*)(const A&);
    MethodCallback(C* object, Method method) : object_(object), method_(method) {}
    R execute(const A& arg) override { return (object_->*method_)(arg); }
    C* object() const { return object_; }

private:
    C* object_;
    Method method_;
};
