#include "FBItem.h"

#include "core/Utf8.h"

#include <cstdio>
#include <ctime>
#include <cwchar>

bool FBItem::hasExactPath() const { return !nativePath.empty() && toUTF8(path) == nativePath; }

LightweightString<wchar_t> FBItem::sizeText() const {
    if (isFolder) return {};
    static const wchar_t* units[] = {L"B", L"KB", L"MB", L"GB", L"TB", L"PB"};
    wchar_t buf[32];
    if (size < 1024) {
        std::swprintf(buf, 32, L"%llu B", static_cast<unsigned long long>(size));
        return buf;
    }
    double v = static_cast<double>(size);
    int unit = 0;
    while (v >= 1024.0 && unit < 5) {
        v /= 1024.0;
        ++unit;
    }
    std::swprintf(buf, 32, L"%.1f %ls", v, units[unit]);
    return buf;
}

LightweightString<wchar_t> FBItem::dateText() const {
    if (modified == 0) return {};
    std::time_t t = static_cast<std::time_t>(modified);
    std::tm local{};
    if (!localtime_r(&t, &local)) return {};
    wchar_t buf[32];
    if (std::wcsftime(buf, 32, L"%Y-%m-%d %H:%M", &local) == 0) return {};
    return buf;
}
