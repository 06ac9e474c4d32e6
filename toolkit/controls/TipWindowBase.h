#pragma once

#include "StandardPanel.h"
#include "glob/WidgetPosition.h"
#include "platform/UIString.h"

/// A small window of text that appears beside something on the screen: a
/// tooltip, a hint, a passing status. As a top-level glob it paints a pale face
/// with a thin frame; as the child of a panel it paints in the panel's colours,
/// like a label. The text is wrapped to the window's width and centred vertically
/// in textBox().
///
/// Tooltips: while the mouse rests on a glob whose contextString() (or whose
/// nearest ancestor's) is not empty, for tooltipDelay() milliseconds of
/// msecsNow(), a tip window with that text (and getTooltipDetails() on a line
/// below) opens below and right of the pointer. It closes when the mouse reaches
/// another glob, on any button or key, or when its glob goes; after a click the
/// same glob shows no tip again until the mouse has left it. Timing runs on the
/// toolkit's timer ticks.
class TipWindowBase : public StandardPanel {
public:
    /// What a tip window is made from: its text, the side it takes, and its spacing.
    struct InitArgs : StandardPanel::InitArgs {
        UIString text;
        // Which side of the thing it describes the window takes, and how far off.
        eWidgetRelativity relativity = kBelow;
        // Negative: the toolkit's widget gap.
        int gap = -1;
        // The margin around the text; negative: the toolkit's widget gap.
        int indent = -1;
        InitArgs() = default;
        InitArgs(const UIString& text, unsigned short width = 0, unsigned short height = 0) : StandardPanel::InitArgs(width, height), text(text) {}
    };

    explicit TipWindowBase(const InitArgs& args);
    const char* idstring() const override { return "TipWindowBase"; }

    // The size that shows `text` wrapped at no more than `maxTextWidth` (0: 18 row
    // heights) with `indent` around it (negative: the widget gap).
    static XY<int> calcSize(const UIString& text, int maxTextWidth = 0, int indent = -1);
    // The screen point of the bottom left of a window of `size` put beside `anchor`
    // (a box on the screen) on side `relativity`, `gap` away; it goes to the other
    // side when there is no room, and stays wholly on the screen where it fits.
    static XY<int> calcPosition(const BoxInt& anchor, const XY<int>& size, eWidgetRelativity relativity, int gap);
    XY<int> calcPosition(const BoxInt& anchor, const XY<int>& size) const;
    // Puts this top-level window beside `anchor` and realizes it.
    void showBeside(const BoxInt& anchor);

    void setText(const UIString& text, eRedrawFlag flag = kRedraw);
    const UIString& getText() const { return text_; }
    eWidgetRelativity getRelativity() const { return relativity_; }
    int getGap() const { return gap_; }
    int getIndent() const { return indent_; }
    virtual BoxInt textBox() const;

    void drawBackground() override;

    // Tooltips, for the whole toolkit.
    static void setTooltipDelay(int ms);
    static int tooltipDelay();
    static void setTooltipsEnabled(bool enabled);
    static bool tooltipsEnabled();
    // The open tooltip window, or null.
    static TipWindowBase* currentTooltip();
    static void closeTooltip();

private:
    UIString text_;
    eWidgetRelativity relativity_;
    int gap_;
    int indent_;
};
