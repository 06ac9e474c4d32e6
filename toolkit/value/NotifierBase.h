#pragma once

#include "CallbackInvoker.h"
#include "CriticalSection.h"
#include "DLList.h"
#include "core/Guard.h"

#include <memory>

/// The registrations of a notifier, in order, under its lock. A registration lasts
/// as long as the guard it returns is held; a guard that outlives the notifier is
/// harmless. Delivery may nest on one thread: a callback may register, release, or
/// issue again on the same notifier, but not destroy it.
class NotifierBase {
public:
    NotifierBase();
    virtual ~NotifierBase();
    NotifierBase(const NotifierBase&) = delete; // registrations belong to one notifier
    NotifierBase& operator=(const NotifierBase&) = delete;

    // Takes ownership of the record.
    Zn::Ptr<Zn::Guard> registerInternal(CallbackInvokerBase* record);
    std::size_t numRegistrations() const;
    // Lock-free: a notifier with no registrations builds no event.
    bool hasRegistrations() const { return !core_->list.empty(); }
    CriticalSection& criticalSection() const { return core_->lock; }

protected:
    // Calls `fn` on each registration in order, under the lock. Registrations made
    // during delivery wait for the next notice; released ones are skipped.
    void deliver(DLList::ApplyFn fn, void* data) const;
    // Drops every registration; their guards then do nothing.
    void dropRegistrations();

private:
    struct Core {
        CriticalSection lock;
        DLList list;
        int depth = 0;
        bool alive = true;
        bool anyReleased = false;
        void release(CallbackInvokerBase* record);
        void sweep();
    };
    std::shared_ptr<Core> core_;
};
