#pragma once

#include <algorithm>
#include <vector>

/// A std::vector that can say whether it holds a value and where.
template <class T>
class VectorExt : public std::vector<T> {
public:
    using std::vector<T>::vector;
    VectorExt() = default;
    VectorExt(const std::vector<T>& v) : std::vector<T>(v) {}

    bool contains(const T& value) const { return std::find(this->begin(), this->end(), value) != this->end(); }
    // The place of the first equal element, or -1.
    int indexOf(const T& value) const {
        auto it = std::find(this->begin(), this->end(), value);
        return it == this->end() ? -1 : static_cast<int>(it - this->begin());
    }
};
