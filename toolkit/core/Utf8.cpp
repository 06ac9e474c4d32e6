#include "Utf8.h"

namespace {

constexpr wchar_t kReplacement = 0xFFFD;

// Decodes one sequence at s[i]; returns the code point and advances i.
wchar_t decodeOne(std::string_view s, std::size_t& i) {
    auto byte = [&](std::size_t k) { return static_cast<unsigned char>(s[k]); };
    unsigned char b0 = byte(i);
    if (b0 < 0x80) {
        ++i;
        return b0;
    }
    int extra = (b0 >= 0xC2 && b0 <= 0xDF) ? 1 : (b0 >= 0xE0 && b0 <= 0xEF) ? 2 : (b0 >= 0xF0 && b0 <= 0xF4) ? 3 : -1;
    if (extra < 0 || i + static_cast<std::size_t>(extra) >= s.size()) {
        ++i;
        return kReplacement;
    }
    unsigned cp = b0 & (0x3F >> extra);
    for (int k = 1; k <= extra; ++k) {
        unsigned char b = byte(i + static_cast<std::size_t>(k));
        if ((b & 0xC0) != 0x80) {
            ++i;
            return kReplacement;
        }
        cp = (cp << 6) | (b & 0x3F);
    }
    // Overlong forms, surrogates and values past U+10FFFF are not UTF-8.
    static const unsigned minimum[] = {0, 0x80, 0x800, 0x10000};
    if (cp < minimum[extra] || (cp >= 0xD800 && cp <= 0xDFFF) || cp > 0x10FFFF) {
        ++i;
        return kReplacement;
    }
    i += static_cast<std::size_t>(extra) + 1;
    return static_cast<wchar_t>(cp);
}

void encodeOne(unsigned cp, std::string& out) {
    if (cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) cp = static_cast<unsigned>(kReplacement);
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

} // namespace

LightweightString<wchar_t> fromUTF8(const LightweightString<char>& text) {
    std::string_view s = text.view();
    std::wstring out;
    out.reserve(s.size());
    for (std::size_t i = 0; i < s.size();) out += decodeOne(s, i);
    return LightweightString<wchar_t>(out);
}

LightweightString<wchar_t> fromUTF8(const char* text) { return fromUTF8(LightweightString<char>(text)); }

LightweightString<char> toUTF8(const LightweightString<wchar_t>& text) {
    std::string out;
    out.reserve(text.size());
    for (wchar_t c : text) encodeOne(static_cast<unsigned>(c), out);
    return LightweightString<char>(out);
}

LightweightString<char> toUTF8(const wchar_t* text) { return toUTF8(LightweightString<wchar_t>(text)); }

std::ostream& operator<<(std::ostream& os, const LightweightString<wchar_t>& s) { return os << toUTF8(s).view(); }
