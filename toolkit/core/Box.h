#pragma once

#include "XY.h"

#include <algorithm>

namespace Zn {

/// Marks boxes whose y grows upward from the bottom left, as every widget coordinate does.
struct BottomUpTraits {};

/// A rectangle of two corners: (x1, y1) bottom left, inclusive; (x2, y2) top right, exclusive.
template <class T, class Traits = BottomUpTraits>
struct Box {
    T x1{}, y1{}, x2{}, y2{};

    constexpr Box() = default;
    constexpr Box(T ax1, T ay1, T ax2, T ay2) : x1(ax1), y1(ay1), x2(ax2), y2(ay2) {}
    constexpr Box(XY<T> origin, XY<T> size) : x1(origin.x), y1(origin.y), x2(origin.x + size.x), y2(origin.y + size.y) {}

    constexpr T width() const { return x2 - x1; }
    constexpr T height() const { return y2 - y1; }
    constexpr XY<T> size() const { return {width(), height()}; }
    constexpr bool isEmpty() const { return x2 <= x1 || y2 <= y1; }
    constexpr bool contains(T x, T y) const { return x >= x1 && x < x2 && y >= y1 && y < y2; }
    constexpr bool contains(XY<T> p) const { return contains(p.x, p.y); }
    constexpr Box translated(T dx, T dy) const { return {x1 + dx, y1 + dy, x2 + dx, y2 + dy}; }

    // Cuts this box down to its overlap with other; an empty box when they do not meet.
    constexpr Box& clip(const Box& other) {
        x1 = std::max(x1, other.x1);
        y1 = std::max(y1, other.y1);
        x2 = std::max(x1, std::min(x2, other.x2));
        y2 = std::max(y1, std::min(y2, other.y2));
        return *this;
    }
    // The smallest box holding both; an empty box adds nothing.
    constexpr Box& add(const Box& other) {
        if (other.isEmpty()) return *this;
        if (isEmpty()) return *this = other;
        x1 = std::min(x1, other.x1);
        y1 = std::min(y1, other.y1);
        x2 = std::max(x2, other.x2);
        y2 = std::max(y2, other.y2);
        return *this;
    }
    constexpr bool operator==(const Box& o) const = default;
};

} // namespace Zn

using BoxInt = Zn::Box<int, Zn::BottomUpTraits>;
