#pragma once

#include "FontDesc.h"
#include "core/Box.h"
#include "core/Colour.h"
#include "core/LightweightString.h"

#include <cstddef>
#include <vector>

class Canvas;
typedef struct _PangoLayout PangoLayout;
typedef struct _cairo_surface cairo_surface_t;

namespace Glib {

/// A text laid out once, for editing: where the caret stands before each character,
/// which caret position a point is nearest to, the boxes a selection covers, and
/// the painting of all of it or of a clipped part. Editing controls keep one per
/// text and ask it everything, so what they measure is what they paint.
///
/// Indices count the characters of the wide string, 0 to length(). Positions are
/// pixels from the layout's top left with y growing downward, the way lines are
/// read; render() is what places the layout in a glob's bottom-up coordinates.
///
/// With a wrap width above 0 the text breaks into lines between words (inside a
/// word only when it is wider than the width) and at every line feed. Otherwise it
/// is a single line, on which a line feed shows as a glyph.
class TextLayout {
public:
    // A box in layout coordinates.
    struct Rect {
        int x = 0, top = 0, width = 0, height = 0;
    };

    TextLayout();
    TextLayout(const LightweightString<wchar_t>& text, const FontDesc& font, int wrapWidth = 0);
    ~TextLayout();
    TextLayout(TextLayout&& other) noexcept;
    TextLayout& operator=(TextLayout&& other) noexcept;
    TextLayout(const TextLayout&) = delete; // owns a Pango layout
    TextLayout& operator=(const TextLayout&) = delete;

    std::size_t length() const { return bytes_.empty() ? 0 : bytes_.size() - 1; }
    // The widest line, and all lines together; an empty text is one line high.
    int width() const;
    int height() const;
    int numLines() const { return static_cast<int>(lines_.size()); }
    // The height of one empty line in `font`: what a box sized for lines adds per line.
    // Kept per font, for controls that size themselves by it as they are made.
    static int emptyLineHeight(const FontDesc& font);
    // The line that holds the caret before `index`: at a soft break, the later line.
    int lineOf(std::size_t index) const;
    // The first index of a line, and the index after its last character (before
    // the line feed that ends it, if one does).
    std::size_t lineStart(int line) const;
    std::size_t lineEnd(int line) const;
    // The top and the height of a line.
    Rect lineBox(int line) const;

    // The caret before character `index` (clamped to the text): a box of width 0 as
    // high as its line.
    Rect caret(std::size_t index) const;
    // The caret position nearest to `p`; a point above the first line or below the
    // last counts as on that line, one left or right of a line as at its end.
    std::size_t indexAt(XY<int> p) const;
    // The caret position after (direction > 0) or before `index`, stepping over a
    // character together with the marks that combine with it.
    std::size_t nextCaretStop(std::size_t index, int direction) const;
    bool isCaretStop(std::size_t index) const;
    // The boxes a selection of [from, to) covers, at least one per line it touches.
    std::vector<Rect> rangeBoxes(std::size_t from, std::size_t to) const;

    // Paints the text in `colour` with the layout's top left at (left, top) in the
    // coordinates of the glob being drawn (bottom-up, so `top` is the y of the top
    // edge), clipped to `clip` in the same coordinates.
    void render(Canvas* canvas, int left, int top, const BoxInt& clip, const Colour& colour) const;

private:
    struct Line {
        int startByte = 0, endByte = 0; // endByte excludes a paragraph's line feed
        int top = 0, height = 0;
    };

    int byteOf(std::size_t index) const;
    std::size_t indexOfByte(int byte) const;

    PangoLayout* layout_ = nullptr;
    // The byte offset of each character in the layout's UTF-8 text, and of its end.
    std::vector<int> bytes_;
    std::vector<bool> stops_;
    std::vector<Line> lines_;
    // The painted coverage, made on the first paint of a layout small enough to keep it.
    mutable cairo_surface_t* mask_ = nullptr;
    mutable XY<int> maskOrigin_;
};

} // namespace Glib
