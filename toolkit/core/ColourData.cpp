#include "ColourData.h"

#include <algorithm>
#include <cmath>

ColourData::ColourData(double c0, double c1, double c2, ColourSpace space, double alpha)
    : c_{c0, c1, c2}, alpha_(alpha), space_(space == kColourSpaceHSV ? kColourSpaceHSV : kColourSpaceRGB) {}

void ColourData::setColourSpace(ColourSpace space) {
    if (space != kColourSpaceHSV) space = kColourSpaceRGB;
    if (space == space_) return;
    double a, b, c;
    if (space == kColourSpaceHSV)
        RGBToHSV(c_[0], c_[1], c_[2], a, b, c);
    else
        HSVToRGB(c_[0], c_[1], c_[2], a, b, c);
    c_[0] = a;
    c_[1] = b;
    c_[2] = c;
    space_ = space;
}

double ColourData::rgb(int i) const {
    if (space_ == kColourSpaceRGB) return c_[i];
    double out[3];
    HSVToRGB(c_[0], c_[1], c_[2], out[0], out[1], out[2]);
    return out[i];
}

double ColourData::hsv(int i) const {
    if (space_ == kColourSpaceHSV) return c_[i];
    double out[3];
    RGBToHSV(c_[0], c_[1], c_[2], out[0], out[1], out[2]);
    return out[i];
}

double ColourData::getComponent(ComponentID id) const {
    if (id == kAlpha) return alpha_;
    return (id >= 0 && id < 3) ? c_[id] : 0.0;
}

void ColourData::setComponent(ComponentID id, double v) {
    if (id == kAlpha)
        alpha_ = v;
    else if (id >= 0 && id < 3)
        c_[id] = v;
}

void ColourData::RGBToHSV(double r, double g, double b, double& h, double& s, double& v) {
    double mx = std::max({r, g, b}), mn = std::min({r, g, b});
    double delta = mx - mn;
    v = mx;
    s = mx > 0.0 ? delta / mx : 0.0;
    if (delta <= 0.0) {
        h = 0.0;
        return;
    }
    if (mx == r)
        h = 60.0 * std::fmod((g - b) / delta, 6.0);
    else if (mx == g)
        h = 60.0 * ((b - r) / delta + 2.0);
    else
        h = 60.0 * ((r - g) / delta + 4.0);
    if (h < 0.0) h += 360.0;
}

void ColourData::HSVToRGB(double h, double s, double v, double& r, double& g, double& b) {
    if (!std::isfinite(h)) h = 0.0;
    h = std::fmod(h, 360.0);
    if (h < 0.0) h += 360.0;
    double c = v * s;
    double x = c * (1.0 - std::fabs(std::fmod(h / 60.0, 2.0) - 1.0));
    double m = v - c;
    double rr = 0, gg = 0, bb = 0;
    switch (static_cast<int>(h / 60.0)) {
    case 0: rr = c, gg = x; break;
    case 1: rr = x, gg = c; break;
    case 2: gg = c, bb = x; break;
    case 3: gg = x, bb = c; break;
    case 4: rr = x, bb = c; break;
    default: rr = c, bb = x; break;
    }
    r = rr + m;
    g = gg + m;
    b = bb + m;
}
