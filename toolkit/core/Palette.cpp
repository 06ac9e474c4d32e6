#include "Palette.h"

namespace {
double luminance(const Colour& c) { return 0.2126 * c.red() + 0.7152 * c.green() + 0.0722 * c.blue(); }
} // namespace

Palette::Palette()
    : Palette(Colour(0.23, 0.23, 0.24), Colour(0.88, 0.88, 0.88), Colour(0.22, 0.45, 0.78), Colour(0.15, 0.15, 0.16), Colour(0.25, 0.6, 0.3),
              Colour(0.9, 0.55, 0.1), Colour(0.6, 0.75, 0.95)) {}

Palette::Palette(const Colour& window, const Colour& text, const Colour& selection, const Colour& childWindow, const Colour& doIt,
                 const Colour& warning, const Colour& subheading, float shadeStep)
    : colours_{window, text, selection, childWindow, doIt, warning, subheading}, shadeStep_(shadeStep) {}

Colour Palette::window(eWindowShade shade) const {
    int steps = static_cast<int>(shade) - kShadeNormal;
    const Colour& base = colours_[kWindow];
    if (steps == 0) return base;
    Colour target = steps > 0 ? Colour(1.0, 1.0, 1.0, base.alpha()) : Colour(0.0, 0.0, 0.0, base.alpha());
    double t = (steps > 0 ? steps : -steps) * static_cast<double>(shadeStep_);
    return Colour::mix(base, target, t > 1.0 ? 1.0 : t);
}

Colour Palette::text(eTextAppearance appearance) const {
    switch (appearance) {
    case kTextDimmed: return Colour::mix(colours_[kText], colours_[kWindow], 0.5);
    case kTextOnSelection: return contrastingText(colours_[kSelection]);
    case kTextHeading: return colours_[kSubheading];
    default: return colours_[kText];
    }
}

Colour Palette::selection(eSelectionAppearance appearance) const {
    if (appearance == kSelectionUnfocused) return Colour::mix(colours_[kSelection], colours_[kWindow], 0.5);
    return colours_[kSelection];
}

Colour Palette::childWindow(eChildWindowType type) const {
    switch (type) {
    case kChildList: return Colour::mix(colours_[kChildWindow], colours_[kWindow], 0.3);
    case kChildInactive: return Colour::mix(colours_[kChildWindow], colours_[kWindow], 0.6);
    default: return colours_[kChildWindow];
    }
}

bool Palette::isDark() const { return luminance(colours_[kWindow]) < 0.5; }

Colour contrastingText(const Colour& background) { return luminance(background) < 0.5 ? Colour(0.95, 0.95, 0.95) : Colour(0.05, 0.05, 0.05); }

Palette makeChildPalette(const Palette& parent) {
    Palette p(parent);
    p.setColour(Palette::kWindow, parent.childWindow());
    return p;
}

Palette makeWindowPalette(const Colour& window, const Palette& base) {
    Palette p(base);
    p.setColour(Palette::kWindow, window);
    p.setColour(Palette::kText, contrastingText(window));
    return p;
}

Palette makeTextPalette(const Colour& text, const Palette& base) {
    Palette p(base);
    p.setColour(Palette::kText, text);
    return p;
}
