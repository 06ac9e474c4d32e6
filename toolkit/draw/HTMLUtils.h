#pragma once

#include "core/Colour.h"
#include "core/LightweightString.h"

#include <string_view>

/// Wraps a stretch of text in the tags of HTMLRenderer's mark-up, for log files
/// and labels. A stretch is [start, end) in characters of the text; -1 for start
/// means the beginning and -1 for end the end, and positions past the end are
/// taken as the end. A stretch that ends before it starts leaves the text as it is.
/// The text is not escaped: it may hold mark-up already.
class HTMLUtils {
public:
    // Bits of addStyleTags' style.
    enum Style { kBold = 1, kItalic = 2, kUnderline = 4 };

    static LightweightString<wchar_t> addParagraphTags(const LightweightString<wchar_t>& text, int start = -1, int end = -1);
    // A `<font color>` of the colour; alpha below 1 is written as a fourth byte.
    static LightweightString<wchar_t> addColourTags(const LightweightString<wchar_t>& text, double red, double green, double blue, double alpha,
                                                    int start = -1, int end = -1);
    static LightweightString<wchar_t> addColourTags(const LightweightString<wchar_t>& text, const Colour& colour, int start = -1, int end = -1);
    // Style 1 (bold) is how headings show, 2 (italic) is emphasis; bits combine.
    static LightweightString<wchar_t> addStyleTags(const LightweightString<wchar_t>& text, int style, int start = -1, int end = -1);

    static LightweightString<wchar_t> addTags(const LightweightString<wchar_t>& text, std::wstring_view open, std::wstring_view close, int start,
                                              int end);
    // Plain text made safe to stand inside mark-up: & < > and " become entities,
    // which HTMLRenderer reads back as the characters. Apply before adding tags.
    static LightweightString<wchar_t> escape(const LightweightString<wchar_t>& text);

    // "#rrggbb", or "#rrggbbaa" when the colour is not opaque.
    static LightweightString<wchar_t> colourCode(const Colour& colour);
};
