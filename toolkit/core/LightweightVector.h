#pragma once

#include "Ptr.h"
#include "iVirtual.h"

#include <vector>

/// A vector whose copies share their elements: the elements live in one
/// Zn::Ptr<std::vector<T>>, made at the first write.
template <class T>
class LightweightVector : public iVirtual {
public:
    LightweightVector() = default;
    LightweightVector(std::initializer_list<T> items) : items_(new std::vector<T>(items)) {}

    std::size_t size() const { return items_ ? items_->size() : 0; }
    bool empty() const { return size() == 0; }
    const T& operator[](std::size_t i) const { return (*items_)[i]; }
    T& operator[](std::size_t i) { return (*items_)[i]; }
    void push_back(const T& item) { vec().push_back(item); }
    void clear() {
        if (items_) items_->clear();
    }
    void erase(std::size_t i) {
        if (i < size()) items_->erase(items_->begin() + static_cast<std::ptrdiff_t>(i));
    }
    std::vector<T>& vec() {
        if (!items_) items_.reset(new std::vector<T>());
        return *items_;
    }
    const std::vector<T>& vec() const {
        static const std::vector<T> none;
        return items_ ? *items_ : none;
    }
    auto begin() const { return vec().begin(); }
    auto end() const { return vec().end(); }
    auto begin() { return vec().begin(); }
    auto end() { return vec().end(); }

private:
    Zn::Ptr<std::vector<T>> items_;
};
