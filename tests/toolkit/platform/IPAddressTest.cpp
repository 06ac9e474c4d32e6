#include "platform/IPAddress.h"
#include "core/Utf8.h"
#include "platform/Clock.h"

#include <gtest/gtest.h>

namespace {
IPAddress parsed(const wchar_t* text, bool expectOk = true) {
    IPAddress a;
    EXPECT_EQ(a.fromString(text), expectOk) << "text: " << toUTF8(text).c_str();
    return a;
}
} // namespace

TEST(IPAddress, ReadsWhatTheAddressBoxWritesLeadingZerosAndEmptyPortIncluded) {
    IPAddress a = parsed(L"192.168.001.010");
    EXPECT_EQ(a.getPart(0), 192);
    EXPECT_EQ(a.getPart(2), 1);
    EXPECT_EQ(a.getPart(3), 10);
    EXPECT_EQ(a.port, 0);
    EXPECT_EQ(parsed(L"1.2.3.4:").port, 0);
    EXPECT_EQ(parsed(L" 10.0.0.1:65535 ").port, 65535);
    EXPECT_EQ(parsed(L"1.2.3.4").getPart(4), 0) << "no fifth octet";
}

TEST(IPAddress, RefusesBadTextAndLeavesTheAddressAlone) {
    IPAddress a;
    ASSERT_TRUE(a.fromString(L"9.8.7.6:5"));
    for (const wchar_t* bad : {L"", L"1.2.3", L"1.2.3.4.5", L"256.1.1.1", L"1.2.3.4:65536", L"1.2.3.4:123456", L"0001.2.3.4", L"1..2.3", L"a.b.c.d",
                               L"1.2.3.4:x", L"1.2.3.4 :80", L"-1.2.3.4", L"1.2.3.4::"}) {
        EXPECT_FALSE(a.fromString(bad)) << toUTF8(bad).c_str();
    }
    EXPECT_EQ(a.getPart(0), 9);
    EXPECT_EQ(a.port, 5);
}

TEST(WallClock, TestsChooseTodayAndTheTimeZone) {
    Clock::setTestWallTime(1709164800); // 2024-02-29 00:00 UTC
    Clock::setTestTimeZone("UTC");
    std::tm utc = localTimeOf(wallClockNow());
    EXPECT_EQ(utc.tm_year, 124);
    EXPECT_EQ(utc.tm_mon, 1);
    EXPECT_EQ(utc.tm_mday, 29);
    Clock::setTestTimeZone("America/New_York");
    EXPECT_EQ(localTimeOf(wallClockNow()).tm_mday, 28) << "five hours behind";
    Clock::clearTestTimeZone();
    Clock::clearTestWallTime();
    EXPECT_GT(wallClockNow(), 1709164800);
}
