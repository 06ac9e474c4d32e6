#include "YearSet.h"

#include "core/WStringFromInteger.h"
#include "platform/Clock.h"

namespace {
constexpr int kFirstYear = 1989, kYearsAhead = 15, kTmYearBase = 1900;
// A clock before 1974 is not set; offering years from it would mislead.
constexpr int kEarliestClockTmYear = 74;
} // namespace

YearSet::YearSet() {
    const std::tm now = localTimeOf(wallClockNow());
    if (now.tm_year < kEarliestClockTmYear) return;
    for (int year = kFirstYear; year <= now.tm_year + kTmYearBase + kYearsAhead; ++year) years_.emplace_back(Zn::WStringFromInteger(year));
}

UIString YearSet::operator[](unsigned long index) const { return index < years_.size() ? years_[index] : UIString(); }

unsigned int YearSet::getYearIndex(unsigned int year) const {
    const LightweightString<wchar_t> text = Zn::WStringFromInteger(year);
    for (std::size_t i = 0; i < years_.size(); ++i)
        if (years_[i].getString() == text) return static_cast<unsigned int>(i);
    return kNotFound;
}
