#include "FrameRate.h"

#include <algorithm>
#include <cwctype>

namespace {

struct RateRow {
    Zn::FrameRate rate;
    const wchar_t* text;
    Zn::FrameRateFraction fraction;
    Zn::FrameRateGroups::FrameRateGroup group;
};

using namespace Zn;
using namespace Zn::FrameRateGroups;

// Slowest first, which is the order the groups are offered in.
constexpr RateRow kRates[] = {
    {kFrameRate12, L"12", {12, 1}, kLowRates},
    {kFrameRate12_5, L"12.5", {25, 2}, kLowRates},
    {kFrameRate15, L"15", {15, 1}, kLowRates},
    {kFrameRate23_976, L"23.976", {24000, 1001}, kVideoRates},
    {kFrameRate24, L"24", {24, 1}, kVideoRates},
    {kFrameRate25, L"25", {25, 1}, kVideoRates},
    {kFrameRate29_97, L"29.97", {30000, 1001}, kVideoRates},
    {kFrameRate30, L"30", {30, 1}, kVideoRates},
    {kFrameRate47_952, L"47.952", {48000, 1001}, kHighRates},
    {kFrameRate48, L"48", {48, 1}, kHighRates},
    {kFrameRate50, L"50", {50, 1}, kVideoRates},
    {kFrameRate59_94, L"59.94", {60000, 1001}, kVideoRates},
    {kFrameRate60, L"60", {60, 1}, kVideoRates},
    {kFrameRate100, L"100", {100, 1}, kHighRates},
    {kFrameRate119_88, L"119.88", {120000, 1001}, kHighRates},
    {kFrameRate120, L"120", {120, 1}, kHighRates},
};

const RateRow* find(FrameRate rate) {
    auto it = std::find_if(std::begin(kRates), std::end(kRates), [rate](const RateRow& r) { return r.rate == rate; });
    return it == std::end(kRates) ? nullptr : it;
}

} // namespace

LightweightString<wchar_t> Zn::getDisplayString(FrameRate rate) {
    const RateRow* row = find(rate);
    return row ? LightweightString<wchar_t>(row->text) : LightweightString<wchar_t>();
}

Zn::FrameRate Zn::getFrameRateFromDisplayString(const LightweightString<wchar_t>& text) {
    std::wstring_view v = text.view();
    while (!v.empty() && std::iswspace(static_cast<wint_t>(v.front()))) v.remove_prefix(1);
    while (!v.empty() && std::iswspace(static_cast<wint_t>(v.back()))) v.remove_suffix(1);
    for (const RateRow& r : kRates)
        if (v == r.text) return r.rate;
    return kFrameRateNone;
}

void Zn::getFrameRates(FrameRateGroups::FrameRateGroup group, std::vector<FrameRate>& rates) {
    rates.clear();
    for (const RateRow& r : kRates)
        if (group == kAllRates || r.group == group) rates.push_back(r.rate);
}

Zn::FrameRateFraction Zn::getFrameRateFraction(FrameRate rate) {
    const RateRow* row = find(rate);
    return row ? row->fraction : FrameRateFraction();
}
