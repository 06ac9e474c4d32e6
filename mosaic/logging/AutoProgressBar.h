#pragma once

#include "ProgInd.h"
#include "frame/GlobHandle.h"
#include "platform/UIString.h"

#include <cstdint>

/// A counter for the stack of a slow operation of `total` steps, which shows a
/// ProgInd only when the operation proves slow: when a step ends more than a second
/// after the start with less than three quarters done. The watchdog is on life
/// support while it lives; the bar goes with it.
class AutoProgressBar {
public:
    AutoProgressBar(const Glob* parent, const UIString& title, unsigned long total);
    ~AutoProgressBar();
    AutoProgressBar(const AutoProgressBar&) = delete;
    AutoProgressBar& operator=(const AutoProgressBar&) = delete;

    // One more step done.
    void inc();

    // The bar, or null while there is none or after somebody else deleted it.
    ProgInd* bar() const { return bar_.get(); }
    const LightweightString<wchar_t>& title() const { return title_; }

private:
    GlobHandle<ProgInd> bar_;
    LightweightString<wchar_t> title_;
    const Glob* parent_;
    unsigned long count_ = 0;
    unsigned long total_;
    std::uint32_t start_;
};
