#pragma once

#include "StandardPanel.h"
#include "core/WidgetCallback.h"
#include "draw/GlibDescriptions.h"
#include "draw/TextLayout.h"
#include "glob/TabOrderManager.h"

#include <array>
#include <memory>
#include <optional>

/// What every editable text control shares: the text with its caret and selection,
/// editing by keyboard and mouse, the clipboard, undo of the last edit, limits on
/// what may be typed, a placeholder, obfuscated display, and the callbacks that
/// tell the owner about typing, commits and cancels. How the text is placed (one
/// scrolling line, or wrapped lines) is the subclass's part.
///
/// Typed characters arrive as text events. The key presses that come with them are
/// swallowed, so a character never goes in twice; a text event of one character
/// goes through handleKeyboardEvent like any key, so a subclass can act on it, and
/// a longer one (an input method's commit) goes in as one edit.
///
/// Callbacks are not run inside the box's own handling: a callback given as a
/// WidgetCallback with a function runs at once, after the box has finished its
/// change; a named message is posted and, when it arrives, is offered to the
/// target and then to the target's parents until one takes it.
class TextBoxBase : public StandardPanel, public TabOrderable {
public:
    // What a callback reports. kCharTyped comes with every change the user makes
    // to the text (typing, deleting, pasting, cutting, undoing), not only typing.
    enum eCallbackEvent { kFocusLost = 1, kCharTyped = 2, kReturnPressed = 3, kEscapePressed = 4, kNumCallbackEvents = 5 };
    // Which typed characters go in: all, only those listed, or all but those listed.
    enum eCharacterRestriction { kAnyCharacters = 0, kOnlyCharacters = 1, kExceptCharacters = 2 };
    using TextAlignment = Glib::TextAlignment;

    TextBoxBase(const GlobCreationInfo& info, const LightweightString<wchar_t>& text);
    ~TextBoxBase() override;

    // The text. Setting it from code fires no callback, forgets the undo step, puts
    // the caret at the end, and becomes the text that Escape goes back to.
    virtual void setString(const LightweightString<wchar_t>& text, eRedrawFlag flag = kRedraw);
    void setString(const UIString& text, eRedrawFlag flag = kRedraw) { setString(text.getString(), flag); }
    void setString(const wchar_t* text, eRedrawFlag flag = kRedraw) { setString(LightweightString<wchar_t>(text), flag); }
    const LightweightString<wchar_t>& getString() const { return text_; }
    // Shown, dimmed, while the text is empty and the box has no focus.
    void setPlaceholder(const UIString& text);
    const UIString& getPlaceholder() const { return placeholder_; }

    // A box that is not editable only shows its text: no frame, no focus, no caret.
    void setEditable(bool editable);
    bool isEditable() const { return editable_; }
    void setCharacters(const LightweightString<wchar_t>& characters, eCharacterRestriction restriction);
    // The most characters the user may bring the text to; 0 for no limit. Text set
    // from code is not cut.
    void setSizeLimit(unsigned long maxCharacters) { sizeLimit_ = maxCharacters; }
    unsigned long getSizeLimit() const { return sizeLimit_; }
    void setAlignment(TextAlignment alignment);
    TextAlignment getAlignment() const { return alignment_; }
    // Shows a bullet for every character; copying and cutting are refused meanwhile.
    void setObfuscatedDisplay(bool obfuscated);
    bool isObfuscatedDisplay() const { return obfuscated_; }

    // The caret and the selection, which runs from the anchor to the caret.
    std::size_t getCursorPosition() const { return caret_; }
    void setCursorPosition(std::size_t index, bool extendSelection = false);
    void setSelection(std::size_t anchor, std::size_t caret);
    std::size_t selectionStart() const { return std::min(anchor_, caret_); }
    std::size_t selectionEnd() const { return std::max(anchor_, caret_); }
    bool hasSelection() const { return anchor_ != caret_; }
    LightweightString<wchar_t> getSelectedText() const;
    // True selects the whole text, false leaves only the caret.
    virtual void highlightAllText(bool all);

    // Edits as the user makes them: they respect the limits, can be undone and
    // fire kCharTyped. insertText replaces the selection and returns false when
    // nothing changed.
    bool insertText(const LightweightString<wchar_t>& text);
    void cut();
    void copy() const;
    void paste();
    // One step back, and forward again; false when there was nothing to do.
    bool undo();
    bool redo();
    bool canUndo() const { return undo_.has_value(); }

    void requestCallback(const WidgetCallback& callback, eCallbackEvent event);
    // Sends `message` to `target`, or to the box's owner when `target` is null.
    void requestCallback(const LightweightString<char>& message, EventHandler* target, eCallbackEvent event);

    int react(const Event& e) override;
    int handleKeyboardEvent(int keyCode) override;
    int handleMouseEvent(const Event& e) override;
    int handleDataMessageEvent(const LightweightString<char>& message, Glob* sender, const Zn::Ptr<iObject>& data) override;
    bool acceptsKbdFocus() const override;
    void handleKbdFocus(bool gained) override;
    MouseCursorID contextCursor(const XY<int>& p) const override;
    Glob* tabGlob() override { return this; }
    bool canTakeTabFocus() override { return acceptsKbdFocus(); }

