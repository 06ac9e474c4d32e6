#include "LoggedItem.h"

#include "tasks/HyperLink.h"

LoggedItem::LoggedItem(const LightweightString<wchar_t>& t, const Colour& ink, const Colour& back, const Glib::FontDesc& f, LoggerBase::eOutputType k)
    : LoggerBase::Item(t, k, 0), textColour(ink), backColour(back), font(f) {}

Colour LoggedItem::textColourFor(LoggerBase::eOutputType type, const Palette& palette) {
    switch (type) {
    case LoggerBase::otWarning: return Colour(1.0, 1.0, 0.0);
    case LoggerBase::otEmphasis: return palette.text(kTextDimmed);
    case LoggerBase::otError: return palette.warning();
    case LoggerBase::otStatus:
    case LoggerBase::otHeading:
    case LoggerBase::otSection: return palette.subheadingText();
    case LoggerBase::otSuccess: return Colour(0.1, 0.7, 0.3);
    default: return palette.text(kTextNormal);
    }
}

LightweightString<wchar_t> LoggedItem::displayText() const {
    if (type != LoggerBase::otHyperLink) return text;
    return LoggerBase::HyperLink::fromString(text).getDescription();
}
