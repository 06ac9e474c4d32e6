#include "Format.h"

LightweightString<char> Zn::Image::Format::toString() const {
    if (isNone()) return {};
    char chars[4];
    for (int i = 0; i < 4; ++i) {
        const char c = static_cast<char>((code_ >> (8 * i)) & 0xFF);
        chars[i] = c >= 0x20 && c < 0x7F ? c : '?';
    }
    return LightweightString<char>(chars, 4);
}
