#pragma once

#include "platform/UIString.h"

#include <vector>

/// The years a date entry offers, as text in ascending order: from 1989 to fifteen
/// years past the current local year, or none when the clock says a year before 1974.
class YearSet {
public:
    static constexpr unsigned int kNotFound = 0xFFFFFFFF;

    YearSet();
    // A copy of the year at `index`; past the end an empty text with no resource id.
    UIString operator[](unsigned long index) const;
    // The index of the year's text, kNotFound when it is not on offer.
    unsigned int getYearIndex(unsigned int year) const;
    std::size_t size() const { return years_.size(); }
    bool empty() const { return years_.empty(); }

private:
    std::vector<UIString> years_;
};
