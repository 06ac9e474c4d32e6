#pragma once

#include "TextBoxBase.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

class ScrollBar;

/// A plain-text editor for source text such as JSON: a monospace font, lines that
/// never wrap, a gutter of line numbers, and scroll bars both ways. Editing, the
/// selection, the clipboard, undo and the callbacks are those of every text box
/// (kCharTyped fires after each change the user makes); on top of them Return keeps
/// the indent of the line it breaks, Tab inserts spaces to the next multiple of
/// kTabWidth columns, and Home goes to the first character after the indent, then
/// to the start of the line. Escape fires kEscapePressed and leaves the text alone.
///
/// The text is laid out line by line, and only the lines in view are laid out and
/// painted, so a text of many thousands of lines costs what one screenful does.
class CodeEditor : public TextBoxBase {
public:
    /// What a CodeEditor is made from: its size and its first text.
    struct InitArgs : GlobCreationInfo {
        LightweightString<wchar_t> text;
        InitArgs() = default;
        InitArgs(const LightweightString<wchar_t>& t, unsigned short width, unsigned short height) : GlobCreationInfo(width, height), text(t) {}
    };

    static constexpr int kTabWidth = 4;

    explicit CodeEditor(const InitArgs& args);
    ~CodeEditor() override;
    const char* idstring() const override { return "CodeEditor"; }

    // The whole text, lines parted by '\n'. Setting it fires no callback, forgets
    // undo, and puts the caret at the start with the view scrolled to the top.
    void setText(const LightweightString<wchar_t>& text);
    const LightweightString<wchar_t>& getText() const { return getString(); }

    // Lines and columns count from 0; a column counts characters from the line's
    // start. Out-of-range arguments are clamped.
    int numLines() const;
    int lineOf(std::size_t index) const;
    int columnOf(std::size_t index) const;
    std::size_t lineStart(int line) const;
    // The index after the line's last character, before its '\n'.
    std::size_t lineEnd(int line) const;
    std::size_t indexOf(int line, int column) const;

    // The height of a line and the advance of one column, in pixels.
    int lineHeight() const;
    int columnWidth() const;
    // How far the text is scrolled right (x) and down (y), in pixels.
    XY<int> getScrollOffset() const { return scroll_; }
    void setScrollOffset(XY<int> pixels);
    // The area the text shows in, and the gutter of line numbers, in glob coordinates.
    BoxInt textView() const;
    BoxInt gutter() const;
    // The caret's box, in glob coordinates (it may lie outside the view).
    BoxInt caretBox() const;
    ScrollBar* verticalScrollBar() const { return vbar_; }
    ScrollBar* horizontalScrollBar() const { return hbar_; }

    int handleKeyboardEvent(int keyCode) override;
    int handleMouseEvent(const Event& e) override;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;
    void resize(double width, double height) override;
    void setFont(const Glib::FontDesc& font) override;
    void handleUIChange(unsigned int what) override;

protected:
    bool acceptsLineBreaks() const override { return true; }
    XY<int> textOrigin() const override;
    void scrollToCaret() override;
    bool moveCaretVertically(int lines, bool extend) override;
    std::size_t homeOf(std::size_t index) const override;
    std::size_t endOf(std::size_t index) const override;
    void drawText() override;
    int handleReturn() override;
    std::size_t nextCaretStop(std::size_t index, int direction) const override;
    bool isCaretStop(std::size_t index) const override;
    std::size_t indexAtPoint(XY<int> globPoint) const override;
    void invalidateLayout() override;

private:
    struct Metrics {
        int lineHeight = 1, columnWidth = 1;
    };

    const Metrics& metrics() const;
    // Where each line starts, found again after every change of the text.
    const std::vector<std::size_t>& starts() const;
    const Glib::TextLayout& lineLayout(int line) const;
    // The caret before `index`, in layout coordinates of the whole text.
    Glib::TextLayout::Rect caretRect(std::size_t index) const;
    XY<int> maxScroll() const;
    int contentWidth() const;
    int linesPerPage() const;
    void insertTab();
    void layoutScrollBars();
    void syncScrollBars();
    void drawGutter(int first, int last);
    void drawSelection(int first, int last, const BoxInt& view);

    ScrollBar* vbar_ = nullptr;
    ScrollBar* hbar_ = nullptr;
    XY<int> scroll_{0, 0};
    // The x that Up and Down keep to, and where the caret was when it was taken.
    int goalX_ = 0;
    std::size_t goalCaret_ = static_cast<std::size_t>(-1);
    mutable std::unique_ptr<Metrics> metrics_;
    mutable std::vector<std::size_t> starts_;
    mutable std::size_t longestLine_ = 0;
    // Layouts by the text of their line, so that an edit lays out again only the
    // lines it changed, wherever they move to.
    mutable std::unordered_map<std::wstring, std::unique_ptr<Glib::TextLayout>> lineLayouts_;
};
