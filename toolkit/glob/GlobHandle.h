#pragma once

#include "EventHandler.h"

class Glob;
bool is_good_glob_ptr(const Glob* g);

namespace GlobHandleCheck {
// A glob stops counting as one when its destructor starts; any other handler is
// judged by its stamp alone.
inline bool live(const Glob* g) { return is_good_glob_ptr(g); }
inline bool live(const EventHandler*) { return true; }
} // namespace GlobHandleCheck

/// A checked weak reference to a widget (or to any other event handler): it
/// remembers the widget's stamp, so a widget that died, or another object that now
/// lives at its address, is never touched. An owning handle deletes its widget
/// when it goes.
///
/// It needs only a declaration of T, so a class may hold a handle to its own kind.
template <class T>
class GlobHandle {
public:
    GlobHandle() = default;
    explicit GlobHandle(T* glob, bool owning = false) : stamp_(glob ? glob->stamp() : IdStamp()), glob_(glob), owning_(owning) {}
    ~GlobHandle() {
        if (owning_) deleteGlob();
    }
    // A copy never owns: two handles owning one widget would delete it twice.
    GlobHandle(const GlobHandle& o) : stamp_(o.stamp_), glob_(o.glob_) {}
    GlobHandle& operator=(const GlobHandle& o) {
        if (this != &o) {
            if (owning_) deleteGlob();
            stamp_ = o.stamp_;
            glob_ = o.glob_;
            owning_ = false;
        }
        return *this;
    }
    GlobHandle(GlobHandle&& o) noexcept : stamp_(o.stamp_), glob_(o.glob_), owning_(o.owning_) { o.forget(); }
    GlobHandle& operator=(GlobHandle&& o) noexcept {
        if (this != &o) {
            if (owning_) deleteGlob();
            stamp_ = o.stamp_;
            glob_ = o.glob_;
            owning_ = o.owning_;
            o.forget();
        }
        return *this;
    }

    bool valid() const { return glob_ && GlobHandleCheck::live(glob_) && EventHandler::valid(glob_, stamp_); }
    // The widget, or null when it has gone.
    T* get() const { return valid() ? glob_ : nullptr; }
    T* operator->() const { return get(); }
    explicit operator bool() const { return valid(); }
    // True when the handle was made for `glob` and it still lives.
    bool refersTo(const T* glob) const { return glob && glob == glob_ && valid(); }
    const IdStamp& stamp() const { return stamp_; }
    bool isOwning() const { return owning_; }
    void setOwning(bool o) { owning_ = o; }

    void reset(T* glob = nullptr, bool owning = false) {
        if (owning_) deleteGlob();
        *this = GlobHandle(glob, owning);
    }
    // Deletes the widget if it still lives; either way the handle becomes null.
    void deleteGlob() {
        if (valid()) delete glob_;
        forget();
    }

private:
    void forget() {
        glob_ = nullptr;
        stamp_ = IdStamp();
    }

    IdStamp stamp_;
    T* glob_ = nullptr;
    bool owning_ = false;
};
