#pragma once

#include "InternalRefCount.h"

#include <cstddef>
#include <type_traits>
#include <utility>

namespace Zn {

/// Tags for a Ptr's template arguments for deleting and counting. A Ptr has one
/// way of each, so the tags only make up its type and never change what it does.
struct DtorTraits {};
/// See DtorTraits.
struct InternalRefCountTraits {};

/// The reference-counted pointer of the whole library: the address of the count
/// and the address of the object. Objects derived from InternalRefCount carry their
/// own count; any other type gets a count allocated beside it.
template <class T, class D = DtorTraits, class C = InternalRefCountTraits>
class Ptr {
public:
    using element_type = T;

    Ptr() noexcept = default;
    Ptr(std::nullptr_t) noexcept {}
    explicit Ptr(T* object) : object_(object) {
        if (!object_) return;
        count_ = makeCount(object_);
        count_->addRef();
    }
    Ptr(const Ptr& other) noexcept : count_(other.count_), object_(other.object_) { retain(); }
    Ptr(Ptr&& other) noexcept : count_(std::exchange(other.count_, nullptr)), object_(std::exchange(other.object_, nullptr)) {}
    template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    Ptr(const Ptr<U, D, C>& other) noexcept : count_(other.count()), object_(other.get()) {
        retain();
    }

    // Used by dynamicCast: shares an existing count.
    Ptr(RefCountBase* count, T* object) noexcept : count_(object ? count : nullptr), object_(object) { retain(); }

    ~Ptr() { reset(); }

    Ptr& operator=(Ptr other) noexcept {
        swap(other);
        return *this;
    }

    void reset() noexcept {
        if (count_ && count_->release()) delete count_;
        count_ = nullptr;
        object_ = nullptr;
    }
    void reset(T* object) { *this = Ptr(object); }
    void swap(Ptr& other) noexcept {
        std::swap(count_, other.count_);
        std::swap(object_, other.object_);
    }

    T* get() const noexcept { return object_; }
    T* operator->() const noexcept { return object_; }
    T& operator*() const noexcept { return *object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }
    RefCountBase* count() const noexcept { return count_; }

    friend bool operator==(const Ptr& a, const Ptr& b) noexcept { return a.object_ == b.object_; }
    friend bool operator==(const Ptr& a, std::nullptr_t) noexcept { return a.object_ == nullptr; }

private:
    void retain() noexcept {
        if (count_) count_->addRef();
    }
    static RefCountBase* makeCount(T* object) {
        using Mutable = std::remove_const_t<T>;
        if constexpr (std::is_base_of_v<InternalRefCount, Mutable>)
            return static_cast<InternalRefCount*>(const_cast<Mutable*>(object));
        else
            return new ExternalRefCount<T>(object);
    }

    RefCountBase* count_ = nullptr;
    T* object_ = nullptr;
};

// A Ptr<U> sharing the count of p, or null when p does not hold a U.
template <class U, class T, class D, class C>
Ptr<U, D, C> dynamicCast(const Ptr<T, D, C>& p) {
    return Ptr<U, D, C>(p.count(), dynamic_cast<U*>(p.get()));
}

template <class T, class... Args>
Ptr<T> makePtr(Args&&... args) {
    return Ptr<T>(new T(std::forward<Args>(args)...));
}

} // namespace Zn
