#pragma once

#include "core/Colour.h"
#include "core/Palette.h"
#include "draw/FontDesc.h"
#include "tasks/LoggerBase.h"

/// One display row of a Logger: a line of a log item with the colours and the font
/// it shows in, and its measured width and line count. A multi-line item makes one
/// row per line. A blank row has empty text and kind otNormal.
class LoggedItem : public LoggerBase::Item {
public:
    LoggedItem() = default;
    LoggedItem(const LightweightString<wchar_t>& text, const Colour& textColour, const Colour& backColour, const Glib::FontDesc& font,
               LoggerBase::eOutputType type);
    LoggedItem(const LoggedItem&) = default;
    LoggedItem(LoggedItem&&) = default;
    LoggedItem& operator=(const LoggedItem&) = default;
    LoggedItem& operator=(LoggedItem&&) = default;

    // The colour a row of `type` is painted in; kinds past otSuccess as otNormal.
    static Colour textColourFor(LoggerBase::eOutputType type, const Palette& palette);
    // The text a row shows: a link's description for otHyperLink, else the text.
    LightweightString<wchar_t> displayText() const;

    Colour textColour;
    Colour backColour;
    Glib::FontDesc font;
    unsigned short numLines = 1;
    unsigned short textWidth = 0;
};
