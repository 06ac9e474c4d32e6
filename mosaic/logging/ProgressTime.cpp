#include "ProgressTime.h"

#include "platform/ResourceStrings.h"

#include <climits>
#include <cmath>
#include <cstdio>
#include <string_view>

int ProgressTime::secondsLeft(double elapsedMs, double fraction) {
    double left = (elapsedMs / fraction - elapsedMs) / 1000.0;
    if (std::isnan(left)) return 0;
    // Converting a double past the range of int is undefined, so saturate first.
    if (left >= double(INT_MAX)) return INT_MAX;
    if (left <= double(INT_MIN)) return INT_MIN;
    return static_cast<int>(left);
}

LightweightString<wchar_t> ProgressTime::formatDuration(int seconds) {
    char buffer[256];
    std::snprintf(buffer, sizeof buffer, "%02d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
    LightweightString<wchar_t> text;
    for (const char* c = buffer; *c; ++c) text += static_cast<wchar_t>(*c);
    return text;
}

LightweightString<wchar_t> ProgressTime::durationText(ResId id, int seconds) {
    static constexpr std::wstring_view marker = L"$TIME$";
    LightweightString<wchar_t> text = resourceStrW(id), time = formatDuration(seconds);
    for (auto at = text.find(marker); at != text.npos; at = text.find(marker, at + time.size())) text.replace(at, marker.size(), time);
    return text;
}
