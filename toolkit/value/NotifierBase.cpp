#include "NotifierBase.h"

#include "NotifyMsgTypeDictionary.h"
#include "core/Assert.h"

#include <mutex>

void NotifierBase::Core::release(CallbackInvokerBase* record) {
    if (!alive) return; // the record went with the notifier
    if (depth > 0) {
        // Unlinking now would pull the record from under a delivery loop.
        record->markReleased();
        anyReleased = true;
        return;
    }
    list.remove(record);
}

void NotifierBase::Core::sweep() {
    anyReleased = false;
    for (DLListRec* r = list.first(); r;) {
        DLListRec* next = r->next();
        if (static_cast<CallbackInvokerBase*>(r)->released()) list.remove(r);
        r = next;
    }
}

void NotifierBase::Core::leaveLast() {
    std::shared_ptr<Core> self; // the last owner when the notifier died meanwhile: freed after unlocking
    depth = 0;
    if (!alive) {
        list.clear();
        self = std::move(keepAlive);
    } else {
        sweep();
    }
    lock.unlock();
}

NotifierBase::NotifierBase() : core_(std::make_shared<Core>()) { core_->list.ownsRecords(true); }

NotifierBase::~NotifierBase() { dropRegistrations(); }

void NotifierBase::dropRegistrations() {
    std::lock_guard<CriticalSection> g(core_->lock);
    MOSAIC_ASSERT(core_->depth == 0, "a notifier destroyed by a callback of its own delivery");
    core_->alive = false;
    // A delivery under way still walks the list; it empties it when it ends.
    if (core_->depth == 0)
        core_->list.clear();
    else
        core_->keepAlive = core_;
}

Zn::Ptr<Zn::Guard> NotifierBase::registerInternal(CallbackInvokerBase* record) {
    std::lock_guard<CriticalSection> g(core_->lock);
    if (!core_->alive) {
        delete record;
        return Zn::Ptr<Zn::Guard>(new Zn::Guard());
    }
    core_->list.append(record);
    // The guard shares the lock and the list, so releasing it after the notifier
    // died touches nothing dead.
    std::shared_ptr<Core> core = core_;
    return Zn::Ptr<Zn::Guard>(new Zn::Guard([core, record] {
        std::lock_guard<CriticalSection> g2(core->lock);
        core->release(record);
    }));
}

std::size_t NotifierBase::numRegistrations() const {
    std::lock_guard<CriticalSection> g(core_->lock);
    std::size_t n = 0;
    for (DLListRec* r = core_->list.first(); r; r = r->next())
        if (!static_cast<CallbackInvokerBase*>(r)->released()) ++n;
    return n;
}
