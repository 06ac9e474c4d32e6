#pragma once

#include "StandardPanel.h"
#include "draw/FontDesc.h"
#include "platform/UIString.h"

/// A labelled frame around a group of controls. The frame is a thin line a little
/// inside the group's edges; the legend sits at the top left and breaks the top
/// line. Children added at User positions lie inside the frame and below the
/// legend: getUserArea() is that inner box. With an empty legend the frame is
/// closed and the user area rises to just under the top line.
///
/// The legend is not a title bar: setTitle changes the legend. setActive passes on
/// to every child and dims the legend and the frame.
class WidgetGroup : public StandardPanel {
public:
    /// What a WidgetGroup is made from: its legend, its size and the legend's font.
    struct InitArgs : GlobCreationInfo {
        UIString title;
        Glib::FontDesc font;
        InitArgs() = default;
        InitArgs(const UIString& title, unsigned short width, unsigned short height) : GlobCreationInfo(width, height), title(title) {}
    };

    explicit WidgetGroup(const InitArgs& args);
    const char* idstring() const override { return "WidgetGroup"; }

    void setTitle(const UIString& title, const Glib::FontDesc& font = {}, eRedrawFlag flag = kRedraw) override;
    const UIString& getTitle() const { return legend_; }

    // The frame's line, and the space it keeps between the frame and the user area.
    static int frameWidth();
    static int frameInset();
    // The height taken above the user area by a legend in `font` (by the top line without one).
    static int legendHeight(bool hasLegend, const Glib::FontDesc& font = {});
    // The size of a group whose user area is `userSize`.
    static XY<int> calcSizeForContents(const XY<int>& userSize, const UIString& title, const Glib::FontDesc& font = {});
    // The height of a group with a legend holding `rows` rows of `rowHeight`, `rowGap` apart.
    static int calcHeightForRows(int rows, int rowHeight, int rowGap);
    // The same for a group with a legend (`legend` non-zero) or without one.
    static int calcHeightForRows(int rows, int rowHeight, int rowGap, int legend);

    BoxInt getUserArea() const override;
    // Where the frame's line runs, and the box the legend is written in.
    BoxInt frameBox() const;
    BoxInt legendBox() const;

    void setActive(bool active, eRedrawFlag flag = kRedraw) override;
    void drawBackground() override;
    void drawBorder() override;
    void handleUIChange(unsigned int what) override;

private:
    UIString legend_;
    Glib::FontDesc requestedFont_, font_;
};
