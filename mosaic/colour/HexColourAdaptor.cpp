#include "HexColourAdaptor.h"

#include "core/Utf8.h"
#include "value/DataConvert.h"

#include <cstdio>

namespace {

unsigned byteOf(double v) {
    if (v > 1.0) return 255;
    if (v < 0.0) return 0;
    return DataConvert::truncate<unsigned>(v * 255.0);
}

} // namespace

LightweightString<wchar_t> HexColourAdaptor::getDataValue() {
    ColourData c = colour();
    c.setColourSpace(kColourSpaceRGB);
    char buf[16];
    std::snprintf(buf, sizeof buf, "%02X%02X%02X", byteOf(c.getRed()), byteOf(c.getGreen()), byteOf(c.getBlue()));
    return fromUTF8(buf);
}

bool HexColourAdaptor::requestSetNewDataValue(const LightweightString<wchar_t>& text, DataChangeType) {
    LightweightString<wchar_t> digits = text;
    if (digits.size() < 6) {
        LightweightString<wchar_t> padded(6 - digits.size(), L'0');
        padded += digits;
        digits = padded;
    }
    // Digits that sscanf does not reach, after a character that is no digit, stay 0.
    unsigned r = 0, g = 0, b = 0;
    std::sscanf(toUTF8(digits).c_str(), "%02X%02X%02X", &r, &g, &b);
    store(ColourData(r / 255.0, g / 255.0, b / 255.0, kColourSpaceRGB, colour().getAlpha()));
    return true;
}
