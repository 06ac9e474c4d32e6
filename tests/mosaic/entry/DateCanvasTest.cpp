#include "entry/datecanvas.h"
#include "controls/DropDownMenuButton.h"
#include "core/KeyCodes.h"
#include "draw/UifStd.h"
#include "glob/Messaging.h"
#include "platform/Clock.h"
#include "testkit/TestKit.h"

#include <memory>
#include <string>

namespace {

constexpr std::time_t k31March2023Noon = 1680264000;

class DateEntry : public TestKit::ScreenTest {
protected:
    void SetUp() override {
        Clock::setTestTimeZone("UTC");
        Clock::setTestWallTime(k31March2023Noon);
    }
    void TearDown() override {
        TestKit::ScreenTest::TearDown();
        Clock::clearTestWallTime();
        Clock::clearTestTimeZone();
    }
    datecanvas* make() {
        StandardPanel::InitArgs args(400, 80);
        args.palette = UifStd::instance().getColourScheme();
        auto* host = TestKit::realize(new StandardPanel(args));
        auto* d = new datecanvas(host->getPalette(), 300, static_cast<unsigned short>(Button::calcHeight()), 0, host->canvas());
        host->addChild(d, Glob::BottomLeft(10, 10));
        TestKit::pump();
        return d;
    }
    static DropDownMenuButton* button(const char* name) { return TestKit::find<DropDownMenuButton>(name); }
    // Steps the focused button's choice by the keyboard.
    static void step(const char* name, int key) {
        button(name)->claimKbdFocus();
        TestKit::pressKey(key);
        TestKit::pump();
    }
};

TEST_F(DateEntry, StartsTodayAndADayPastTheNewMonthsEndComesBackToItsLast) {
    datecanvas* d = make();
    EXPECT_EQ(d->day(), 30u);
    EXPECT_EQ(d->month(), 2u);
    EXPECT_EQ(d->years()[d->yearIndex()].getString(), L"2023");
    EXPECT_EQ(button("day")->getSelectedItemNameW(), L"31st");
    step("month", Keys::Up);
    ASSERT_EQ(d->month(), 1u) << "Up chooses the choice before";
    EXPECT_EQ(d->day(), 27u);
    EXPECT_EQ(d->numDaysShown(), 28u);
    EXPECT_EQ(button("day")->numChoices(), 28);
    EXPECT_EQ(button("day")->getSelectedItemNameW(), L"28th");
    EXPECT_EQ(button("month")->getSelectedItemNameW(), L"Feb");
}

TEST_F(DateEntry, LeapDaysFollowTheYearByTheFourYearRuleAlone) {
    datecanvas* d = make();
    EXPECT_NE(d->m_set_date(29, 2, 2024), 0);
    EXPECT_EQ(d->day(), 28u);
    step("year", Keys::Up);
    EXPECT_EQ(d->years()[d->yearIndex()].getString(), L"2023");
    EXPECT_EQ(d->day(), 27u);
    EXPECT_EQ(button("day")->getSelectedItemNameW(), L"28th");
    d->m_set_date(1, 8, 2023);
    const std::size_t rows = d->numDaysShown();
    step("month", Keys::Up);
    EXPECT_EQ(d->month(), 6u);
    EXPECT_EQ(d->numDaysShown(), rows) << "August to July keeps the 31 rows";
    EXPECT_EQ(d->m_set_date(1, 1, 1200), 0) << "a year not offered becomes the first";
    EXPECT_EQ(d->years()[0].getString(), L"1989");

    Clock::setTestWallTime(3786912000); // 2090
    datecanvas* later = make();
    later->m_set_date(1, 2, 2100);
    EXPECT_EQ(later->numDaysShown(), 29u) << "2100 counts as a leap year";
}

TEST_F(DateEntry, AClockBefore1974OffersNoYearsAndNoDays) {
    Clock::setTestWallTime(0);
    datecanvas* d = make();
    EXPECT_TRUE(d->years().empty());
    EXPECT_EQ(d->numDaysShown(), 0u);
    EXPECT_EQ(d->years().getYearIndex(1970), YearSet::kNotFound);
    EXPECT_TRUE(d->years()[3].getString().empty());
}

TEST_F(DateEntry, TheTextIsLocalMidnightOfTheDay) {
    datecanvas* d = make();
    d->m_set_date(29, 2, 2024);
    char buffer[50];
    EXPECT_EQ(d->m_generate_string(buffer), buffer);
    EXPECT_STREQ(buffer, "1709164800");
    Clock::setTestTimeZone("America/New_York");
    std::unique_ptr<char[]> made(d->m_generate_string(nullptr));
    EXPECT_STREQ(made.get(), "1709182800");
    long back = 1709182800;
    d->m_set_date(&back);
    EXPECT_EQ(d->day(), 28u);
}

TEST_F(DateEntry, TabWalksDayMonthAndYear) {
    make();
    button("day")->claimKbdFocus();
    TestKit::pressKey(Keys::Tab);
    EXPECT_EQ(get_kbd_focus(), button("month"));
    TestKit::pressKey(Keys::Tab);
    EXPECT_EQ(get_kbd_focus(), button("year"));
    TestKit::pressKey(Keys::Tab, Modifiers::Shift);
    EXPECT_EQ(get_kbd_focus(), button("month"));
}

} // namespace
