#pragma once

#include "TextBoxBase.h"

/// An editable text of several lines, wrapped at the box's width between words.
/// Return starts a new line (Control+Return commits, as Return does in a one-line
/// box); Up and Down move the caret by lines and keep to the column it came from;
/// the text scrolls up and down to keep the caret in view, and with the wheel.
///
/// Not editable, it is a label of wrapped text.
class MultiLineTextBox : public TextBoxBase {
public:
    /// What a MultiLineTextBox is made from: its size and its first text.
    struct InitArgs : GlobCreationInfo {
        UIString text;
        InitArgs() = default;
        InitArgs(const UIString& t, unsigned short width = 0, unsigned short height = 0) : GlobCreationInfo(width, height), text(t) {}
    };

    explicit MultiLineTextBox(const InitArgs& args);
    const char* idstring() const override { return "MultiLineTextBox"; }

    // The height of a box that shows `lines` lines of the default font at
    // `fontSize` (0: the default size) with `margin` above and below (below 0:
    // the default margin).
    static int calcHeightForLines(int lines, int fontSize = 0, int margin = -1);
    // The width at which a box `boxWidth` wide with the default margin wraps its
    // text: what to measure a text at to size a box for it before making the box.
    static int calcWrapWidth(int boxWidth);
    // How many lines the text takes at the box's present width.
    virtual int numDisplayLines() const { return layout().numLines(); }
    // How far the text is scrolled up, in pixels.
    int getScrollOffset() const { return scrollY_; }
    void setScrollOffset(int pixels);

    int handleKeyboardEvent(int keyCode) override;
    int handleMouseEvent(const Event& e) override;

protected:
    int wrapWidth() const override;
    bool acceptsLineBreaks() const override { return true; }
    XY<int> textOrigin() const override;
    void scrollToCaret() override;
    bool moveCaretVertically(int lines, bool extend) override;
    std::size_t homeOf(std::size_t index) const override;
    std::size_t endOf(std::size_t index) const override;
    int handleReturn() override;

private:
    int maxScroll() const;
    int linesPerPage() const;
    bool fitsWithoutScrolling() const;

    int scrollY_ = 0;
    // The column that Up and Down keep to, and where the caret was when it was taken.
    int goalX_ = 0;
    std::size_t goalCaret_ = static_cast<std::size_t>(-1);
};
