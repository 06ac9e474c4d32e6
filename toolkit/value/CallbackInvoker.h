#pragma once

#include "DLList.h"
#include "NotifyMsgTypeDictionary.h"
#include "core/Ptr.h"
#include "core/iCallbackBase.h"

/// One registration with a notifier: the type of notice it wants. A record that is
/// released while its notifier delivers is only marked, and leaves the list after.
class CallbackInvokerBase : public DLListRec {
public:
    explicit CallbackInvokerBase(int type) : type_(type) {}
    int type() const { return type_; }
    // True when the registration wants a notice of `type`.
    bool typeMatch(int type) const { return type_ == type || type_ == NotifyMsgTypeDictionary::kAllMsgType; }

    bool released() const { return released_; }
    void markReleased() { released_ = true; }

private:
    int type_;
    bool released_ = false;
};

/// A registration that calls back with events of type E.
template <class E>
class CallbackInvoker : public CallbackInvokerBase {
public:
    CallbackInvoker(const Zn::Ptr<iCallbackBase<int, E>>& callback, int type) : CallbackInvokerBase(type), callback_(callback) {}
    int invoke(const E& e) const { return callback_ ? callback_->execute(e) : 0; }

private:
    Zn::Ptr<iCallbackBase<int, E>> callback_;
};
