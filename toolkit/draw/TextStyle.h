#pragma once

#include "FontDesc.h"
#include "GlibDescriptions.h"
#include "core/Box.h"

// Small helpers for code that places one line of text itself: which default face
// to use, where the baseline of a line centred in a row falls, and the box a line
// of text covers.
namespace Glib {

// The default face at the default size: index 0 the UI face, 1 the monospace face;
// any other index is taken as 0.
FontDesc getDefaultFont(int index);
// The box one line of `t` covers: from the box's left (or as aligned), as wide as
// the text (no wider than the box), one font line high and centred vertically in
// the box. Empty for empty text.
BoxInt calcBounds(const TextDescription& t);

} // namespace Glib

// The offset (0 or below) from the top of a row `height` pixels high to the
// baseline of one line of `font` centred in it.
int getFontYOffset(int height, const Glib::FontDesc& font);
