#include "StringFromFloat.h"

#include <charconv>
#include <cmath>

LightweightString<char> StringFromFloat(double value) {
    if (std::isnan(value)) return "nan";
    char buf[32];
    auto r = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::general, 6);
    return LightweightString<char>(std::string_view(buf, static_cast<std::size_t>(r.ptr - buf)));
}
