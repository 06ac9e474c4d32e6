#include "core/LightweightString.h"
#include "core/LightweightVector.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

TEST(LightweightString, CopiesShareStorageUntilOneIsWritten) {
    LightweightString<char> a("timeline");
    LightweightString<char> b = a;
    EXPECT_TRUE(a.sharesStorageWith(b));
    EXPECT_EQ(a.useCount(), 2);

    b += " 2";
    EXPECT_FALSE(a.sharesStorageWith(b));
    EXPECT_EQ(a, "timeline");
    EXPECT_EQ(b, "timeline 2");
    EXPECT_EQ(a.useCount(), 1);

    LightweightString<char> c = a;
    c.set(0, 'T');
    EXPECT_EQ(a, "timeline");
    EXPECT_EQ(c, "Timeline");
}

TEST(LightweightString, NullRecordIsTheEmptyString) {
    LightweightString<wchar_t> none;
    EXPECT_TRUE(none.isNull());
    EXPECT_TRUE(none.empty());
    EXPECT_STREQ(none.c_str(), L"");
    EXPECT_EQ(none, LightweightString<wchar_t>(L""));
    EXPECT_TRUE(LightweightString<char>(static_cast<const char*>(nullptr)).empty());
    EXPECT_EQ(none.substr(3), LightweightString<wchar_t>());
    EXPECT_EQ(none[0], L'\0');
    EXPECT_EQ(none.front(), L'\0');
    EXPECT_EQ(none.back(), L'\0');
    none += L"x";
    EXPECT_EQ(none, L"x");
    EXPECT_EQ(none[1], L'\0');
}

TEST(LightweightString, CompareTreatsNullAsEmpty) {
    EXPECT_EQ(LightweightString<char>::compare(nullptr, ""), 0);
    EXPECT_EQ(LightweightString<char>::compare("", nullptr), 0);
    EXPECT_LT(LightweightString<char>::compare(nullptr, "a"), 0);
    EXPECT_GT(LightweightString<char>::compare("b", nullptr), 0);
    EXPECT_LT(LightweightString<char>::compare("abc", "abd"), 0);
}

TEST(LightweightString, SearchAndEdit) {
    LightweightString<char> s("clip.mov");
    EXPECT_EQ(s.find('.'), 4u);
    EXPECT_EQ(s.substr(5), "mov");
    EXPECT_TRUE(s.endsWith(".mov"));
    EXPECT_TRUE(s.startsWith("clip"));
    s.erase(4);
    EXPECT_EQ(s, "clip");
    s.insert(0, "my ");
    EXPECT_EQ(s, "my clip");
    s.replace(0, 2, "your");
    EXPECT_EQ(s, "your clip");
    EXPECT_EQ("a" + LightweightString<char>("b") + 'c', "abc");
}

TEST(LightweightString, CopiesOnOtherThreadsKeepTheirOwnText) {
    LightweightString<char> shared("shared text");
    std::vector<std::thread> threads;
    std::vector<LightweightString<char>> results(4);
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&, i] {
            for (int n = 0; n < 1000; ++n) {
                LightweightString<char> mine = shared;
                mine += char('0' + i);
                results[i] = mine;
            }
        });
    for (auto& t : threads) t.join();
    for (int i = 0; i < 4; ++i) EXPECT_EQ(results[i], LightweightString<char>("shared text") + char('0' + i));
    EXPECT_EQ(shared, "shared text");
    EXPECT_EQ(shared.useCount(), 1);
}

TEST(LightweightVector, CopiesShareElements) {
    LightweightVector<int> a;
    a.push_back(1);
    LightweightVector<int> b = a;
    b.push_back(2);
    EXPECT_EQ(a.size(), 2u);
    EXPECT_EQ(a[1], 2);
    LightweightVector<int> empty;
    EXPECT_TRUE(empty.empty());
    empty.erase(5);
    EXPECT_TRUE(empty.empty());
}
