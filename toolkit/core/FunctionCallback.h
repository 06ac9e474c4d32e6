#pragma once

#include "iCallbackBase.h"

#include <functional>

/// Calls a plain function, or any callable the caller supplies.
template <class A, class R>
class FunctionCallback : public iCallbackBase<R, A> {
public:
    using Function = R (*)(const A&);
    explicit FunctionCallback(Function f) : fn_(f) {}
    explicit FunctionCallback(std::function<R(const A&)> f) : fn_(std::move(f)) {}
    R execute(const A& arg) override { return fn_ ? fn_(arg) : R(); }

private:
    std::function<R(const A&)> fn_;
};
