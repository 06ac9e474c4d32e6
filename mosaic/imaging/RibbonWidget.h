#pragma once

#include "glob/Glob.h"

class CanvasRenderer;

/// A bookmark ribbon: a gradient band hanging from the top of its box with a
/// swallow-tail cut at the bottom, and optionally a light band across its top.
class RibbonWidget : public Glob {
public:
    /// What a RibbonWidget is made from: its colour and whether it shows the band.
    struct InitArgs : GlobCreationInfo {
        Colour colour;
        bool band = false;
        InitArgs() = default;
        InitArgs(unsigned short width, unsigned short height, const Colour& c, bool withBand = false)
            : GlobCreationInfo(width, height), colour(c), band(withBand) {}
    };

    explicit RibbonWidget(const InitArgs& args);
    const char* idstring() const override { return "RibbonWidget"; }

    void setColour(const Colour& colour);
    const Colour& getColour() const { return colour_; }
    void drawBackground() override;

    static void draw(const CanvasRenderer& renderer, const BoxInt& box, const Colour& colour, bool band);
    // A ribbon's size for an area: smaller in a narrow one.
    static XY<int> calcRibbonSize(const XY<int>& area);
    // Where a ribbon goes in the top left of `box`, `inset` pixels in.
    static BoxInt calcRibbonArea(const BoxInt& box, unsigned short inset);

private:
    Colour colour_;
    bool band_ = false;
};
