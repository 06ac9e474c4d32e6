#pragma once

/// A colour as four floats, red, green, blue and alpha, each 0.0 to 1.0.
struct NormalisedRGB {
    float r = 0.0f, g = 0.0f, b = 0.0f, a = 1.0f;

    NormalisedRGB() = default;
    NormalisedRGB(float red, float green, float blue, float alpha = 1.0f) : r(red), g(green), b(blue), a(alpha) {}
    bool operator==(const NormalisedRGB&) const = default;
};
