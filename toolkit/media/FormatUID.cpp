#include "FormatUID.h"

#include <string>

Zn::Image::FormatUID::FormatUID(const LightweightString<char>& text) {
    if (text.empty() || text.size() > 10) return;
    std::uint64_t v = 0;
    for (char c : text) {
        if (c < '0' || c > '9') return;
        v = v * 10 + static_cast<std::uint64_t>(c - '0');
    }
    if (v <= 0xFFFFFFFFu) value_ = static_cast<std::uint32_t>(v);
}

LightweightString<char> Zn::Image::FormatUID::toString() const { return LightweightString<char>(std::to_string(value_)); }
