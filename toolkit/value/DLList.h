#pragma once

#include <atomic>
#include <cstddef>

/// A record of a DLList: derive from it to put an object in a list.
class DLListRec {
public:
    DLListRec() = default;
    DLListRec(const DLListRec&) : DLListRec() {} // a copy is in no list
    // Assigning keeps this record's own place, so assigning a record to itself is harmless.
    DLListRec& operator=(const DLListRec&) { return *this; } // NOLINT(bugprone-unhandled-self-assignment)
    virtual ~DLListRec() = default;

    DLListRec* next() const { return next_; }
    DLListRec* prev() const { return prev_; }

private:
    friend class DLList;
    DLListRec* prev_ = nullptr;
    DLListRec* next_ = nullptr;
};

/// An intrusive doubly-linked list, in order of appending. Whether it deletes its
/// records when they leave it is the owner's choice. The size may be read from any
/// thread without a lock: a notifier with no registrations looks at nothing else.
class DLList {
public:
    using ApplyFn = void (*)(DLListRec* record, void* data);

    DLList() = default;
    ~DLList() { clear(); }
    DLList(const DLList&) = delete;
    DLList& operator=(const DLList&) = delete;

    void ownsRecords(bool owns) { owns_ = owns; }
    bool ownsRecords() const { return owns_; }

    void append(DLListRec* record);
    // Unlinks the record, and deletes it when the list owns its records.
    void remove(DLListRec* record);
    void clear();

    DLListRec* first() const { return first_; }
    DLListRec* last() const { return last_; }
    std::size_t size() const { return size_.load(std::memory_order_relaxed); }
    bool empty() const { return size() == 0; }
    bool contains(const DLListRec* record) const;

    // Calls `fn` on each record in order; a record may remove itself from within.
    void apply(ApplyFn fn, void* data) const;

private:
    DLListRec* first_ = nullptr;
    DLListRec* last_ = nullptr;
    std::atomic<std::size_t> size_{0};
    bool owns_ = false;
};
