#pragma once

#include "glob/Glob.h"

/// A checked weak reference to a widget: it remembers the widget's stamp, so a
/// widget that died, or another object that now lives at its address, is never
/// touched. An owning handle deletes its widget when it goes.
template <class T>
class GlobHandle {
public:
    GlobHandle() = default;
    explicit GlobHandle(T* glob, bool owning = false) : stamp_(glob ? glob->stamp() : IdStamp()), glob_(glob), owning_(owning) {}
    ~GlobHandle() {
        if (owning_) deleteGlob();
    }
    // Two handles owning one widget would delete it twice.
    GlobHandle(const GlobHandle&) = delete;
    GlobHandle& operator=(const GlobHandle&) = delete;
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

    bool valid() const { return is_good_glob_ptr(glob_) && EventHandler::valid(glob_, stamp_); }
    // The widget, or null when it has gone.
    T* get() const { return valid() ? glob_ : nullptr; }
    T* operator->() const { return get(); }
    explicit operator bool() const { return valid(); }
    const IdStamp& stamp() const { return stamp_; }
    bool isOwning() const { return owning_; }
    void setOwning(bool o) { owning_ = o; }

    void reset(T* glob, bool owning = false) {
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
