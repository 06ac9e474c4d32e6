#pragma once

#include "FontDesc.h"
#include "GlibDescriptions.h"
#include "core/Box.h"
#include "core/Colour.h"
#include "core/LightweightString.h"
#include "core/LightweightVector.h"
#include "core/Palette.h"

#include <vector>

class Canvas;

/// The small mark-up of labels and log rows: `<p>` and `<div>` paragraphs (with an
/// align attribute), `<br>`, `<b>`/`<strong>`, `<i>`/`<em>`, `<u>`, `<a href>`, `<span>`,
/// `<font color size face>`, `<h1>` to `<h6>`, the entities named lt, gt, amp,
/// quot, apos and nbsp, and numbered ones (`&#n;`). Anything else is dropped,
/// keeping the text inside.
class HTMLRenderer {
public:
    // Glib::kAlignTop is what log rows use: a cell can be taller than the text it shows.
    static constexpr Glib::TextAlignment kLeftTop{Glib::kAlignLeft, Glib::kAlignTop};

    // A piece of text in one style.
    struct Run {
        LightweightString<wchar_t> text;
        Glib::FontDesc font;
        Colour colour;
        bool underline = false;
        LightweightString<wchar_t> link; // the href of an <a>, empty elsewhere

        bool sameStyle(const Run& o) const { return font == o.font && colour == o.colour && underline == o.underline && link == o.link; }
    };

    /// A paragraph of runs, with its own alignment.
    struct Paragraph {
        std::vector<Run> runs;
        Glib::eHorizontalAlign align = Glib::kAlignDefault; // the default takes the render call's

        LightweightString<wchar_t> text() const;
    };

    // True when the text holds at least one tag of the mark-up above.
    static bool isHTML(const LightweightString<wchar_t>& text);

    // Text that is not mark-up (isHTML false) is taken literally, one paragraph per
    // line; mark-up collapses white space as HTML does. Runs take their colour
    // from the palette's text, headings from its subheading colour.
    static LightweightVector<Paragraph> parse(const LightweightString<wchar_t>& text, const Palette& palette);

    // Lines the paragraphs take when wrapped at `width` pixels (0: not wrapped),
    // at least one for each paragraph.
    static unsigned short calcNumDisplayLines(const LightweightVector<Paragraph>& paragraphs, unsigned short width);

    // Paints the paragraphs wrapped to the box's width, one line per row of
    // `rowHeight`, clipped to the box. Text taller than the box starts at its top.
    static void render(Canvas* canvas, const LightweightVector<Paragraph>& paragraphs, const BoxInt& box, int rowHeight,
                       Glib::TextAlignment alignment = kLeftTop);

    enum ConvertFlags { kEscapeMarkup = 1, kLineFeedsToBreaks = 2 };
    // Plain text as mark-up of one paragraph: with kEscapeMarkup, characters that
    // mean something in mark-up are written as entities; with kLineFeedsToBreaks,
    // line feeds become <br>. Text that is mark-up already comes back as it is.
    static LightweightString<wchar_t> convertToHTML(const LightweightString<wchar_t>& text, int flags);
};
