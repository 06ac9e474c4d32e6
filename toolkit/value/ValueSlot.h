#pragma once

#include "CriticalSection.h"

#include <atomic>
#include <mutex>
#include <type_traits>

/// Whether a T fits a lock-free atomic.
template <class T>
struct LockFreeAtomic : std::bool_constant<std::atomic<T>::is_always_lock_free> {};

/// Where a value server keeps its value so that any thread may write it. A value
/// that fits a lock-free atomic is stored without the lock, so an assignment to a
/// server with no clients costs next to nothing; any other value is read and
/// written under the notifier's lock.
template <class T, bool = std::conjunction_v<std::is_trivially_copyable<T>, LockFreeAtomic<T>>>
class ValueSlot {
public:
    explicit ValueSlot(const T& v) : v_(v) {}
    T load(CriticalSection&) const { return v_.load(std::memory_order_acquire); }
    void store(const T& v, CriticalSection&) { v_.store(v, std::memory_order_release); }

private:
    std::atomic<T> v_;
};

/// A value that is not lock-free, read and written under the notifier's lock.
template <class T>
class ValueSlot<T, false> {
public:
    explicit ValueSlot(const T& v) : v_(v) {}
    T load(CriticalSection& lock) const {
        std::lock_guard<CriticalSection> g(lock);
        return v_;
    }
    void store(const T& v, CriticalSection& lock) {
        std::lock_guard<CriticalSection> g(lock);
        v_ = v;
    }

private:
    T v_;
};
