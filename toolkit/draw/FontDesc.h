#pragma once

#include "core/LightweightString.h"
#include "core/XY.h"

#include <vector>

namespace Glib {

/// A font by family name, pixel size and style. An empty name means the toolkit's
/// default face; a size of 0 its default size. A family that is not installed is
/// replaced by the nearest face the font system has, so text always shows.
struct FontDesc {
    enum Style : unsigned { kPlain = 0, kBold = 1, kItalic = 2, kMonospace = 4 };

    LightweightString<char> name;
    int size = 0;
    unsigned style = kPlain;

    FontDesc() = default;
    FontDesc(const LightweightString<char>& n, int s, unsigned st = kPlain) : name(n), size(s), style(st) {}
    bool operator==(const FontDesc&) const = default;

    FontDesc withSize(int s) const { return FontDesc(name, s, style); }
    FontDesc withStyle(unsigned st) const { return FontDesc(name, size, st); }
    // The family and size with the defaults filled in.
    FontDesc resolved() const;
};

// The size in pixels of one line of text in a font: its width, and the font's line height.
XY<int> measureText(const LightweightString<wchar_t>& text, const FontDesc& font);
// Ascent and descent of a font in pixels.
int fontAscent(const FontDesc& font);
int fontDescent(const FontDesc& font);
int fontHeight(const FontDesc& font);
// Family names that the font system offers, sorted.
std::vector<LightweightString<char>> getAvailableFonts();
bool isFontAvailable(const LightweightString<char>& family);
FontDesc getDefaultFont();

/// A widget that draws text in a font of its own.
class FontUser {
public:
    virtual ~FontUser() = default;
    const FontDesc& getFont() const { return font_; }
    virtual void setFont(const FontDesc& f) { font_ = f.resolved(); }

protected:
    FontDesc font_ = FontDesc().resolved();
};

} // namespace Glib

// Face names and sizes of the toolkit's defaults. Index 0 is the UI face, 1 the
// monospace face.
LightweightString<char> getDefaultFontName(unsigned index = 0);
int getDefaultFontSize();
LightweightString<char> getZnUtilityFontName();
int getZnUtilityFontSize(float scale = 1.0f);
// The full path of a shipped icon ("name.png" under the resources' icons folder),
// or the empty string when there is no such icon.
LightweightString<wchar_t> getIconPath(const LightweightString<wchar_t>& name);
