#pragma once

#include <atomic>

namespace Zn {

/// A reference count that an object carries inside itself. When the last
/// Zn::Ptr lets go, the count deletes its object through the virtual destructor.
class RefCountBase {
public:
    virtual ~RefCountBase() = default;
    void addRef() noexcept { count_.fetch_add(1, std::memory_order_relaxed); }
    // Returns true when this release dropped the last reference.
    bool release() noexcept { return count_.fetch_sub(1, std::memory_order_acq_rel) == 1; }
    int refCount() const noexcept { return count_.load(std::memory_order_acquire); }

private:
    std::atomic<int> count_{0};
};

/// The count as a virtual base of iObject, so that every interface path reaches the same count.
class InternalRefCount : public RefCountBase {
public:
    InternalRefCount() = default;
    // A copied object starts with no owners of its own.
    InternalRefCount(const InternalRefCount&) : RefCountBase() {}
    InternalRefCount& operator=(const InternalRefCount&) { return *this; }
};

/// Owns an object that has no count of its own (a std::vector, say).
template <class T>
class ExternalRefCount final : public RefCountBase {
public:
    explicit ExternalRefCount(T* object) : object_(object) {}
    ~ExternalRefCount() override { delete object_; }

private:
    T* object_;
};

} // namespace Zn
