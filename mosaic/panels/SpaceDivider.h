#pragma once

#include "controls/Splitter.h"
#include "frame/OccludedChildWidget.h"

/// Divides its area between two child widgets with a draggable Splitter, side by side
/// or one above the other, and keeps the split as a fraction so that it survives
/// resizing. The first widget is the left or the lower one. The split position is
/// where the middle of the splitter stands, as a fraction of the length from the
/// first widget's outer edge (the left, or the bottom), 0.0 to 1.0, in both
/// orientations alike. A child's minimum size wins over the asked split, and the
/// position then follows what the children accepted. The divider owns both widgets.
/// User-interface thread only.
class SpaceDivider : public OccludedChildWidget {
public:
    enum eWidgetId { kFirst = 0, kSecond = 1 };

    /// What a SpaceDivider is made from: the orientation, the two widgets (made
    /// beforehand, unparented; either may be null) and the initial split.
    struct InitArgs : StandardPanel::InitArgs {
        Splitter::Orientation orientation = Splitter::kSideBySide;
        Glob* widgets[2] = {nullptr, nullptr};
        float splitPos = 0.5f;
        InitArgs() = default;
        InitArgs(unsigned short width, unsigned short height, Splitter::Orientation o, Glob* first, Glob* second, float pos = 0.5f)
            : StandardPanel::InitArgs(width, height), orientation(o), widgets{first, second}, splitPos(pos) {}
    };

    explicit SpaceDivider(const InitArgs& args);
    const char* idstring() const override { return "SpaceDivider"; }

    // Clamped to 0.0 to 1.0; the children are laid out again at the present size.
    void setSplitPos(float pos);
    float getSplitPos() const { return splitPos_; }
    // Takes the split from that widget's present length.
    void setSplitPosFromWidget(eWidgetId id);
    void setWidgetVisible(eWidgetId id, bool visible);
    // Removes the widget (deleted after the current call) and the splitter with it.
    void destroyWidget(eWidgetId id, eRedrawFlag flag);
    Glob* getWidget(eWidgetId id) const { return widgets_[id]; }
    Splitter* getSplitter() const { return splitter_; }
    Splitter::Orientation orientation() const { return orientation_; }

    // The size the split asks for the widget, in the user area or in `total`.
    XY<int> calcWidgetSize(eWidgetId id) const;
    XY<int> calcWidgetSize(const XY<int>& total, eWidgetId id) const;

    void setPalette(const Palette& p) override;
    void resize(double width, double height) override;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;

private:
    void createSplitter();
    void layout();
    void fillWith(Glob* only);
    int along(const XY<int>& p) const { return orientation_ == Splitter::kSideBySide ? p.x : p.y; }
    int across(const XY<int>& p) const { return orientation_ == Splitter::kSideBySide ? p.y : p.x; }
    XY<int> make(int alongAxis, int acrossAxis) const;
    bool bothShowing() const;

    Splitter* splitter_ = nullptr;
    Splitter::Orientation orientation_;
    Glob* widgets_[2] = {nullptr, nullptr};
    float splitPos_;
};
