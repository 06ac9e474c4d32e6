#pragma once

/// A pair of coordinates.
template <class T>
struct XY {
    T x{};
    T y{};

    constexpr XY() = default;
    constexpr XY(T x_, T y_) : x(x_), y(y_) {}

    constexpr XY operator+(const XY& o) const { return {x + o.x, y + o.y}; }
    constexpr XY operator-(const XY& o) const { return {x - o.x, y - o.y}; }
    constexpr bool operator==(const XY& o) const = default;
};
