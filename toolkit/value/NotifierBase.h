#pragma once

#include "CallbackInvoker.h"
#include "CriticalSection.h"
#include "DLList.h"
#include "core/Guard.h"

#include <memory>
#include <utility>

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
        explicit ScopedLock(const NotifierBase& n) : ScopedLock(*n.core_) {}
        explicit ScopedLock(Core& core) : core_(core) { core_.enter(); }
        ~ScopedLock() { core_.leave(); }
        ScopedLock(const ScopedLock&) = delete; // one unlock per lock
        ScopedLock& operator=(const ScopedLock&) = delete;

    private:
        Core& core_;
    };

    // Calls `fn` on each registration in order, under the lock. Registrations made
    // during delivery wait for the next notice; released ones are skipped. Inline,
    // with the callback known to the compiler: a value change with one listener is
    // a few tens of instructions.
    template <class Fn>
    void deliver(Fn&& fn) const {
        ScopedLock scope(*core_);
        deliverHeld(std::forward<Fn>(fn));
    }
    // The same for a caller that already holds a ScopedLock on this notifier.
    template <class Fn>
    void deliverHeld(Fn&& fn) const {
        // Not through `this` after this line: a callback may destroy the notifier,
        // and the ScopedLock then frees the core.
        Core& c = *core_;
        DLListRec* last = c.list.last();
        if (!last) return;
        for (DLListRec* r = c.list.first(); c.alive; r = r->next()) {
            auto* record = static_cast<CallbackInvokerBase*>(r);
            if (!record->released()) fn(record);
            if (r == last) break;
        }
    }
    // Drops every registration; their guards then do nothing.
    void dropRegistrations();

private:
    struct Core {
        CriticalSection lock;
        DLList list;
        int depth = 0;
        bool alive = true;
        bool anyReleased = false;
        // Set when the notifier dies inside a delivery: the delivery frees the core
        // as it ends, so that nobody pays for keeping it alive on every notice.
        std::shared_ptr<Core> keepAlive;

        void release(CallbackInvokerBase* record);
        void sweep();
        // A delivery, or a scope that may deliver, begins and ends.
        void enter() {
            lock.lock();
            ++depth;
        }
        void leave() {
            if (depth == 1 && (!alive || anyReleased)) return leaveLast();
            --depth;
            lock.unlock();
        }
        // The end of the outermost delivery when there is cleaning up to do.
        void leaveLast();
    };
    std::shared_ptr<Core> core_;
};
