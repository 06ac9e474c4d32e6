#pragma once

#include "CallbackInvoker.h"
#include "CriticalSection.h"
#include "core/Guard.h"

#include <memory>
#include <vector>

// The list of registrations of a notifier, under its lock. A registration lasts as
// long as the guard it returns is held; a guard that outlives the notifier is harmless.
class NotifierBase {
public:
    NotifierBase();
    virtual ~NotifierBase();
    NotifierBase(const NotifierBase&) = delete; // registrations belong to one notifier
    NotifierBase& operator=(const NotifierBase&) = delete;

    // Takes ownership of the record.
    Zn::Ptr<Zn::Guard> registerInternal(CallbackInvokerBase* record);
    std::size_t numRegistrations() const;
    CriticalSection& criticalSection() const { return *lock_; }

protected:
    // Calls `f` on each registration wanting `type`, in order of registration, under the lock.
    template <class F>
    void forEachMatching(int type, F&& f) const {
        std::lock_guard<CriticalSection> g(*lock_);
        // Registrations added during delivery wait for the next notice; removed ones are skipped.
        std::vector<std::shared_ptr<CallbackInvokerBase>> now = state_->records;
        for (const auto& r : now)
            if (r->typeMatch(type) && state_->isRegistered(r.get())) f(*r);
    }

private:
    struct State {
        std::vector<std::shared_ptr<CallbackInvokerBase>> records;
        bool isRegistered(const CallbackInvokerBase* r) const;
    };
    std::shared_ptr<CriticalSection> lock_;
    std::shared_ptr<State> state_;
};

// A notifier of events of type E.
template <class E>
class GenericNotifier : public NotifierBase {
public:
    Zn::Ptr<Zn::Guard> registerCallback(const Zn::Ptr<iCallbackBase<int, E>>& callback, int type) {
        return registerInternal(new CallbackInvoker<E>(callback, type));
    }
    // Delivers synchronously, on the calling thread, under the notifier's lock.
    void issueNotification(const E& e, int type) const {
        forEachMatching(type, [&e](const CallbackInvokerBase& r) { static_cast<const CallbackInvoker<E>&>(r).invoke(e); });
    }
};
