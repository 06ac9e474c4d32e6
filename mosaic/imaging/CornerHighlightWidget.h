#pragma once

#include "glob/Glob.h"

/// A coloured right triangle filling the top left corner of its box, to mark a
/// corner of something else (a flagged cell, a changed item).
class CornerHighlightWidget : public Glob {
public:
    /// What a CornerHighlightWidget is made from: its colour, kept as the palette's text colour.
    struct InitArgs : GlobCreationInfo {
        Colour colour;
        InitArgs() = default;
        InitArgs(unsigned short width, unsigned short height, const Colour& c) : GlobCreationInfo(width, height), colour(c) {}
    };

    explicit CornerHighlightWidget(const InitArgs& args);
    const char* idstring() const override { return "CornerHighlightWidget"; }

    void setColour(const Colour& colour);
    void drawBackground() override;
};
