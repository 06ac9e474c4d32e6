#include "IntFromWString.h"

#include <climits>
#include <cwchar>

int Zn::IntFromWString(const LightweightString<wchar_t>& text) {
    long value = std::wcstol(text.c_str(), nullptr, 10);
    if (value > INT_MAX) return INT_MAX;
    if (value < INT_MIN) return INT_MIN;
    return static_cast<int>(value);
}
