#include "TableColumnDescription.h"

#include "draw/UifStd.h"

int TableColumnDescription::textMargin() { return UifStd::instance().getRowGap(); }

int TableColumnDescription::calcSizeFor(const LightweightString<wchar_t>& text, const Glib::FontDesc& font) {
    Glib::FontDesc f = font == Glib::FontDesc() ? UifStd::instance().getDefaultFont() : font.resolved();
    return Glib::measureText(text, f).x + 2 * textMargin();
}
