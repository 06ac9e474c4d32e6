#pragma once

#include "controls/TextBox.h"

/// One box of a compound entry that reads as a single line (an address, say): it
/// tells its parent at once, by a direct call, when the caret leaves it at either
/// end or it fills up, so that the next key typed already lands in the next box.
/// The parent hears "next", "prev" and, when the clipboard holds a dotted text,
/// "paste"; Tab and Shift+Tab are left to the parent.
class CustomTextBox : public TextBox {
public:
    static constexpr const char* kNextMsg = "next";
    static constexpr const char* kPrevMsg = "prev";
    static constexpr const char* kPasteMsg = "paste";

    explicit CustomTextBox(const InitArgs& args);
    const char* idstring() const override { return "CustomTextBox"; }

    // Text that comes in one piece (an input method's commit) goes in a character
    // at a time, each to the box that has the focus by then.
    int react(const Event& e) override;
    int handleKeyboardEvent(int keyCode) override;
    // Passed on only while allowed: the parent switches it off to move the caret
    // into this box without the focus gain selecting the whole text.
    void highlightAllText(bool all) override;
    void allowHighlightAll(bool allow) { highlightAllowed_ = allow; }
    // What a paste would bring in.
    LightweightString<wchar_t> clipboardText() const { return getClipboardText(); }

private:
    int tellParent(const char* message);

    bool highlightAllowed_ = true;
};
