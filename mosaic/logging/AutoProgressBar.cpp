#include "AutoProgressBar.h"

#include "glob/SuspendRefreshOffToggle.h"
#include "platform/Clock.h"
#include "platform/ResourceStrings.h"
#include "platform/SystemWatchdog.h"

#include <limits>

namespace {
LightweightString<wchar_t> titleText(const UIString& title) {
    LightweightString<wchar_t> text = title.resId() == UIString::kNoResource ? title.text() : resourceStrW(title.resId());
    if (!text.empty()) text += L"..";
    return text;
}
} // namespace

AutoProgressBar::AutoProgressBar(const Glob* parent, const UIString& title, unsigned long total)
    : title_(titleText(title)), parent_(parent), total_(total), start_(static_cast<std::uint32_t>(msecsNow())) {
    SystemWatchdog::beginLifeSupport();
}

AutoProgressBar::~AutoProgressBar() {
    bar_.deleteGlob();
    SystemWatchdog::endLifeSupport();
}

void AutoProgressBar::inc() {
    ++count_;
    // No steps at all is infinitely far along, so never slow.
    double fraction = total_ ? double(count_) / double(total_) : std::numeric_limits<double>::infinity();
    if (ProgInd* p = bar_.get()) {
        SuspendRefreshOffToggle visible(1);
        p->updateProgress(fraction, LightweightString<wchar_t>());
        return;
    }
    std::uint32_t elapsed = static_cast<std::uint32_t>(msecsNow()) - start_;
    // The step that makes the bar is not shown on it; the next one is.
    if (fraction < 0.75 && elapsed > 1000) bar_.reset(ProgInd::make(title_, parent_), true);
}
