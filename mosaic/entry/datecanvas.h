#pragma once

#include "YearSet.h"
#include "controls/StandardPanel.h"
#include "glob/TabOrderManager.h"

#include <cstdint>
#include <vector>

class DropDownMenuButton;

/// A compact date entry: drop-down buttons for the day, the month and the year side
/// by side. The date is three indices (day and month from zero, the year into the
/// YearSet); the day menu always has the days of the chosen month and year, and a
/// day past its end is brought back to the last. The date goes out as the decimal
/// text of the time_t of local midnight on that day.
class datecanvas : public StandardPanel, public TabOrderableHost {
public:
    datecanvas(const Palette& palette, unsigned short width, unsigned short height, unsigned short unused, Canvas* canvas);
    const char* idstring() const override { return "datecanvas"; }

    // Clears the date, then sets it to today.
    void init();
    // Shows the date in the three buttons.
    void post_init();
    void m_set_date(long* time);
    // Day and month from one; returns the year index, 0 when the year is not offered.
    int m_set_date(int day, int month, int year);
    // The time_t text of the date, into `buffer` (at least 50 bytes) or, when it is
    // null, into a new array that the caller deletes with delete[].
    char* m_generate_string(char* buffer);
    void m_map_date() {}
    void m_unmap_date() {}
    void m_change_day();
    void m_change_month();
    void m_change_year();
    void validateDays();

    std::uint32_t day() const { return day_; }
    std::uint32_t month() const { return month_; }
    std::uint32_t yearIndex() const { return yearIndex_; }
    const YearSet& years() const { return yearSet_; }
    std::size_t numDaysShown() const { return dayStrings_.size(); }

    int react(const Event& e) override;
    int handleKeyboardEvent(int keyCode) override;
    void reshape() override;
    void draw() override;
    void getTabOrderables(std::vector<TabOrderable*>& stops);
    std::vector<TabOrderable*> getTabStops() override;

private:
    void setYearIndex(unsigned int index);
    // Puts the fields into the buttons that differ; true when any did.
    bool showFields(eRedrawFlag flag);

    std::uint32_t day_ = 0;
    std::uint32_t month_ = 0;
    std::uint32_t yearIndex_ = 0;
    YearSet yearSet_;
    std::vector<LightweightString<wchar_t>> dayStrings_;
    DropDownMenuButton* dayButton_ = nullptr;
    DropDownMenuButton* monthButton_ = nullptr;
    DropDownMenuButton* yearButton_ = nullptr;
};
