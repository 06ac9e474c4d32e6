#pragma once

#include "NotifierBase.h"

/// A notifier of events of type E. Delivery is synchronous, on the issuing thread,
/// under the notifier's lock.
template <class E>
class GenericNotifier : public NotifierBase {
public:
    Zn::Ptr<Zn::Guard> registerCallback(const Zn::Ptr<iCallbackBase<int, E>>& callback, int type) {
        return registerInternal(new CallbackInvoker<E>(callback, type));
    }

    virtual void issueNotification(const E& e, int type) const {
        if (!hasRegistrations()) return;
        deliver([&](CallbackInvokerBase* record) { call(record, e, type); });
    }

protected:
    // For a caller that holds a ScopedLock on this notifier.
    void issueHeld(const E& e, int type) const {
        deliverHeld([&](CallbackInvokerBase* record) { call(record, e, type); });
    }

private:
    static void call(CallbackInvokerBase* record, const E& e, int type) {
        if (record->typeMatch(type)) static_cast<CallbackInvoker<E>*>(record)->invoke(e);
    }
};
