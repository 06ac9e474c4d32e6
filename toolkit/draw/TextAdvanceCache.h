#pragma once

#include "FontDesc.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace Glib {

/// Measures one line of text and counts the lines of word-wrapped text without a
/// Pango layout, for the text that legends, labels and logs are mostly made of:
/// Latin letters, digits, spaces and the punctuation around which the line-breaking
/// rules allow a break only at spaces. Widths come from the advance of each
/// character and the kerning of each pair, each measured by Pango once and cached,
/// so the answers are Pango's own. Anything else (other scripts, tabs, hyphens and
/// slashes, "ff" in a one-line measure, a word too wide for a line, a line that ends
/// within a hair of the width) is left to Pango: the answer then says so.
/// One cache per thread, like the Pango context it measures with.
class TextAdvanceCache {
public:
    static TextAdvanceCache& forThisThread();

    // The number of lines Pango makes of `text` at `width` pixels (0 or less: no
    // wrapping), or nothing when this cache cannot be sure.
    std::optional<int> countLines(std::wstring_view text, int width, const FontDesc& font);
    // The width in Pango units of one line of text, or nothing when it is not simple
    // (or holds "ff", which faces may join with what follows into one glyph).
    std::optional<std::int64_t> measure(std::wstring_view text, const FontDesc& font);
    // One line of text in pixels as Pango's logical extents give it (the width
    // rounded up, the line height of the tallest face used), or nothing when the
    // text is not simple, as for measure(). Empty text is left to Pango too.
    std::optional<XY<int>> measurePixels(std::wstring_view text, const FontDesc& font);

    // One line of simple text as glyphs (GlyphLine.h, private to toolkit/draw).
    struct GlyphLine;
    // Fills `out` and answers true when every character of `text` is simple, is
    // drawn by the same face, and joins no neighbour into another glyph.
    bool glyphLine(std::wstring_view text, const FontDesc& font, GlyphLine& out);
    // How many fonts' advances a thread keeps.
    static constexpr std::size_t kFontsKept = 16;

    // Pango units in a pixel, for readers of measure().
    static constexpr int kUnitsPerPixel = 1024;

    // True for a character whose breaks and shaping this cache models.
    static bool isSimple(wchar_t c);

    TextAdvanceCache();
    ~TextAdvanceCache();
    TextAdvanceCache(const TextAdvanceCache&) = delete; // holds Pango objects of one thread
    TextAdvanceCache& operator=(const TextAdvanceCache&) = delete;

private:
    class FontTable;
    FontTable& tableFor(const FontDesc& font);
    int countParagraph(std::wstring_view paragraph, std::int64_t width, FontTable& table);

    std::vector<std::unique_ptr<FontTable>> tables_;
};

} // namespace Glib
