#pragma once

#include <mutex>

// The locking policy for Loki::SingletonHolder used by the library's singletons:
// Loki::SingletonHolder<T, Loki::CreateUsingNew, Loki::DeletableSingleton,
// Loki::ThreadSafetyTraits::ThreadSafe>. The holder makes the instance at first
// use under this lock.
namespace Loki {
namespace ThreadSafetyTraits {

template <class Host, class MutexPolicy = std::mutex>
class ThreadSafe {
public:
    class Lock {
    public:
        Lock() { mutex().lock(); }
        explicit Lock(const ThreadSafe&) { mutex().lock(); }
        explicit Lock(const ThreadSafe*) { mutex().lock(); }
        ~Lock() { mutex().unlock(); }
        Lock(const Lock&) = delete;
        Lock& operator=(const Lock&) = delete;
    };
    using VolatileType = volatile Host;

private:
    static std::recursive_mutex& mutex() {
        static std::recursive_mutex m;
        return m;
    }
};

} // namespace ThreadSafetyTraits
} // namespace Loki
