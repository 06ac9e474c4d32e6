#include "bytesAsString.h"

#include <array>
#include <cwchar>

LightweightString<wchar_t> bytesAsString(unsigned long bytes, bool abbreviated) {
    static const std::array<const wchar_t*, 7> kUnits = {L"bytes", L"KB", L"MB", L"GB", L"TB", L"PB", L"EB"};
    std::array<wchar_t, 48> text{};
    if (!abbreviated || bytes < 1024) {
        std::swprintf(text.data(), text.size(), L"%lu %ls", bytes, kUnits[0]);
        return LightweightString<wchar_t>(text.data());
    }
    double value = static_cast<double>(bytes);
    std::size_t unit = 0;
    while (value >= 1024.0 && unit + 1 < kUnits.size()) {
        value /= 1024.0;
        ++unit;
    }
    // Below 10 one decimal tells 1.5 GB from 1 GB; above, it is noise.
    if (value < 9.95)
        std::swprintf(text.data(), text.size(), L"%.1f %ls", value, kUnits[unit]);
    else
        std::swprintf(text.data(), text.size(), L"%.0f %ls", value, kUnits[unit]);
    return LightweightString<wchar_t>(text.data());
}
