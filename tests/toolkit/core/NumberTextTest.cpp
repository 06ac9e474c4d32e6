#include "core/FloatFromWString.h"
#include "core/IntFromWString.h"
#include "core/StringFromFloat.h"
#include "core/StringFromInteger.h"
#include "core/WStringFromFloat.h"
#include "core/WStringFromInteger.h"
#include "core/asDouble.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>

TEST(NumberTexts, FixedDecimalsRoundToNearestAndNeverShowMinusZero) {
    EXPECT_EQ(Zn::WStringFromFloat(12.345678, 2, false), L"12.35");
    EXPECT_EQ(Zn::WStringFromFloat(50.0, 2, false), L"50.00");
    EXPECT_EQ(Zn::WStringFromFloat(50.0, 2, true), L"50");
    EXPECT_EQ(Zn::WStringFromFloat(2.50, 3, true), L"2.5");
    EXPECT_EQ(Zn::WStringFromFloat(-0.001, 2, false), L"0.00");
    EXPECT_EQ(Zn::WStringFromFloat(std::numeric_limits<double>::quiet_NaN(), 2, false), L"nan");
    EXPECT_EQ(Zn::WStringFromInteger(-42), L"-42");
    EXPECT_EQ(Zn::WStringFromInteger(255), L"255");
}

TEST(NumberTexts, ReadingTakesTheLeadingNumberOrTheFallback) {
    EXPECT_EQ(Zn::FloatFromWString(L" 12.5 %", 0.0), 12.5);
    EXPECT_EQ(Zn::FloatFromWString(L"+3", 0.0), 3.0);
    EXPECT_EQ(Zn::FloatFromWString(L"abc", 7.0), 7.0);
    EXPECT_EQ(Zn::FloatFromWString(L"", 0.0), 0.0);
    EXPECT_EQ(Zn::FloatFromWString(L"nan", 1.0), 1.0) << "no NaN reaches a colour from text";
    EXPECT_EQ(Zn::FloatFromWString(L"1\u00B0", 0.0), 1.0);
    EXPECT_EQ(asDouble("0.25 x"), 0.25);
    EXPECT_EQ(asDouble("x"), 0.0);
}

TEST(NumberTexts, AFloatTextKeepsEveryByteOfAColourAndIgnoresTheLocale) {
    std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
    for (int k = 0; k <= 255; ++k) {
        const double sent = asDouble(StringFromFloat(k / 255.0));
        EXPECT_EQ(static_cast<int>(sent * 255.0 + 0.5), k);
        // The eye dropper sends the value divided by 255 once more.
        EXPECT_EQ(static_cast<int>(asDouble(StringFromFloat(k / 255.0 / 255.0)) * 255.0 * 255.0 + 0.5), k);
    }
    EXPECT_EQ(StringFromFloat(0.5), "0.5");
    std::setlocale(LC_NUMERIC, "C");
}

TEST(NumberTexts, WholeNumbersReadAsStrtolAndHeldToInt) {
    EXPECT_EQ(Zn::IntFromWString(L"  -17 apples"), -17);
    EXPECT_EQ(Zn::IntFromWString(L"007"), 7);
    EXPECT_EQ(Zn::IntFromWString(L"x1"), 0);
    EXPECT_EQ(Zn::IntFromWString(L""), 0);
    EXPECT_EQ(Zn::IntFromWString(L"99999999999999999999"), std::numeric_limits<int>::max());
    EXPECT_EQ(Zn::IntFromWString(L"-99999999999"), std::numeric_limits<int>::min());
    EXPECT_EQ(Zn::StringFromInteger(-305), "-305");
}
