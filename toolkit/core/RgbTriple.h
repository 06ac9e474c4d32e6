#pragma once

/// One pixel's colour as three components in the order they lie in memory: blue,
/// green, red (a screen pixel adds alpha after them).
template <class T>
struct RgbTriple_ {
    T blue{};
    T green{};
    T red{};
    bool operator==(const RgbTriple_&) const = default;
};
