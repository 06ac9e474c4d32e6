#pragma once

#include "HTMLRenderer.h"
#include "WordWrappingTextRenderer.h"

#include <cstddef>
#include <vector>

/// HTMLRenderer's paragraphs laid out once at one width, for a control that paints
/// them again and asks what lies under the mouse. Every line takes a row of the
/// same height, as HTMLRenderer::render paints them, so that n lines are n rows
/// high whatever their fonts: what is measured in lines is what is painted.
class HTMLLayout {
public:
    // `align` is the Glib::eHorizontalAlign of paragraphs that name none.
    HTMLLayout(const LightweightVector<HTMLRenderer::Paragraph>& paragraphs, int width, int align = Glib::kAlignLeft);

    long numLines() const { return lines_; }
    // Paints the lines in rows of `rowHeight` (above 0) from `top`, the y of the first row's
    // top edge, down; lines start at box.x1 and are clipped to `box`.
    void render(Canvas* canvas, const BoxInt& box, int top, int rowHeight) const;
    // The character under a point, in pixels from the left of the box and the top
    // of the first row, y growing downward: its index in the paragraphs' texts
    // joined by line feeds, or npos off the text.
    std::size_t indexAt(XY<int> p, int rowHeight) const;
    static constexpr std::size_t npos = Glib::WordWrappingTextRenderer::npos;

    // One paragraph laid out as this class and HTMLRenderer lay it out.
    static Glib::WordWrappingTextRenderer layOut(const HTMLRenderer::Paragraph& paragraph, int width, int align);

private:
    struct Block {
        Glib::WordWrappingTextRenderer text;
        std::size_t start; // of the paragraph in the joined text
    };
    std::vector<Block> blocks_;
    long lines_ = 0;
};
