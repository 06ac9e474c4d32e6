#pragma once

#include "core/Colour.h"
#include "draw/FontDesc.h"
#include "platform/UIString.h"

/// One column of a TableWidget as its adaptor describes it: a title for the header,
/// a width (0 shares out what the fixed columns leave), whether the user may drag
/// its edge, an optional background colour and a sort key for the adaptor's use.
class TableColumnDescription {
public:
    TableColumnDescription() = default;
    explicit TableColumnDescription(const UIString& title, int width = 0, bool resizeable = true)
        : title_(title), width_(width < 0 ? 0 : width), resizeable_(resizeable) {}

    void setTitle(const UIString& title) { title_ = title; }
    const UIString& getTitle() const { return title_; }
    // Negative widths count as 0.
    void setWidth(int width) { width_ = width < 0 ? 0 : width; }
    int getWidth() const { return width_; }
    void setResizeable(bool r) { resizeable_ = r; }
    bool isResizeable() const { return resizeable_; }
    void setColour(const Colour& c) {
        colour_ = c;
        hasColour_ = true;
    }
    void clearColour() { hasColour_ = false; }
    bool hasColour() const { return hasColour_; }
    const Colour& getColour() const { return colour_; }
    void setSortKey(const LightweightString<char>& key) { sortKey_ = key; }
    const LightweightString<char>& getSortKey() const { return sortKey_; }

    // The space between a cell's edge and its text.
    static int textMargin();
    // The width of a column that shows `text` in `font` (the default font when empty) whole.
    static int calcSizeFor(const LightweightString<wchar_t>& text, const Glib::FontDesc& font = {});

private:
    UIString title_;
    int width_ = 0;
    bool resizeable_ = true;
    bool hasColour_ = false;
    Colour colour_;
    LightweightString<char> sortKey_;
};
