#pragma once

#include "NormalisedRGB.h"

#include <cstdint>

/// The toolkit's colour: red, green, blue and alpha as doubles in 0.0 to 1.0.
class Colour {
public:
    Colour() = default;
    // The flag says whether the colour is fully opaque (alpha 1) or fully clear.
    Colour(double r, double g, double b, bool opaque = true);
    Colour(double r, double g, double b, double alpha);
    explicit Colour(const NormalisedRGB& c);

    void setrgb(double r, double g, double b);
    void setAlpha(double a);
    double red() const { return r_; }
    double green() const { return g_; }
    double blue() const { return b_; }
    double alpha() const { return a_; }

    // a*(1-t) + b*t, component by component, alpha too.
    static Colour mix(const Colour& a, const Colour& b, double t);
    bool operator==(const Colour&) const = default;

private:
    double r_ = 0.0, g_ = 0.0, b_ = 0.0, a_ = 1.0;
};

// Each colour component times factor, clamped to 0..1; alpha is kept.
Colour scale(const Colour& c, double factor);
NormalisedRGB fromColour(const Colour& c);
// 0xAARRGGBB, each component rounded to 8 bits.
std::uint32_t asARGB(const Colour& c);
// The same with the colour's alpha times `opacity` (clamped to 0..1).
std::uint32_t asARGB(const Colour& c, double opacity);
Colour colourFromARGB(std::uint32_t argb);
