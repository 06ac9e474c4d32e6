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
        Notice notice{&e, type};
        deliver(&GenericNotifier::listCallback, &notice);
    }

    // Applied to each record: calls back those that want the notice.
    static void listCallback(DLListRec* record, void* data) {
        auto* invoker = static_cast<CallbackInvoker<E>*>(record);
        auto* notice = static_cast<const Notice*>(data);
        if (invoker->typeMatch(notice->type)) invoker->invoke(*notice->event);
    }

private:
    struct Notice {
        const E* event;
        int type;
    };
};
