#pragma once

#include "Colour.h"
#include "enumFromInt.h"

enum eWindowShade { kShadeDarkest = 0, kShadeDarker = 1, kShadeDark = 2, kShadeNormal = 3, kShadeLight = 4, kShadeLighter = 5, kShadeLightest = 6 };
enum eTextAppearance { kTextNormal = 0, kTextDimmed = 1, kTextOnSelection = 2, kTextHeading = 3 };
enum eSelectionAppearance { kSelectionFocused = 0, kSelectionUnfocused = 1 };
enum eChildWindowType { kChildEntry = 0, kChildList = 1, kChildInactive = 2 };

/// The colours of a widget: seven colours and the step between window shades.
/// Shade 3 is the window colour itself; each step up or down moves it by `shadeStep`
/// towards white or black.
class Palette {
public:
    enum Slot { kWindow, kText, kSelection, kChildWindow, kDoIt, kWarning, kSubheading, kNumSlots };

    Palette();
    Palette(const Colour& window, const Colour& text, const Colour& selection, const Colour& childWindow, const Colour& doIt, const Colour& warning,
            const Colour& subheading, float shadeStep = 0.08f);

    Colour window(eWindowShade shade = kShadeNormal) const;
    // The int forms take numbers from outside; one that names nothing gives the default.
    Colour window(int shade) const { return window(enumFromInt(shade, kShadeDarkest, kShadeLightest, kShadeNormal)); }
    Colour text(eTextAppearance appearance = kTextNormal) const;
    Colour text(int a) const { return text(enumFromInt(a, kTextNormal, kTextHeading, kTextNormal)); }
    Colour selection(eSelectionAppearance appearance = kSelectionFocused) const;
    Colour selection(int a) const { return selection(enumFromInt(a, kSelectionFocused, kSelectionUnfocused, kSelectionFocused)); }
    Colour childWindow(eChildWindowType type = kChildEntry) const;
    Colour childWindow(int t) const { return childWindow(enumFromInt(t, kChildEntry, kChildInactive, kChildEntry)); }
    Colour doIt() const { return colours_[kDoIt]; }
    Colour warning() const { return colours_[kWarning]; }
    Colour subheadingText() const { return colours_[kSubheading]; }

    const Colour& colour(Slot s) const { return colours_[s]; }
    void setColour(Slot s, const Colour& c) { colours_[s] = c; }
    float shadeStep() const { return shadeStep_; }
    void setShadeStep(float f) { shadeStep_ = f; }
    bool isDark() const;

    bool operator==(const Palette&) const = default;

private:
    Colour colours_[kNumSlots];
    float shadeStep_ = 0.08f;
};

// A palette for a child window (an entry field, a list) inside a widget of `parent`:
// its window colour is the parent's child-window colour.
Palette makeChildPalette(const Palette& parent);
// A palette around a given window colour, with text that contrasts with it.
Palette makeWindowPalette(const Colour& window, const Palette& base = Palette());
// The base palette with another text colour.
Palette makeTextPalette(const Colour& text, const Palette& base = Palette());
// Black or white, whichever reads better on `background`.
Colour contrastingText(const Colour& background);
