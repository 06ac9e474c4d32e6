#pragma once

#include "FontDesc.h"

#include <pango/pangocairo.h>

// What the drawing layer's text code shares about Pango; private to toolkit/draw.
namespace Glib {

// A font description for Pango, with the defaults filled in; the caller frees it.
PangoFontDescription* makePangoFont(const FontDesc& font);
// The context every measuring layout is made on, so that a measure always matches
// what is painted. Per thread: Pango contexts are not shared between threads.
PangoContext* layoutContext();
// A layout of one UTF-8 text in a font on that context; the caller unrefs it.
PangoLayout* makeLayout(const LightweightString<char>& utf8, const FontDesc& font);

} // namespace Glib
