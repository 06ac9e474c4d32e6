#include "CustomTextBox.h"

#include "core/KeyCodes.h"
#include "glob/Messaging.h"

CustomTextBox::CustomTextBox(const InitArgs& args) : TextBox(args) {}

void CustomTextBox::highlightAllText(bool all) {
    if (highlightAllowed_) TextBox::highlightAllText(all);
}

int CustomTextBox::tellParent(const char* message) {
    if (parent()) callMessage(message, parent(), this);
    return 1;
}

int CustomTextBox::react(const Event& e) {
    if (e.type() != Event::kTextInput || e.typedText().size() < 2) return TextBox::react(e);
    const LightweightString<wchar_t>& typed = e.typedText();
    for (wchar_t c : typed) {
        Glob* target = get_kbd_focus();
        if (!target) break;
        target->react(Event::text(LightweightString<wchar_t>(1, c)));
    }
    return 1;
}

int CustomTextBox::handleKeyboardEvent(int keyCode) {
    constexpr int kShiftTab = Keys::Tab | static_cast<int>(Modifiers::Shift);
    const bool atEnd = getCursorPosition() >= getString().size() && !hasSelection();
    const bool atStart = getCursorPosition() == 0 && !hasSelection();
    switch (keyCode) {
    case Keys::Tab:
    case kShiftTab: return 0;
    case Keys::Paste:
        // A dotted text is a whole address for the parent; a lone number pastes here.
        if (getClipboardText().find(L'.') != LightweightString<wchar_t>::npos) return tellParent(kPasteMsg);
        break;
    case '.':
    case Keys::Right:
        if (atEnd) return tellParent(kNextMsg);
        break;
    case Keys::Backspace:
    case Keys::Left:
        if (atStart) return tellParent(kPrevMsg);
        break;
    default: break;
    }
    const GlobHandle<Glob> alive(this);
    int taken = TextBox::handleKeyboardEvent(keyCode);
    if (!alive) return taken;
    const bool typed = Keys::isPrintable(keyCode) || keyCode == Keys::Paste;
    const bool full = getSizeLimit() > 0 && getString().size() >= getSizeLimit();
    if (typed && full && getCursorPosition() >= getString().size()) tellParent(kNextMsg);
    return typed ? 1 : taken;
}
