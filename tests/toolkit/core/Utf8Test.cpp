#include "core/Utf8.h"

#include <gtest/gtest.h>

TEST(Utf8, RoundTripsEveryPlane) {
    LightweightString<wchar_t> text(L"Clip \u00e9t\u00e9 \u65e5\u672c \U0001F3AC");
    LightweightString<char> utf8 = toUTF8(text);
    EXPECT_EQ(utf8, "Clip \xC3\xA9t\xC3\xA9 \xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x8E\xAC");
    EXPECT_EQ(fromUTF8(utf8), text);
}

TEST(Utf8, BadBytesBecomeReplacementCharacters) {
    // A lone continuation byte, a truncated sequence, an overlong slash and an encoded surrogate.
    EXPECT_EQ(fromUTF8("a\x80"
                       "b"),
              LightweightString<wchar_t>(L"a\uFFFDb"));
    EXPECT_EQ(fromUTF8("ab\xE6\x97"), LightweightString<wchar_t>(L"ab\uFFFD\uFFFD"));
    EXPECT_EQ(fromUTF8("\xC0\xAF"), LightweightString<wchar_t>(L"\uFFFD\uFFFD"));
    EXPECT_EQ(fromUTF8("\xED\xA0\x80"), LightweightString<wchar_t>(L"\uFFFD\uFFFD\uFFFD"));
    EXPECT_EQ(fromUTF8(static_cast<const char*>(nullptr)), LightweightString<wchar_t>());
}

TEST(Utf8, WideValuesOutsideUnicodeBecomeReplacementCharacters) {
    wchar_t bad[] = {L'x', static_cast<wchar_t>(0x110000), static_cast<wchar_t>(0xD800), 0};
    EXPECT_EQ(toUTF8(bad), "x\xEF\xBF\xBD\xEF\xBF\xBD");
}
