#include "value/DataConvert.h"
#include "core/Utf8.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {
template <class T>
WString text(const T& v) {
    return DataConvert::convert<T, WString>(v);
}
template <class T>
T from(const wchar_t* s) {
    return DataConvert::convert<WString, T>(WString(s));
}
} // namespace

TEST(DataConvert, NumbersSurviveARoundTripThroughText) {
    for (double d : {0.0, 0.1, -2.5, 1.0 / 3.0, 1e-300, 123456789.125}) EXPECT_EQ(from<double>(text(d).c_str()), d) << toUTF8(text(d)).c_str();
    EXPECT_EQ(text(0.1), WString(L"0.1")) << "the shortest text that reads back";
    EXPECT_EQ(text(-42), WString(L"-42"));
    EXPECT_EQ(text(4000000000u), WString(L"4000000000"));
    EXPECT_EQ(text(true), WString(L"true"));
    EXPECT_EQ(text(false), WString(L"false"));
    EXPECT_TRUE(std::isnan(from<double>(text(std::nan("")).c_str())));
}

TEST(DataConvert, TextThatIsNoNumberDegradesToTheNearestSenseOrZero) {
    EXPECT_EQ(from<int>(L"abc"), 0);
    EXPECT_EQ(from<int>(L""), 0);
    EXPECT_EQ(from<int>(L"  17\t"), 17);
    EXPECT_EQ(from<int>(L"2.9"), 2) << "a decimal in an integer field is truncated";
    EXPECT_EQ(from<int>(L"99999999999"), std::numeric_limits<int>::max());
    EXPECT_EQ(from<int>(L"nan"), 0);
    EXPECT_EQ(from<unsigned>(L"-5"), 0u);
    EXPECT_EQ(from<double>(L"12px"), 12.0);
    EXPECT_EQ(from<double>(L"\u00e9\u4e2d"), 0.0);
    EXPECT_TRUE(from<bool>(L"TRUE"));
    EXPECT_TRUE(from<bool>(L"1"));
    EXPECT_FALSE(from<bool>(L"no"));
    EXPECT_FALSE(from<bool>(L"0"));
}

TEST(DataConvert, NumbersBetweenTypesTruncateAndSaturate) {
    EXPECT_EQ((DataConvert::convert<double, int>(2.9)), 2);
    EXPECT_EQ((DataConvert::convert<double, int>(-2.9)), -2);
    EXPECT_EQ((DataConvert::convert<double, int>(std::nan(""))), 0);
    EXPECT_EQ((DataConvert::convert<double, int>(-1e20)), std::numeric_limits<int>::min());
    EXPECT_EQ((DataConvert::convert<int, unsigned>(-1)), 0u);
    EXPECT_EQ((DataConvert::convert<unsigned, int>(4000000000u)), std::numeric_limits<int>::max());
    EXPECT_EQ((DataConvert::convert<int, double>(7)), 7.0);
    EXPECT_TRUE((DataConvert::convert<int, bool>(-3)));
}

TEST(DataConvert, ConstrainHoldsValuesInRangeWhicheverWayRoundItIs) {
    EXPECT_EQ(DataConvert::constrain(99, 0, 10), 10);
    EXPECT_EQ(DataConvert::constrain(-1, 0, 10), 0);
    EXPECT_EQ(DataConvert::constrain(5, 0, 10), 5);
    EXPECT_EQ(DataConvert::constrain(99, 10, 0), 10);
    EXPECT_EQ(DataConvert::constrain(std::nan(""), 1.0, 2.0), 1.0);
}

TEST(DataConvert, ColoursHaveATextFormAndForgiveBadText) {
    NormalisedRGB c(0.5f, 0.25f, 1.0f, 0.75f);
    EXPECT_EQ(text(c), WString(L"0.5 0.25 1 0.75"));
    EXPECT_EQ(from<NormalisedRGB>(text(c).c_str()), c);
    EXPECT_EQ(from<NormalisedRGB>(L"1, 0, 0"), NormalisedRGB(1, 0, 0, 1));
    EXPECT_EQ(from<NormalisedRGB>(L"#ff0080"), NormalisedRGB(1, 0, 128 / 255.0f, 1));
    EXPECT_EQ(from<NormalisedRGB>(L"2 -1 0.5 9"), NormalisedRGB(1, 0, 0.5f, 1)) << "components are held to 0..1";
    EXPECT_EQ(from<NormalisedRGB>(L"red"), NormalisedRGB());
    EXPECT_EQ(from<NormalisedRGB>(L"#12"), NormalisedRGB());
    EXPECT_EQ(from<NormalisedRGB>(L"nan nan nan"), NormalisedRGB(0, 0, 0, 1));
}
