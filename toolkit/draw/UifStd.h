#pragma once

#include "FontDesc.h"
#include "core/Palette.h"
#include "platform/UIString.h"

/// The source of every metric and of the appearance. Layout code asks it for row
/// heights, gaps and fonts instead of holding pixel numbers; every metric is a base
/// figure times the scale, so a scale of 2 makes the whole interface HiDPI.
class UifStd {
public:
    static UifStd& instance();

    int getRowHeight() const;
    int getRowGap() const;
    int getWidgetGap() const;
    // A thin inset, a few pixels: the width of rings and of the edges of a
    // dropped-down widget, the margin of a swatch in its button and of a control
    // in its row. It is as thick as a panel's border, so an inset of the border
    // less the indent is never negative.
    int getIndentWidth() const;
    // How far text steps in from where its column starts: one level of a tree, the
    // mark column before a menu's labels, a group's legend along its frame.
    int getTextIndent() const;
    // Where the legend of every titled row starts, from the row's left edge, so that
    // the legends of a panel's rows line up whatever their controls.
    int getLegendInset() const;
    int getBorderWidth() const;
    int getTitleHeight() const;
    double getScale() const { return scale_; }
    // Changes the scale of every metric; widgets hear of it through handleUIChange.
    void setScale(double scale);

    Glib::FontDesc getDefaultFont() const;
    Glib::FontDesc getTitleFont() const;
    Glib::FontDesc getSubheadingFont() const;
    Glib::FontDesc getMonospaceFont() const;
    const Palette& getColourScheme() const { return scheme_; }
    void setColourScheme(const Palette& p) { scheme_ = p; }
    // 0 dark, 1 light.
    int getTheme() const { return scheme_.isDark() ? 0 : 1; }
    // 0: new top-level windows cascade from the top left.
    int getWindowArrangement() const { return 0; }

    // The size of a text in the default font, one line high at least.
    XY<int> measure(const UIString& text) const;
    XY<int> measure(const LightweightString<wchar_t>& text, const Glib::FontDesc& font) const;

private:
    UifStd();
    int scaled(int base) const;

    double scale_ = 1.0;
    Palette scheme_;
};
