#pragma once

// The one way a number from outside (a file, a message, an int parameter) becomes
// an enumerator: a number in [first, last] is taken as it is, any other gives
// `fallback`. Enumerations with gaps check their members themselves.
template <class E>
constexpr E enumFromInt(long long value, E first, E last, E fallback) {
    return value >= static_cast<long long>(first) && value <= static_cast<long long>(last) ? static_cast<E>(value) : fallback;
}
