#pragma once

#include "CallbackInvoker.h"
#include "CriticalSection.h"
#include "DLList.h"
#include "core/Guard.h"

#include <memory>

/// The registrations of a notifier, in order, under its lock. A registration lasts
/// as long as the guard it returns is held; a guard that outlives the notifier is
/// harmless. Delivery may nest on one thread: a callback may register, release, or
/// issue again on the same notifier, but not destroy it (a debug build stops there;
/// a release build ends the delivery at that callback, safely).
class NotifierBase {
    struct Core;

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
    /// The notifier's lock for a scope; it stays good if a callback in the scope
    /// destroys the notifier.
    class ScopedLock {
    public:
        explicit ScopedLock(const NotifierBase& n) : core_(n.core_) { core_->lock.lock(); }
        ~ScopedLock() { core_->lock.unlock(); }
        ScopedLock(const ScopedLock&) = delete; // one unlock per lock
        ScopedLock& operator=(const ScopedLock&) = delete;

    private:
        std::shared_ptr<Core> core_;
    };

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
