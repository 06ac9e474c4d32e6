#include "WStringFromFloat.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace Zn {

LightweightString<wchar_t> WStringFromFloat(double value, char decimals, bool trimZeros) {
    if (std::isnan(value)) return L"nan";
    if (std::isinf(value)) return value < 0 ? L"-inf" : L"inf";
    const int places = std::clamp(static_cast<int>(decimals), 0, 15);
    char buf[400];
    auto r = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::fixed, places);
    std::string text(buf, r.ptr);
    if (trimZeros && text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') text.pop_back();
    }
    // Rounding may leave "-0.00": a sign on nothing.
    if (text.find_first_not_of("-0.") == std::string::npos && text[0] == '-') text.erase(0, 1);
    return LightweightString<wchar_t>(std::wstring(text.begin(), text.end()));
}

} // namespace Zn
