#pragma once

#include "StandardPanel.h"

#include <vector>

class ScrollBar;

/// A panel whose rows scroll vertically: the rows are children of an inner panel,
/// `content`, which is as tall as the rows need and slides inside a clipping view,
/// with a ScrollBar at the right that appears when the rows do not fit.
///
/// createManagedWidget makes a row and stacks it: each below the one before it, or,
/// with the flag kStackUpward, the newest at the bottom and the older ones above it.
/// The view starts at the top (at the bottom when stacking upward); the wheel, the
/// bar, Page Up, Page Down, Home and End that no row took move it. Rows that were
/// made as wide as the content follow it when the panel is resized.
class VerticalScrollingBase : public StandardPanel {
public:
    enum Flags : unsigned { kStackUpward = 4 };

    /// What a VerticalScrollingBase is made from: its size, the gap between rows, and flags such as kStackUpward.
    struct InitArgs : StandardPanel::InitArgs {
        // The gap between rows; 0xFFFF asks for UifStd's row gap.
        unsigned short rowGap = 0xFFFF;
        unsigned flags = 0;
        InitArgs() = default;
        InitArgs(unsigned short w, unsigned short h, unsigned f = 0) : StandardPanel::InitArgs(w, h), flags(f) {}
    };

    explicit VerticalScrollingBase(const InitArgs& args);
    ~VerticalScrollingBase() override;
    const char* idstring() const override { return "VerticalScrollingBase"; }

    // Makes a row from its record in the content and stacks it; a width of 0 is the
    // content's width. The panel owns the row through the content.
    template <class T>
    T* createManagedWidget(const typename T::InitArgs& args, WidgetSurround surround = {}) {
        bool upward = (flags & kStackUpward) != 0;
        WidgetPosition pos(upward ? kBottomLeft : kTopLeft, {0, 0});
        if (!rows.empty() && !upward) pos = WidgetPosition(SiblingRelativePosition{kBelow, rows.back(), rowGap, kAlignStart});
        typename T::InitArgs a(args);
        if (a.width == 0) a.width = content->getUserArea().width();
        a.canvas = content->canvas();
        a.palette = content->getPalette();
        T* row = new T(a);
        content->addChild(row, pos, surround);
        rows.push_back(row);
        if (upward && rows.size() >= 2) {
            Glob* moved = row;
            Glob* before = rows[rows.size() - 2];
            content->removeWidget(moved, false);
            content->addWidget(row, 0, 0, kBottomLeft, surround, before);
            content->setWidgetRelativity(before, SiblingRelativePosition{kAbove, row, rowGap, kAlignStart});
        }
        recalcWidgetsHeight();
        resetView();
        return row;
    }

    // Takes a row out and deletes it; the rows below (or above) close the gap.
    void removeManagedWidget(Glob* row);
    void clearManagedWidgets();

    // Makes the content as tall as the rows, and puts the view back in range.
    void recalcWidgetsHeight();
    // Back to the first rows: the top, or the bottom when stacking upward.
    void resetView();
    // The view's distance from the top of the content, in pixels.
    int scrollOffset() const { return offset_; }
    int maxScrollOffset() const;
    void scrollTo(int offset);
    // Scrolls as little as needed to show the whole row (its top, if it is taller than the view).
    void revealWidget(Glob* row);
    int viewHeight() const;
    ScrollBar* scrollBar() const { return bar_; }

    void resize(double w, double h) override;
    int handleMouseEvent(const Event& e) override;
    int handleKeyboardEvent(int key) override;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;

    // The rows' parent, the rows in order of creation, the gap between them, and the flags.
    StandardPanel* content = nullptr;
    std::vector<Glob*> rows;
    unsigned short rowGap;
    unsigned flags;

private:
    void placeContent();
    void updateBar();
    void layout();

    Glob* viewport_ = nullptr;
    ScrollBar* bar_ = nullptr;
    int offset_ = 0;
};
