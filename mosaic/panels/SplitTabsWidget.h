#pragma once

#include "controls/Splitter.h"
#include "controls/TabbedDialogue.h"
#include "frame/OccludedChildWidget.h"

#include <vector>

/// Two groups of tab pages side by side with a splitter between them, folded into
/// one set of tabs (the right group's pages behind the left's) when the width is not
/// enough: below the coalesce width, or when either group would be narrower than its
/// widest page's minimum. The state is looked at again on every resize; the pages
/// are the same objects in both states and only move between the tab dialogues.
/// The split position is where the splitter's middle stands, as a fraction of the
/// user area's width from its left. The widget owns the pages. User-interface
/// thread only.
class SplitTabsWidget : public OccludedChildWidget {
public:
    /// One page: its widget (made beforehand, unparented) and its tab's title.
    struct Page {
        Glob* glob = nullptr;
        UIString title;
    };
    /// What a SplitTabsWidget is made from: the two groups of pages, the width below
    /// which they are always in one group, and the tab style (0 the standard tabs,
    /// otherwise tall tabs that share the width).
    struct InitArgs : StandardPanel::InitArgs {
        std::vector<Page> leftPages;
        std::vector<Page> rightPages;
        unsigned short coalesceWidth = 0;
        unsigned char tabStyle = 0;
        InitArgs() = default;
        InitArgs(unsigned short width, unsigned short height) : StandardPanel::InitArgs(width, height) {}
    };

    explicit SplitTabsWidget(const InitArgs& args);
    const char* idstring() const override { return "SplitTabsWidget"; }

    bool isCoalesced() const { return rightTabs_ == nullptr; }
    bool shouldBeCoalesced() const;
    TabbedDialogue* leftTabs() const { return leftTabs_; }
    TabbedDialogue* rightTabs() const { return rightTabs_; }
    Splitter* splitter() const { return splitter_; }
    float getSplitPos() const { return splitPos_; }
    unsigned tabFlags() const;

    int calcLeftTabsWidth() const;
    int calcMinWidth(const std::vector<Page>& pages) const;
    // Raises the widget's own minimum size so that the page fits under the tabs.
    void addMinSizeConstraint(const Glob* glob);

    void resize(double width, double height) override;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;

protected:
    // Called as the two groups fold into one, and as they part again.
    virtual void handleTabsMerge() {}
    virtual void handleTabsSplit() {}

private:
    void createWidgets();
    void calcSplitterRange();
    void makeRightGroup();
    void layout();
    void addPages(TabbedDialogue* tabs, const std::vector<Page>& pages);
    int userWidth() const { return getUserArea().width(); }

    TabbedDialogue* leftTabs_ = nullptr;
    TabbedDialogue* rightTabs_ = nullptr;
    Splitter* splitter_ = nullptr;
    std::vector<Page> leftPages_;
    std::vector<Page> rightPages_;
    unsigned short coalesceWidth_;
    float splitPos_ = 0.5f;
    unsigned char tabStyle_;
    unsigned short rangeLow_ = 0;
    unsigned short rangeHigh_ = 0;
};