    void setFont(const Glib::FontDesc& font) override;
    void resize(double width, double height) override;
    void handleUIChange(unsigned int what) override;
    void setActive(bool active, eRedrawFlag flag = kRedraw) override;
    void drawBackground() override;

    // The space between the box's edge and its text, the frame included.
    int getMargin() const { return margin_; }
    void setMargin(int margin);
    static int defaultMargin();

protected:
    // How the text is placed: the width lines wrap at (0: one line), whether a line
    // feed may be typed, and where the layout's top left lies in this glob
    // (bottom-up: y is its top edge).
    virtual int wrapWidth() const { return 0; }
    virtual bool acceptsLineBreaks() const { return false; }
    virtual XY<int> textOrigin() const = 0;
    // Scrolls, if the subclass scrolls, so that the caret is in view.
    virtual void scrollToCaret() {}
    // Moves the caret by whole lines; a single line has none to move to.
    virtual bool moveCaretVertically(int /*lines*/, bool /*extend*/) { return false; }
    // The start and end of the caret's line, for Home and End.
    virtual std::size_t homeOf(std::size_t index) const;
    virtual std::size_t endOf(std::size_t index) const;
    // What is drawn for the text: bullets when obfuscated. Same length as the text.
    virtual LightweightString<wchar_t> displayText() const;
    // Paints the text, its selection and the caret over the background.
    virtual void drawText();
    // Paints over the text, under the selection: links, marks. `clip` is the
    // area inside the frame.
    virtual void decorateText(const BoxInt& /*clip*/) {}
    // Where the caret may stand, and the index nearest a point of this glob. The
    // layout of the whole text answers by default; a subclass that lays out its
    // text in pieces answers from those.
    virtual std::size_t nextCaretStop(std::size_t index, int direction) const;
    virtual bool isCaretStop(std::size_t index) const;
    virtual std::size_t indexAtPoint(XY<int> globPoint) const;

    // Takes the text as the user's final word: Escape goes back to it from now on.
    // A bound box passes it on to its data here.
    virtual void commit();
    // Return: commits and fires kReturnPressed; a multi-line box inserts a line instead.
    virtual int handleReturn();
    // Called after every change the user makes, before kCharTyped fires.
    virtual void textEdited() {}

    // The clipboard: the system's by default.
    virtual LightweightString<wchar_t> getClipboardText() const;
    virtual void setClipboardText(const LightweightString<wchar_t>& text) const;

    // The area inside the margin, and the layout of the displayed text.
    BoxInt textArea() const;
    // The box inside the frame, to which text is clipped.
    BoxInt insideFrame() const;
    const Glib::TextLayout& layout() const;
    // Glob coordinates of a layout point, and the other way.
    XY<int> toGlob(XY<int> layoutPoint) const;
    XY<int> toLayout(XY<int> globPoint) const;
    // A box of the layout in glob coordinates.
    BoxInt layoutBox(const Glib::TextLayout::Rect& r) const;
    static int caretWidth();
    bool showsCaret() const;
    // The text that Escape restores.
    const LightweightString<wchar_t>& committedText() const { return committed_; }
    // The modifier keys held with the key now being handled; none for a direct call.
    unsigned keyModifiers() const { return keyModifiers_; }
    void moveCaret(std::size_t index, bool extend);
    // Runs the callback of `event`; false when this box died meanwhile.
    bool fireCallback(eCallbackEvent event);
    // Forgets the layout after a change of text, font or size.
    virtual void invalidateLayout();

private:
    struct Snapshot {
        LightweightString<wchar_t> text;
        std::size_t caret = 0, anchor = 0;
    };
    enum EditKind { kTyping, kDeleting, kOtherEdit };
    struct Callback {
        WidgetCallback callback;
        EventHandler* target = nullptr;
        IdStamp stamp;
    };

    LightweightString<wchar_t> filterInput(const LightweightString<wchar_t>& text) const;
    bool replaceSelection(const LightweightString<wchar_t>& text, EditKind kind);
    void applySnapshot(const Snapshot& s);
    std::size_t wordStart(std::size_t index) const;
    std::size_t wordEnd(std::size_t index) const;
    // Selects the run of word characters, spaces or punctuation at `index`.
    void selectRunAround(std::size_t index);
    int handleEscape();
    void deleteBackwards(bool word);
    void deleteForwards(bool word);

    LightweightString<wchar_t> text_, committed_;
    UIString placeholder_;
    std::size_t caret_ = 0, anchor_ = 0;
    bool editable_ = true;
    bool obfuscated_ = false;
    bool dragging_ = false;
    LightweightString<wchar_t> characters_;
    eCharacterRestriction restriction_ = kAnyCharacters;
    unsigned long sizeLimit_ = 0;
    TextAlignment alignment_;
    int margin_;
    unsigned keyModifiers_ = 0;
    std::optional<Snapshot> undo_, redo_;
    EditKind lastEdit_ = kOtherEdit;
    std::array<Callback, kNumCallbackEvents> callbacks_;
    mutable std::unique_ptr<Glib::TextLayout> layout_;
};
