#include "WStringFromAscii.h"

#include "Utf8.h"

#include <cstring>

namespace Zn {

namespace {

bool isAscii(std::string_view v) {
    for (char c : v)
        if (static_cast<unsigned char>(c) >= 0x80) return false;
    return true;
}

bool isValidUtf8(const LightweightString<wchar_t>& decoded, std::string_view original) {
    // fromUTF8 marks every bad byte with U+FFFD; one that was really in the text
    // comes back as its own three bytes.
    return toUTF8(decoded).view() == original;
}

} // namespace

LightweightString<wchar_t> WStringFromAscii(const char* text, std::size_t length) {
    if (!text || length == 0) return {};
    std::string_view v(text, length);
    if (!isAscii(v)) {
        LightweightString<wchar_t> decoded = fromUTF8(LightweightString<char>(v));
        if (isValidUtf8(decoded, v)) return decoded;
    }
    std::wstring wide;
    wide.reserve(v.size());
    for (char c : v) wide += static_cast<wchar_t>(static_cast<unsigned char>(c));
    return LightweightString<wchar_t>(wide);
}

LightweightString<wchar_t> WStringFromAscii(const char* text) {
    return text ? WStringFromAscii(text, std::strlen(text)) : LightweightString<wchar_t>();
}

LightweightString<wchar_t> WStringFromAscii(const LightweightString<char>& text) { return WStringFromAscii(text.c_str(), text.size()); }

} // namespace Zn
