#pragma once

#include "core/Ptr.h"
#include "core/iCallbackBase.h"

// One registration with a notifier: the type of notice it wants, and the callback.
class CallbackInvokerBase {
public:
    explicit CallbackInvokerBase(int type) : type_(type) {}
    virtual ~CallbackInvokerBase() = default;
    int type() const { return type_; }
    // True when the registration wants a notice of `type`.
    bool typeMatch(int type) const;

private:
    int type_;
};

template <class E>
class CallbackInvoker : public CallbackInvokerBase {
public:
    CallbackInvoker(const Zn::Ptr<iCallbackBase<int, E>>& callback, int type) : CallbackInvokerBase(type), callback_(callback) {}
    int invoke(const E& e) const { return callback_ ? callback_->execute(e) : 0; }

private:
    Zn::Ptr<iCallbackBase<int, E>> callback_;
};
