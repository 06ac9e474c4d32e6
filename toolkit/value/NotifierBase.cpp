#include "NotifierBase.h"

#include "NotifyMsgTypeDictionary.h"
#include "core/Assert.h"

#include <mutex>

bool CallbackInvokerBase::typeMatch(int type) const { return type_ == type || type_ == NotifyMsgTypeDictionary::instance().allMsgType; }

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

NotifierBase::NotifierBase() : core_(std::make_shared<Core>()) { core_->list.ownsRecords(true); }

NotifierBase::~NotifierBase() { dropRegistrations(); }

void NotifierBase::dropRegistrations() {
    std::lock_guard<CriticalSection> g(core_->lock);
    MOSAIC_ASSERT(core_->depth == 0, "a notifier destroyed by a callback of its own delivery");
    core_->alive = false;
    // A delivery under way still walks the list; it empties it when it ends.
    if (core_->depth == 0) core_->list.clear();
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

void NotifierBase::deliver(DLList::ApplyFn fn, void* data) const {
    // Held here, not through `this`: a callback that destroys the notifier leaves
    // the loop its list to finish on.
    const std::shared_ptr<Core> core = core_;
    Core& c = *core;
    std::lock_guard<CriticalSection> g(c.lock);
    DLListRec* last = c.list.last();
    if (!last) return;
    ++c.depth;
    for (DLListRec* r = c.list.first(); c.alive; r = r->next()) {
        if (!static_cast<CallbackInvokerBase*>(r)->released()) fn(r, data);
        if (r == last) break;
    }
    if (--c.depth > 0) return;
    if (!c.alive)
        c.list.clear();
    else if (c.anyReleased)
        c.sweep();
}
