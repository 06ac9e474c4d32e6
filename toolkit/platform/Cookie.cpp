#include "Cookie.h"

#include "core/Utf8.h"

#include <cctype>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>

Cookie::Cookie(const LightweightString<char>& text) {
    unsigned version = 0, flags = 0;
    char kind = 0, high[17] = {}, low[17] = {}, tail = 0;
    if (text.size() != 39) return;
    if (std::sscanf(text.c_str(), "%c%2x-%2x-%16[0-9a-f]%16[0-9a-f]%c", &kind, &version, &flags, high, low, &tail) != 5) return;
    if (!std::isalnum(static_cast<unsigned char>(kind))) return;
    kind_ = kind;
    version_ = static_cast<std::uint8_t>(version);
    flags_ = static_cast<std::uint8_t>(flags);
    high_ = std::strtoull(high, nullptr, 16);
    low_ = std::strtoull(low, nullptr, 16);
}

LightweightString<char> Cookie::asString() const {
    if (isNull()) return {};
    char buf[48];
    std::snprintf(buf, sizeof buf, "%c%02x-%02x-%016" PRIx64 "%016" PRIx64, kind_, version_, flags_, high_, low_);
    return buf;
}

LightweightString<wchar_t> Cookie::asWString() const { return fromUTF8(asString()); }
