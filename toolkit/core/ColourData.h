#pragma once

// 0: red, green, blue in 0..1.  2: hue in degrees 0..360, saturation and value in 0..1.
enum ColourSpace { kColourSpaceRGB = 0, kColourSpaceHSV = 2 };

/// A colour as three components in a colour space, and alpha.
class ColourData {
public:
    enum ComponentID { kFirst = 0, kSecond = 1, kThird = 2, kAlpha = 3 };

    ColourData() = default;
    ColourData(double c0, double c1, double c2, ColourSpace space, double alpha);
    // A space number from outside; one that names no space gives RGB.
    ColourData(double c0, double c1, double c2, int space, double alpha)
        : ColourData(c0, c1, c2, space == kColourSpaceHSV ? kColourSpaceHSV : kColourSpaceRGB, alpha) {}

    ColourSpace getColourSpace() const { return space_; }
    // Converts the components into the given space in place.
    void setColourSpace(ColourSpace space);

    double getRed() const { return rgb(0); }
    double getGreen() const { return rgb(1); }
    double getBlue() const { return rgb(2); }
    double getHue() const { return hsv(0); }
    double getSaturation() const { return hsv(1); }
    double getValue() const { return hsv(2); }
    double getAlpha() const { return alpha_; }
    void setAlpha(double a) { alpha_ = a; }

    // Read or write by index in the held space; index 3 is alpha, others read 0.
    double getComponent(ComponentID id) const;
    void setComponent(ComponentID id, double v);

    bool operator==(const ColourData&) const = default;

    // The hexcone model: hue in degrees, saturation and value in 0..1.
    static void RGBToHSV(double r, double g, double b, double& h, double& s, double& v);
    static void HSVToRGB(double h, double s, double v, double& r, double& g, double& b);

private:
    double rgb(int i) const;
    double hsv(int i) const;

    double c_[3] = {0.0, 0.0, 0.0};
    double alpha_ = 1.0;
    ColourSpace space_ = kColourSpaceRGB;
};
