#pragma once

#include "controls/Gauge.h"
#include "controls/StandardPanel.h"
#include "tasks/ProgressReportClient.h"

#include <cstdint>

/// A small panel with one gauge that shows the progress of a long task on the
/// user-interface thread, optionally with the time left. Values are on a scale of
/// min .. max; the gauge is redrawn at most once per 11 ms, but a value of exactly
/// 1.0 always shows. With polling on, each update also lets the toolkit deliver
/// its waiting work, so the display moves while the task holds the thread.
class ProgInd : public StandardPanel, public ProgressReportClient {
public:
    static constexpr int kWidth = 400;

    explicit ProgInd(const LightweightString<wchar_t>& title);
    ProgInd(const LightweightString<wchar_t>& title, int x, int y, const Palette& palette, double min, double max, bool poll);

    // Made and realized: centred on `over` when it is a live glob, else where new windows go.
    static ProgInd* make(const LightweightString<wchar_t>& title, const Glob* over);
    // A panel's title and border around one row.
    static int calcHeight();

    const char* idstring() const override { return "ProgInd"; }
    int react(const Event& e) override { return StandardPanel::react(e); }

    // Turning it on starts the clock of the estimate again.
    void showTimeRemaining(bool show);
    void setBarColour(const Colour& colour);
    void update_progress(const LightweightString<wchar_t>& text, double value, const Colour& colour);
    void update_progress(const LightweightString<wchar_t>& text, double value);
    void handleProgressUpdate(const ProgressSnapshot& snapshot) override;

    Gauge* gauge() const { return m_gauge; }

private:
    void init(const LightweightString<wchar_t>& title, bool poll, double min, double max);
    // "  (" + the time left + ")", the estimate smoothed with the one before.
    LightweightString<wchar_t> timeLeftSuffix(std::uint32_t now, double fraction);

    Gauge* m_gauge = nullptr;
    bool m_poll = true;
    double m_min = 0.0, m_max = 1.0, m_range = 1.0;
    bool m_show_time = false;
    std::uint32_t m_start = 0;
    std::int32_t m_last_left = -1;
    std::uint32_t m_last_update = 0;
};
