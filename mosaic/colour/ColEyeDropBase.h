#pragma once

#include "core/Box.h"
#include "core/LightweightString.h"
#include "core/RgbTriple.h"

#include <array>

/// Reads pixels off the composed screen and carries a colour as the text of a named
/// message: "colour_eye_dropper HSV <hue> <saturation> <value / 255>". The value
/// field is divided by 255 and the receiver multiplies it back; both ends keep to
/// that. No widget: the eye dropper joins this to its button. User-interface thread.
class ColEyeDropBase {
public:
    using Triple = RgbTriple_<unsigned char>;
    // Hue minimum and maximum, saturation minimum and maximum, value minimum and maximum.
    using Range = std::array<double, 6>;

    virtual ~ColEyeDropBase() = default;

    // The mean of the box's pixels, each sum in 32 bits; black for an empty box or a failed grab.
    static Triple getPixelColour(const Zn::Box<double, Zn::BottomUpTraits>& box);
    // The spread of the box's coloured pixels (grey, white and black have no hue and
    // are left out); zeros for a failed grab, all -1.0 when no pixel counted.
    static Range getPixelRange(const Zn::Box<double, Zn::BottomUpTraits>& box);
    static LightweightString<char> pixelToMsg(const Triple& pixel);
    // Reads a message of five fields whose first is "colour_eye_dropper"; a message
    // of another shape leaves the outputs as they were. Always 0.
    static int parse(const char* msg, double& h, double& s, double& v);
    // The message of the one pixel at (x, y) of the screen.
    virtual void grabPixelColour(int x, int y, LightweightString<char>& msg);
};
