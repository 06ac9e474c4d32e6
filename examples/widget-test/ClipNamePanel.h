#pragma once

#include "controls/StandardPanel.h"

class TextBox;

// A small panel that renames a clip: a text box named "name" that shows the clip's
// name, and a button named "rename" that takes what the box holds. A name of
// nothing but spaces is refused, and the box shows the old name again.
class ClipNamePanel : public StandardPanel {
public:
    explicit ClipNamePanel(const LightweightString<wchar_t>& clipName);
    const char* idstring() const override { return "ClipNamePanel"; }

    const LightweightString<wchar_t>& clipName() const { return clipName_; }

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;

private:
    TextBox* box_ = nullptr;
    LightweightString<wchar_t> clipName_;
};
