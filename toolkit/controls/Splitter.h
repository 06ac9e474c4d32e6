#pragma once

#include "StandardPanel.h"

/// The draggable bar between two panes that lie side by side (a vertical bar) or
/// one above the other (a horizontal bar). The bar and both panes are children of
/// the same parent.
///
/// While the bar is dragged it calls kMoveMsg on its parent at once, for every
/// step, and kMovedMsg when the button is released; a parent that lays out its
/// panes itself listens for these and reads the mouse. A bar given its panes
/// (InitArgs or setPanes) lays them out itself as it moves: the first pane (the
/// left, or the lower) ends where the bar begins, the second (the right, or the
/// upper) begins where the bar ends, and the outer edges of the two stay where they
/// were. Neither pane is made smaller than its minimum size (the larger of the one
/// set here and the pane's own getMinSize()); a drag past the ends stops there.
/// When both minimums cannot be met the first pane's wins.
///
/// Panes that the bar lays out are placed at absolute positions in their parent.
class Splitter : public StandardPanel {
public:
    // 0: panes one above the other, the bar lies across; 1: panes side by side, the bar stands up.
    enum Orientation { kAboveEachOther = 0, kSideBySide = 1 };

    static constexpr const char* kMoveMsg = "SplitterMove";
    static constexpr const char* kMovedMsg = "SplitterMoved";

    /// What a Splitter is made from: its orientation and, when it lays them out, its
    /// two panes and their minimum sizes.
    struct InitArgs : StandardPanel::InitArgs {
        Orientation orientation = kSideBySide;
        Glob* first = nullptr;
        Glob* second = nullptr;
        unsigned short minFirst = 0;
        unsigned short minSecond = 0;
        InitArgs() = default;
        // The bar's size follows from the orientation and its length across the panes.
        InitArgs(Orientation o, unsigned short length);
    };

    explicit Splitter(const InitArgs& args);
    const char* idstring() const override { return "Splitter"; }

    // The bar's thickness along the axis of the split.
    static int calcThickness();
    // The size of a bar of this orientation that is `length` long across the split.
    static XY<int> calcDimensions(Orientation orientation, unsigned short length);

    Orientation orientation() const { return orientation_; }
    // Both panes must be children of the bar's parent, else the bar keeps none.
    void setPanes(Glob* first, Glob* second);
    Glob* firstPane() const;
    Glob* secondPane() const;
    void setMinSizes(unsigned short first, unsigned short second);

    // Where the bar begins along the axis, in its parent's coordinates.
    int getPosition() const;
    // The range getPosition() may take: with panes, what their minimums allow
    // between their outer edges; without, the parent's user area.
    std::pair<int, int> positionRange() const;
    // Puts the bar at `position`, clamped to positionRange(), and lays the panes out.
    // Returns where the bar went.
    int moveTo(int position, eRedrawFlag flag = kRedraw);
    bool isDragging() const { return dragging_; }

    int handleMouseEvent(const Event& e) override;
    void handleMouseContainment(bool inside) override;
    void drawBackground() override;

private:
    int along(const XY<int>& p) const { return orientation_ == kSideBySide ? p.x : p.y; }
    int lengthOf(const Glob* g) const { return orientation_ == kSideBySide ? g->width() : g->height(); }
    int minOf(const Glob* g, unsigned short own) const;
    void layoutPanes();

    Orientation orientation_;
    Glob* first_ = nullptr;
    Glob* second_ = nullptr;
    IdStamp firstStamp_, secondStamp_;
    unsigned short minFirst_, minSecond_;
    bool dragging_ = false;
    bool hot_ = false;
    int grab_ = 0;
};
