#include "core/WStringFromAscii.h"
#include "core/splitIf.h"

#include <gtest/gtest.h>

#include <cwctype>

namespace {
using W = LightweightString<wchar_t>;
std::vector<W> pieces(std::initializer_list<const wchar_t*> l) {
    std::vector<W> v;
    for (auto* s : l) v.emplace_back(s);
    return v;
}
} // namespace

TEST(SplitIf, LineFeedsSplitLinesAndOneAtEitherEndMakesNoPiece) {
    EXPECT_EQ(Zn::splitIf(W(L"a\n\nb"), L'\n', 0), pieces({L"a", L"", L"b"}));
    EXPECT_EQ(Zn::splitIf(W(L"a\n"), L'\n', 0), pieces({L"a"}));
    EXPECT_EQ(Zn::splitIf(W(L"\na"), L'\n', 0), pieces({L"a"}));
    EXPECT_EQ(Zn::splitIf(W(L"\n"), L'\n', 0), pieces({L""}));
    EXPECT_EQ(Zn::splitIf(W(L""), L'\n', 0), pieces({L""}));
    EXPECT_EQ(Zn::splitIf(W(L"\n\na\n\n"), L'\n', 0), pieces({L"", L"a", L""})) << "only one at each end is dropped";
    EXPECT_EQ(Zn::splitIf(W(L"no breaks"), L'\n', 0), pieces({L"no breaks"}));
}

TEST(SplitIf, OptionsKeepOrSkipEmptyPiecesAndPredicatesChooseSeparators) {
    EXPECT_EQ(Zn::splitIf(W(L"/a,/b,"), L',', Zn::kSplitKeepEmpty), pieces({L"/a", L"/b", L""}));
    EXPECT_EQ(Zn::splitIf(W(L",,/a,,/b,"), L',', Zn::kSplitSkipEmpty), pieces({L"/a", L"/b"}));
    EXPECT_TRUE(Zn::splitIf(W(L""), L',', Zn::kSplitSkipEmpty).empty());
    EXPECT_EQ(Zn::splitIf(W(L"a,b"), L',', 99), pieces({L"a", L"b"})) << "unknown options split as option 0";
    auto words = Zn::splitIf(
        W(L"one two\tthree"), [](wchar_t c) { return std::iswspace(static_cast<wint_t>(c)) != 0; }, Zn::kSplitSkipEmpty);
    EXPECT_EQ(words, pieces({L"one", L"two", L"three"}));
    auto narrow = Zn::splitIf(LightweightString<char>("x;y"), ';');
    ASSERT_EQ(narrow.size(), 2u);
    EXPECT_EQ(narrow[1], "y");
    W withNul(L"a\0b", 3);
    EXPECT_EQ(Zn::splitIf(withNul, L'\0', 0), pieces({L"a", L"b"}));
}

TEST(WStringFromAscii, AsciiAndUtf8DecodeAndOtherBytesReadAsLatin1) {
    EXPECT_EQ(Zn::WStringFromAscii("Render 3 of 7: 42%"), L"Render 3 of 7: 42%");
    EXPECT_EQ(Zn::WStringFromAscii("caf\xc3\xa9"), L"caf\u00e9");
    EXPECT_EQ(Zn::WStringFromAscii("caf\xe9"), L"caf\u00e9") << "not UTF-8: each byte is a character";
    EXPECT_EQ(Zn::WStringFromAscii("\xef\xbf\xbd"), L"\ufffd") << "a real replacement character is kept";
    EXPECT_EQ(Zn::WStringFromAscii("\xc3"), L"\u00c3") << "a cut sequence is not UTF-8";
    EXPECT_TRUE(Zn::WStringFromAscii(nullptr).empty());
    EXPECT_TRUE(Zn::WStringFromAscii("").empty());
    EXPECT_EQ(Zn::WStringFromAscii("a\0b", 3).size(), 3u);
    EXPECT_EQ(Zn::WStringFromAscii(LightweightString<char>("x\xff")), L"x\u00ff");
}
