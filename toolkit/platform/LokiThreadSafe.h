#pragma once

#include <atomic>
#include <mutex>

// The locking policy for Loki::SingletonHolder used by the library's singletons:
// Loki::SingletonHolder<T, Loki::CreateUsingNew, Loki::DeletableSingleton,
// Loki::ThreadSafetyTraits::ThreadSafe>. The holder makes the instance at first
// use under this lock.
namespace Loki {
namespace ThreadSafetyTraits {

/// The holder checks its instance pointer before taking the lock; a plain volatile
/// pointer makes that check a data race, so the pointer is atomic.
template <class Host>
class AtomicValue {
public:
    AtomicValue(Host h = Host()) : value_(h) {}
    operator Host() const { return value_.load(std::memory_order_acquire); }
    AtomicValue& operator=(Host h) {
        value_.store(h, std::memory_order_release);
        return *this;
    }

private:
    std::atomic<Host> value_;
};

/// The policy itself: one recursive mutex per singleton type, taken while the
/// holder makes the instance.
template <class Host, class MutexPolicy = std::mutex>
class ThreadSafe {
public:
    /// Holds the policy's mutex for its scope.
    class Lock {
    public:
        Lock() { mutex().lock(); }
        explicit Lock(const ThreadSafe&) { mutex().lock(); }
        explicit Lock(const ThreadSafe*) { mutex().lock(); }
        ~Lock() { mutex().unlock(); }
        Lock(const Lock&) = delete;
        Lock& operator=(const Lock&) = delete;
    };
    using VolatileType = AtomicValue<Host>;

private:
    static std::recursive_mutex& mutex() {
        static std::recursive_mutex m;
        return m;
    }
};

} // namespace ThreadSafetyTraits
} // namespace Loki
