#pragma once

#include "IdStamp.h"

#include <cstdint>
#include <list>
#include <mutex>
#include <vector>

/// Something that may take an event before the toolkit routes it. Returns true
/// when it consumed the event; `cookie` is what it was pushed with.
template <class E>
class FilterStackable {
public:
    virtual ~FilterStackable() = default;
    virtual bool fsFilterThis(const E& event, void* cookie) = 0;
};

/// A stack of interceptors, newest first. Any thread may push and pop; the stack
/// has a lock of its own. An interceptor pops itself before it dies: the stack
/// holds it by plain pointer.
template <class E>
class FilterStack {
public:
    /// One interceptor on the stack, with the stamp its push returned.
    struct StackItem {
        IdStamp stamp;
        FilterStackable<E>* filter = nullptr;
        void* cookie = nullptr;
    };

    IdStamp push(FilterStackable<E>* filter, void* cookie) {
        std::lock_guard<std::recursive_mutex> lock(lock_);
        items_.push_front(StackItem{IdStamp::make(), filter, cookie});
        ++count_;
        return items_.front().stamp;
    }

    bool pop(const IdStamp& stamp) {
        std::lock_guard<std::recursive_mutex> lock(lock_);
        for (auto it = items_.begin(); it != items_.end(); ++it) {
            if (it->stamp != stamp) continue;
            items_.erase(it);
            --count_;
            return true;
        }
        return false;
    }

    std::uint64_t count() const {
        std::lock_guard<std::recursive_mutex> lock(lock_);
        return count_;
    }

    // Offers the event to each interceptor, newest first, until one takes it. The
    // lock is not held while an interceptor runs, so that it may push or pop; one
    // popped meanwhile is passed over.
    bool filter(const E& event) {
        std::vector<StackItem> items;
        {
            std::lock_guard<std::recursive_mutex> lock(lock_);
            items.assign(items_.begin(), items_.end());
        }
        for (const StackItem& item : items)
            if (contains(item.stamp) && item.filter && item.filter->fsFilterThis(event, item.cookie)) return true;
        return false;
    }

private:
    bool contains(const IdStamp& stamp) const {
        std::lock_guard<std::recursive_mutex> lock(lock_);
        for (const StackItem& item : items_)
            if (item.stamp == stamp) return true;
        return false;
    }

    std::list<StackItem> items_;
    std::uint64_t count_ = 0;
    mutable std::recursive_mutex lock_;
};
