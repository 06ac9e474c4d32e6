#pragma once

#include <type_traits>

// Equality of values as the binding sees it. For floating point: neither is less
// than the other, so a NaN equals nothing, itself included.
template <class T>
bool valEqualsVal(const T& a, const T& b) {
    if constexpr (std::is_floating_point_v<T>)
        return !(a < b) && !(b < a) && a == a && b == b;
    else
        return a == b;
}
