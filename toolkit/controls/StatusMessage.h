#pragma once

#include "TipWindowBase.h"

class PushButton;

/// A passing message: a TipWindowBase whose text goes after a time. When the time
/// is up a top-level status window closes (by a deletion requested from
/// GlobManager), and one that is the child of a panel (a status line) empties its
/// text and stays. The time is measured with msecsNow() on the toolkit's timer
/// ticks. With the flag kOkButton it has an OK button under the text, which calls
/// handleOkPressed: by default it goes as if its time were up.
class StatusMessage : public TipWindowBase {
public:
    enum Flags : unsigned { kOkButton = 8 };
    static constexpr const char* kOkMsg = "StatusOk";

    /// What a StatusMessage is made from: a tip window's record, how long the text
    /// stays, and flags such as kOkButton.
    struct InitArgs : TipWindowBase::InitArgs {
        // 0: the text stays until replaced or closed.
        int timeoutMs = 0;
        unsigned flags = 0;
        InitArgs() = default;
        InitArgs(const UIString& text, unsigned short width, unsigned short height, int timeoutMs = 0, unsigned flags = 0)
            : TipWindowBase::InitArgs(text, width, height), timeoutMs(timeoutMs), flags(flags) {}
    };

    explicit StatusMessage(const InitArgs& args);
    const char* idstring() const override { return "StatusMessage"; }

    // The size that shows `text` with room for the OK button when `flags` asks for it.
    // The relativity does not change the size; it is taken so that a caller states it once.
    static XY<int> calcSize(const UIString& text, eWidgetRelativity relativity = kBelow, unsigned flags = 0);

    // Shows a new text for `timeoutMs` (0: until replaced), starting the time again.
    void setMessage(const UIString& text, int timeoutMs, eRedrawFlag flag = kRedraw);
    // The moment of msecsNow() at which the text goes; 0 when it stays.
    std::int64_t deadline() const { return deadline_; }
    PushButton* getOkButton() const { return ok_; }

    virtual void handleOkPressed();
    BoxInt textBox() const override;
    int handleTimerEvent() override;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;

private:
    void startTimer(int timeoutMs);
    void expire();

    PushButton* ok_ = nullptr;
    std::int64_t deadline_ = 0;
};
