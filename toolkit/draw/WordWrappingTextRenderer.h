#pragma once

#include "FontDesc.h"
#include "GlibDescriptions.h"
#include "core/Box.h"
#include "core/Colour.h"
#include "core/LightweightString.h"

#include <cstddef>
#include <vector>

class Canvas;
typedef struct _PangoLayout PangoLayout;

namespace Glib {

/// Text broken into lines that fit a width, as Pango breaks it: between words,
/// inside a word only when the word alone is wider than the width, and at every
/// line feed. The lines are drawn one per row, from the top of a box down.
class WordWrappingTextRenderer {
public:
    // A width of 0 or less does not wrap: only line feeds break lines. `align` is
    // an eHorizontalAlign; other values align left.
    WordWrappingTextRenderer(const LightweightString<wchar_t>& text, const FontDesc& font, int width, int align = kAlignLeft);
    // Takes ownership of a layout already filled with attributed text.
    explicit WordWrappingTextRenderer(PangoLayout* layout);
    ~WordWrappingTextRenderer();
    WordWrappingTextRenderer(WordWrappingTextRenderer&& other) noexcept;
    WordWrappingTextRenderer& operator=(WordWrappingTextRenderer&& other) noexcept;
    WordWrappingTextRenderer(const WordWrappingTextRenderer&) = delete;
    WordWrappingTextRenderer& operator=(const WordWrappingTextRenderer&) = delete;

    // At least 1: an empty text is one empty line.
    unsigned short numLines() const;
    // The text of each line, spaces at the breaks included, so that the lines put
    // together give back the text without its line feeds.
    std::vector<LightweightString<wchar_t>> lines() const;

    // Draws the lines in `colour` (where the text has no colour of its own), each in
    // a row of `rowHeight` pixels from the top of `box` down, centred in its row and
    // clipped to `box`. A rowHeight of 0 or less gives each line its natural height.
    void render(Canvas* canvas, const BoxInt& box, const Colour& colour, int rowHeight) const;
    // The same with the first row's top edge at `top` rather than at the box's top.
    void render(Canvas* canvas, const BoxInt& box, int top, const Colour& colour, int rowHeight) const;
    // The character under a point placed as render() places the lines, in pixels
    // from the left of the box and the top of the first row, y growing downward:
    // its index in the text, or npos off the text.
    std::size_t indexAt(XY<int> p, int rowHeight) const;
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

    static unsigned short calcNumDisplayLines(const LightweightString<wchar_t>& text, int width, const FontDesc& font);
    static void renderString(Canvas* canvas, const LightweightString<wchar_t>& text, const BoxInt& box, const Colour& colour, const FontDesc& font,
                             int rowHeight, int align);

    // An empty layout for attributed text, measured exactly as this class measures.
    static PangoLayout* createLayout(int width, int align);
    // UTF-8 that Pango accepts: values that are not characters become U+FFFD.
    static LightweightString<char> layoutText(const LightweightString<wchar_t>& text);

private:
    PangoLayout* layout_ = nullptr;
};

} // namespace Glib
