#pragma once

#include "core/LightweightString.h"
#include "core/NormalisedRGB.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

/// Conversions between the value types of the binding: bool, int, unsigned int,
/// double, wide text, and a colour's text form. Nothing fails: text that is no
/// number gives 0, a number out of range the nearest one that fits, NaN 0.
class DataConvert {
public:
    template <class A, class B>
    static B convert(const A& a) {
        if constexpr (std::is_same_v<A, B>)
            return a;
        else if constexpr (std::is_same_v<B, WString>)
            return toText(a);
        else if constexpr (std::is_same_v<A, WString>)
            return fromText<B>(a);
        else if constexpr (std::is_same_v<B, bool>)
            return a != A(0);
        else if constexpr (std::is_integral_v<B> && std::is_floating_point_v<A>)
            return truncate<B>(a);
        else if constexpr (std::is_integral_v<B> && std::is_integral_v<A>)
            return clampInteger<B>(static_cast<long long>(a));
        else
            return static_cast<B>(a);
    }

    // The value held within [min, max]; with the bounds the wrong way round, they are swapped.
    template <class T>
    static T constrain(const T& v, const T& min, const T& max) {
        const T& lo = max < min ? max : min;
        const T& hi = max < min ? min : max;
        if constexpr (std::is_floating_point_v<T>)
            if (std::isnan(v)) return lo;
        return v < lo ? lo : (hi < v ? hi : v);
    }

    // Towards zero, saturating at the ends of B's range; NaN gives 0.
    template <class B>
    static B truncate(double d) {
        if (std::isnan(d)) return B(0);
        if (d <= static_cast<double>(std::numeric_limits<B>::min())) return std::numeric_limits<B>::min();
        if (d >= static_cast<double>(std::numeric_limits<B>::max())) return std::numeric_limits<B>::max();
        return static_cast<B>(d);
    }

    static WString toText(bool b);
    static WString toText(int i);
    static WString toText(unsigned int u);
    static WString toText(double d);
    // Four numbers, red, green, blue, alpha, parted by spaces.
    static WString toText(const NormalisedRGB& c);

    static bool boolFromText(const WString& s);
    static long long integerFromText(const WString& s);
    static double doubleFromText(const WString& s);
    // Three or four numbers (alpha 1 when left out), parted by spaces or commas, or
    // "#rrggbb" / "#rrggbbaa"; each component held to 0..1.
    static NormalisedRGB colourFromText(const WString& s);

private:
    template <class B>
    static B clampInteger(long long v) {
        return static_cast<B>(std::clamp<long long>(v, std::numeric_limits<B>::min(), std::numeric_limits<B>::max()));
    }
    template <class B>
    static B fromText(const WString& s) {
        if constexpr (std::is_same_v<B, bool>)
            return boolFromText(s);
        else if constexpr (std::is_integral_v<B>)
            return clampInteger<B>(integerFromText(s));
        else if constexpr (std::is_floating_point_v<B>)
            return static_cast<B>(doubleFromText(s));
        else
            return colourFromText(s);
    }
};
