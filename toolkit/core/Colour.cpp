#include "Colour.h"

#include <algorithm>
#include <cmath>

namespace {
double clamp01(double v) { return std::isnan(v) ? 0.0 : std::clamp(v, 0.0, 1.0); }
std::uint32_t byteOf(double v) { return static_cast<std::uint32_t>(std::lround(clamp01(v) * 255.0)); }
} // namespace

Colour::Colour(double r, double g, double b, bool opaque) : Colour(r, g, b, opaque ? 1.0 : 0.0) {}

Colour::Colour(double r, double g, double b, double alpha) : r_(clamp01(r)), g_(clamp01(g)), b_(clamp01(b)), a_(clamp01(alpha)) {}

Colour::Colour(const NormalisedRGB& c) : Colour(c.r, c.g, c.b, static_cast<double>(c.a)) {}

void Colour::setrgb(double r, double g, double b) {
    r_ = clamp01(r);
    g_ = clamp01(g);
    b_ = clamp01(b);
}

void Colour::setAlpha(double a) { a_ = clamp01(a); }

Colour Colour::mix(const Colour& a, const Colour& b, double t) {
    auto lerp = [t](double x, double y) { return x + (y - x) * t; };
    return Colour(lerp(a.r_, b.r_), lerp(a.g_, b.g_), lerp(a.b_, b.b_), lerp(a.a_, b.a_));
}

Colour scale(const Colour& c, double factor) { return Colour(c.red() * factor, c.green() * factor, c.blue() * factor, c.alpha()); }

NormalisedRGB fromColour(const Colour& c) {
    return NormalisedRGB(static_cast<float>(c.red()), static_cast<float>(c.green()), static_cast<float>(c.blue()), static_cast<float>(c.alpha()));
}

std::uint32_t asARGB(const Colour& c) { return byteOf(c.alpha()) << 24 | byteOf(c.red()) << 16 | byteOf(c.green()) << 8 | byteOf(c.blue()); }

std::uint32_t asARGB(const Colour& c, double opacity) {
    return asARGB(Colour(c.red(), c.green(), c.blue(), c.alpha() * std::clamp(opacity, 0.0, 1.0)));
}

Colour colourFromARGB(std::uint32_t argb) {
    auto part = [argb](int shift) { return ((argb >> shift) & 0xFF) / 255.0; };
    return Colour(part(16), part(8), part(0), part(24));
}
