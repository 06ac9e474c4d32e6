#include "DLList.h"

void DLList::append(DLListRec* record) {
    if (!record) return;
    record->prev_ = last_;
    record->next_ = nullptr;
    (last_ ? last_->next_ : first_) = record;
    last_ = record;
    size_.fetch_add(1, std::memory_order_relaxed);
}

void DLList::remove(DLListRec* record) {
    if (!record || !contains(record)) return;
    (record->prev_ ? record->prev_->next_ : first_) = record->next_;
    (record->next_ ? record->next_->prev_ : last_) = record->prev_;
    record->prev_ = record->next_ = nullptr;
    size_.fetch_sub(1, std::memory_order_relaxed);
    if (owns_) delete record;
}

void DLList::clear() {
    DLListRec* r = first_;
    first_ = last_ = nullptr;
    size_.store(0, std::memory_order_relaxed);
    while (r) {
        DLListRec* next = r->next_;
        r->prev_ = r->next_ = nullptr;
        if (owns_) delete r;
        r = next;
    }
}

bool DLList::contains(const DLListRec* record) const {
    // A record belongs to the list whose first record it reaches going backwards.
    const DLListRec* r = record;
    while (r->prev_) r = r->prev_;
    return r == first_;
}

void DLList::apply(ApplyFn fn, void* data) const {
    for (DLListRec* r = first_; r;) {
        DLListRec* next = r->next_;
        fn(r, data);
        r = next;
    }
}
