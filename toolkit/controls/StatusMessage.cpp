#include "StatusMessage.h"

#include "PushButton.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "platform/Clock.h"

#include <algorithm>

namespace {
constexpr ResId kOkId = 1;

int buttonRowHeight() { return UifStd::instance().getRowHeight() + UifStd::instance().getWidgetGap(); }
} // namespace

StatusMessage::StatusMessage(const InitArgs& args) : TipWindowBase(args) {
    if (args.flags & kOkButton) {
        const UIString label(kOkId);
        PushButton::InitArgs b(label, WidgetCallback(kOkMsg), static_cast<unsigned short>(Button::calcWidth(label)),
                               static_cast<unsigned short>(UifStd::instance().getRowHeight()));
        ok_ = createWidget<PushButton>(b, UserBottomRight(getIndent(), getIndent()));
        ok_->setDefault(true);
    }
    startTimer(args.timeoutMs);
}

XY<int> StatusMessage::calcSize(const UIString& text, eWidgetRelativity, unsigned flags) {
    XY<int> size = TipWindowBase::calcSize(text);
    if (flags & kOkButton) {
        const int gap = UifStd::instance().getWidgetGap();
        size.x = std::max(size.x, Button::calcWidth(UIString(kOkId)) + 2 * gap);
        size.y += buttonRowHeight();
    }
    return size;
}

BoxInt StatusMessage::textBox() const {
    BoxInt b = TipWindowBase::textBox();
    if (ok_) b.y1 = std::min(b.y2, b.y1 + buttonRowHeight());
    return b;
}

void StatusMessage::setMessage(const UIString& text, int timeoutMs, eRedrawFlag flag) {
    setText(text, flag);
    startTimer(timeoutMs);
}

void StatusMessage::startTimer(int timeoutMs) {
    if (timeoutMs > 0) {
        deadline_ = msecsNow() + timeoutMs;
        setInterest(Glob::kTimerInterest);
    } else {
        deadline_ = 0;
        clearInterest(Glob::kTimerInterest);
    }
}

int StatusMessage::handleTimerEvent() {
    if (deadline_ == 0 || msecsNow() < deadline_) return 0;
    expire();
    return 1;
}

void StatusMessage::expire() {
    startTimer(0);
    if (parent())
        setText(UIString());
    else
        GlobManager::instance().requestDeletion(this);
}

void StatusMessage::handleOkPressed() { expire(); }

int StatusMessage::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message == kOkMsg && ok_ && sender == ok_) {
        handleOkPressed();
        return 1;
    }
    return TipWindowBase::handleMessageEvent(message, sender);
}
