#include "ProgInd.h"

#include "ProgressTime.h"
#include "draw/StateSaver.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"
#include "glob/glib_getPosForWindow.h"
#include "platform/Clock.h"
#include "value/valEqualsVal.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {
std::uint32_t now32() { return static_cast<std::uint32_t>(msecsNow()); }

StandardPanel::InitArgs panelArgs(const Palette& palette) {
    StandardPanel::InitArgs args(ProgInd::kWidth, static_cast<unsigned short>(ProgInd::calcHeight()));
    args.palette = palette;
    return args;
}
} // namespace

ProgInd::ProgInd(const LightweightString<wchar_t>& title) : StandardPanel(panelArgs(UifStd::instance().getColourScheme())) {
    init(title, true, 0.0, 1.0);
}

ProgInd::ProgInd(const LightweightString<wchar_t>& title, int x, int y, const Palette& palette, double min, double max, bool poll)
    : StandardPanel(panelArgs(palette)) {
    setupRootPos({x, y});
    init(title, poll, min, max);
}

int ProgInd::calcHeight() {
    BoxInt user = StandardPanel::getUserArea(kTitleBar, {200, 200}, getDefaultBorder());
    return 200 - std::abs(user.height()) + UifStd::instance().getRowHeight();
}

void ProgInd::init(const LightweightString<wchar_t>& title, bool poll, double min, double max) {
    Glib::StateSaver saver;
    setBorder(getDefaultBorder());
    setTitle(title.empty() ? UIString(ProgressTime::kWorkingTitle) : UIString(title), UifStd::instance().getTitleFont(), kNoRedraw);
    const Palette& p = getPalette();
    Gauge::InitArgs args(static_cast<unsigned short>(std::abs(getUserArea().width())),
                         static_cast<unsigned short>(UifStd::instance().getRowHeight()));
    // The user area is one row high, so centring in it fills it.
    m_gauge = createWidget<Gauge>(args, UserBottomLeft(0, 0), WidgetSurround(1, 15, 0, 0, 0.2f, false));
    m_gauge->setCols(p.selection(kSelectionFocused), p.childWindow(kChildList));
    m_gauge->setMeasure(0.0);
    m_gauge->setMessageColour(p.text(kTextNormal));
    m_last_left = -1;
    m_poll = poll;
    m_min = min;
    m_max = max;
    m_range = max - min;
    addShadow();
}

ProgInd* ProgInd::make(const LightweightString<wchar_t>& title, const Glob* over) {
    int h = calcHeight();
    XY<int> at = glib_getPosForWindow(kWidth, h);
    if (over && is_good_glob_ptr(over)) {
        XY<int> o = over->screenPos();
        at = {o.x + over->width() / 2 - kWidth / 2, o.y + over->height() / 2 - h / 2};
    }
    auto* p = new ProgInd(title);
    p->setupRootPos(at);
    GlobManager::instance().realize(p);
    return p;
}

void ProgInd::showTimeRemaining(bool show) {
    m_show_time = show;
    if (show) m_start = now32();
}

void ProgInd::setBarColour(const Colour& colour) { m_gauge->setCols(colour, getPalette().childWindow(kChildList)); }

void ProgInd::update_progress(const LightweightString<wchar_t>& text, double value) { update_progress(text, value, m_gauge->barColour()); }

void ProgInd::update_progress(const LightweightString<wchar_t>& text, double value, const Colour& colour) {
    std::uint32_t now = now32();
    if (now - m_last_update > 10 || valEqualsVal(value, 1.0)) {
        m_last_update = now;
        LightweightString<wchar_t> message = text;
        if (m_show_time) {
            double f = (value - m_min) / (m_max - m_min);
            if (!(std::fabs(f) < 1e-6)) message += timeLeftSuffix(now, f);
        }
        // The estimate above has used the value as given; only the bar is held to the scale.
        value = std::clamp(value, std::min(m_min, m_max), std::max(m_min, m_max));
        setBarColour(colour);
        m_gauge->setMessage(message);
        m_gauge->setMeasure((value - m_min) / m_range);
        m_gauge->display();
    }
    if (m_poll) glob_poll_background_tasks();
}

LightweightString<wchar_t> ProgInd::timeLeftSuffix(std::uint32_t now, double fraction) {
    int left = ProgressTime::secondsLeft(double(now - m_start), fraction);
    int shown = left;
    if (m_last_left != left) {
        // Halfway to the new estimate, so that one odd report does not make the time jump.
        if (m_last_left != -1) shown = static_cast<int>((std::int64_t(m_last_left) + left) / 2);
        m_last_left = left;
    }
    return L"  (" + ProgressTime::durationText(ProgressTime::kTimeLeft, shown) + L")";
}

void ProgInd::handleProgressUpdate(const ProgressSnapshot& snapshot) { update_progress(snapshot.text, snapshot.fraction * m_range + m_min); }
