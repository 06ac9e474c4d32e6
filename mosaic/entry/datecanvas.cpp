#include "datecanvas.h"

#include "controls/DropDownMenuButton.h"
#include "core/IntFromWString.h"
#include "core/KeyCodes.h"
#include "draw/UifStd.h"
#include "glob/UpdateDeferrer.h"
#include "moveFocusAmong.h"
#include "platform/Clock.h"
#include "platform/ResourceStrings.h"

#include <array>
#include <cstdio>
#include <cstring>

namespace {

constexpr std::uint32_t kMonths = 12, kFebruary = 1, kNoDay = 0xFFFFFFFF;
constexpr std::array<std::uint32_t, kMonths> kDaysInMonth{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
constexpr ResId kFirstMonthName = 770, kFirstDayName = 790;
// "22nd", the widest ordinal, sets the day button's width.
constexpr ResId kWidestDayName = kFirstDayName + 21;
constexpr int kTmYearBase = 1900;
constexpr std::size_t kTimeTextSize = 50;

std::vector<UIString> monthNames() {
    std::vector<UIString> names;
    for (std::uint32_t m = 0; m < kMonths; ++m) names.emplace_back(kFirstMonthName + m);
    return names;
}

std::vector<UIString> yearNames(const YearSet& years) {
    std::vector<UIString> names;
    for (std::size_t i = 0; i < years.size(); ++i) names.push_back(years[i]);
    return names;
}

} // namespace

datecanvas::datecanvas(const Palette& palette, unsigned short width, unsigned short height, unsigned short, Canvas* canvas)
    : StandardPanel(width, height, palette, canvas != nullptr, canvas) {
    init();
    setVisible(true);
    const auto h = static_cast<unsigned short>(height);
    auto make = [&](const std::vector<UIString>& rows, int w, const char* name) {
        DropDownMenuButton::InitArgs args(rows, static_cast<unsigned short>(std::max(1, w)), h);
        auto* b = createWidget<DropDownMenuButton>(args, BottomLeft(0, 0));
        b->setName(name);
        b->setStyle(0);
        return b;
    };
    dayButton_ = make({}, DropDownMenuButton::calcWidth(UIString(resourceStrW(kWidestDayName))), "day");
    monthButton_ = make(monthNames(), DropDownMenuButton::calcWidth(monthNames()), "month");
    yearButton_ = make(yearNames(yearSet_), DropDownMenuButton::calcWidth(yearNames(yearSet_)), "year");
    validateDays();
    post_init();
    reshape();
}

void datecanvas::init() {
    day_ = month_ = yearIndex_ = 0;
    long now = static_cast<long>(wallClockNow());
    m_set_date(&now);
}

void datecanvas::setYearIndex(unsigned int index) { yearIndex_ = index == YearSet::kNotFound ? 0 : index; }

void datecanvas::m_set_date(long* time) {
    if (!time) return;
    const std::tm t = localTimeOf(static_cast<std::time_t>(*time));
    day_ = static_cast<std::uint32_t>(t.tm_mday - 1);
    month_ = static_cast<std::uint32_t>(t.tm_mon);
    setYearIndex(yearSet_.getYearIndex(static_cast<unsigned int>(t.tm_year + kTmYearBase)));
    if (dayButton_) validateDays();
}

int datecanvas::m_set_date(int day, int month, int year) {
    day_ = static_cast<std::uint32_t>(std::max(1, day) - 1);
    month_ = static_cast<std::uint32_t>(std::clamp(month, 1, static_cast<int>(kMonths)) - 1);
    setYearIndex(yearSet_.getYearIndex(static_cast<unsigned int>(std::max(0, year))));
    if (dayButton_) {
        validateDays();
        showFields(kRedraw);
    }
    return static_cast<int>(yearIndex_);
}

void datecanvas::validateDays() {
    const int year = Zn::IntFromWString(yearSet_[yearIndex_].getString());
    std::uint32_t days = 0;
    if (month_ < kMonths && year != 0) days = kDaysInMonth[month_] + (month_ == kFebruary && year % 4 == 0 ? 1 : 0);
    const std::uint32_t lastDay = days == 0 ? kNoDay : days - 1;
    if (day_ > lastDay) day_ = lastDay;
    if (dayStrings_.size() == days) return;
    dayStrings_.clear();
    std::vector<UIString> rows;
    for (std::uint32_t d = 0; d < days; ++d) {
        dayStrings_.push_back(resourceStrW(kFirstDayName + d));
        rows.emplace_back(dayStrings_.back());
    }
    if (dayButton_) dayButton_->setStrings(rows, MenuItemIndex(static_cast<unsigned short>(day_)));
}

void datecanvas::m_change_day() { day_ = static_cast<std::uint32_t>(dayButton_->getSelectedItem()); }

void datecanvas::m_change_month() {
    month_ = static_cast<std::uint32_t>(monthButton_->getSelectedItem());
    validateDays();
}

void datecanvas::m_change_year() {
    yearIndex_ = static_cast<std::uint32_t>(yearButton_->getSelectedItem());
    validateDays();
}

char* datecanvas::m_generate_string(char* buffer) {
    std::tm t{};
    t.tm_mday = static_cast<int>(day_) + 1;
    t.tm_mon = static_cast<int>(month_);
    t.tm_year = Zn::IntFromWString(yearSet_[yearIndex_].getString()) - kTmYearBase;
    t.tm_isdst = 0;
    const std::time_t when = std::mktime(&t);
    char text[kTimeTextSize];
    std::snprintf(text, sizeof text, "%ld", static_cast<long>(when));
    if (!buffer) buffer = new char[std::strlen(text) + 1];
    std::strcpy(buffer, text);
    return buffer;
}

bool datecanvas::showFields(eRedrawFlag flag) {
    bool changed = false;
    const std::array<std::pair<DropDownMenuButton*, std::uint32_t>, 3> buttons{
        {{dayButton_, day_}, {monthButton_, month_}, {yearButton_, yearIndex_}}};
    for (const auto& [button, field] : buttons) {
        if (static_cast<std::uint32_t>(button->getSelectedItem()) == field) continue;
        button->setSelectedItem(MenuItemIndex(static_cast<unsigned short>(field)), flag);
        changed = true;
    }
    return changed;
}

void datecanvas::post_init() { showFields(kNoRedraw); }

int datecanvas::react(const Event& e) {
    if (e.type() != Event::kMessage || e.messageText() != DropDownMenuButton::dropDownMenuButtonMsg) return StandardPanel::react(e);
    const Glob* sender = event_to_sender_glob(e);
    if (sender == dayButton_) m_change_day();
    if (sender == monthButton_) m_change_month();
    if (sender == yearButton_) m_change_year();
    showFields(kRedraw);
    return 1;
}

int datecanvas::handleKeyboardEvent(int keyCode) {
    if (Keys::plain(keyCode) != Keys::Tab) return StandardPanel::handleKeyboardEvent(keyCode);
    return moveFocusAmong(getTabStops(), Keys::modifiersOf(keyCode) & Modifiers::Shift) ? 1 : 0;
}

void datecanvas::reshape() {
    StandardPanel::reshape();
    if (!dayButton_) return;
    reshapeWidgetAt(dayButton_, 0, 0);
    reshapeWidgetAt(monthButton_, dayButton_->box().x2, 0);
    reshapeWidgetAt(yearButton_, monthButton_->box().x2, 0);
}

void datecanvas::draw() {
    {
        Glib::UpdateDeferrer together;
        showFields(kNoRedraw);
    }
    StandardPanel::draw();
}

void datecanvas::getTabOrderables(std::vector<TabOrderable*>& stops) { stops.insert(stops.end(), {dayButton_, monthButton_, yearButton_}); }

std::vector<TabOrderable*> datecanvas::getTabStops() {
    std::vector<TabOrderable*> stops;
    getTabOrderables(stops);
    return stops;
}
