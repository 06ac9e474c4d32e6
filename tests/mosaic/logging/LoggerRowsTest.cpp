#include "LoggerTestSupport.h"

#include "controls/Gauge.h"
#include "controls/ScrollBar.h"
#include "draw/Canvas.h"
#include "draw/WordWrappingTextRenderer.h"
#include "platform/ResourceStrings.h"
#include "platform/SystemWatchdog.h"

using LB = LoggerBase;

namespace {
// A resource text with its "$TIME$" filled in.
LightweightString<wchar_t> timeText(ResId id, const wchar_t* time) {
    std::wstring s = resourceStrW(id).str();
    s.replace(s.find(L"$TIME$"), 6, time);
    return LightweightString<wchar_t>(s);
}
} // namespace

TEST_F(LoggerFixture, ItemsSplitAtLineFeedsAndALogNeverStartsWithBlankRows) {
    Logger* l = make();
    put(l, L"");
    EXPECT_EQ(l->rowCount(), 0) << "an empty first item makes no row";
    put(l, L"\n");
    EXPECT_EQ(l->rowCount(), 0) << "nor does a lone line feed";
    put(l, L"a\n\nb");
    EXPECT_EQ(texts(l), (std::vector<std::wstring>{L"a", L"", L"b"})) << "the inner empty piece is kept";
    put(l, L"c\n");
    put(l, L"\nd");
    put(l, L"");
    EXPECT_EQ(texts(l), (std::vector<std::wstring>{L"a", L"", L"b", L"c", L"d", L""})) << "a line feed at either end makes no row";
}

TEST_F(LoggerFixture, HeadingsGetOneBlankRowBeforeThemAndResizeTheRowsAfterThem) {
    Logger* l = make();
    int before = l->getFont().size, sub = UifStd::instance().getSubheadingFont().size;
    ASSERT_NE(before, sub) << "the test needs a subheading size of its own";
    put(l, L"Rendering", LB::otStatus);
    put(l, L"frame 1");
    put(l, L"Audio", LB::otStatus);
    put(l, L"Mix", LB::otHeading);
    put(l, L"Export", LB::otSection);
    EXPECT_EQ(texts(l), (std::vector<std::wstring>{L"Rendering", L"frame 1", L" ", L"Audio", L"Mix", L" ", L"Export"}))
        << "status and section get a blank row unless first; a plain heading none";
    const auto& rows = l->rows();
    EXPECT_EQ(rows[0].font.size, before) << "the heading shows in the font the panel had before it";
    EXPECT_EQ(rows[1].font.size, sub) << "the next row carries the subheading size";
    EXPECT_EQ(rows[2].type, LB::otNormal);
    EXPECT_EQ(rows[0].textColour, l->getPalette().subheadingText());
    EXPECT_EQ(rows[1].textColour, l->getPalette().text(kTextNormal));
}

TEST_F(LoggerFixture, RowsTakeTheColourOfTheirKindAndLinksShowTheirDescription) {
    Logger* l = make();
    const Palette& p = l->getPalette();
    const LB::eOutputType kinds[] = {LB::otNormal, LB::otQuiet,     LB::otWarning, LB::otEmphasis,
                                     LB::otError,  LB::otHyperLink, LB::otSuccess, static_cast<LB::eOutputType>(42)};
    const Colour want[] = {p.text(kTextNormal), p.text(kTextNormal), Colour(1.0, 1.0, 0.0), p.text(kTextDimmed),
                           p.warning(),         p.text(kTextNormal), Colour(0.1, 0.7, 0.3), p.text(kTextNormal)};
    for (auto k : kinds) put(l, L"row", k);
    for (std::size_t i = 0; i < std::size(kinds); ++i) EXPECT_EQ(l->rows()[i].textColour, want[i]) << "kind " << kinds[i];
    LB::HyperLink link({L"/media/a.mov", L"/media/b.mov"}, L"Two clips");
    put(l, link.toString(), LB::otHyperLink);
    XY<int> cell(0, l->rowCount() - 1);
    EXPECT_EQ(l->getFieldText(cell), L"Two clips");
    EXPECT_EQ(l->getTextStyle(cell), iTableAdaptor::kStyleLink);
    EXPECT_EQ(l->getTextStyle({0, 0}), iTableAdaptor::kStylePlain);
    EXPECT_EQ(l->getFieldText({0, 60000}), L"") << "a row past the end reads empty";
}

TEST_F(LoggerFixture, ALoggerOpenedOnAFilledLogReplaysItThenHearsOnlyNewItems) {
    Zn::Ptr<iTaskLog> log(new TaskLog);
    log->write(L"first", LB::otNormal);
    log->incIndent();
    log->write(L"second\nthird", LB::otWarning);
    Logger* l = make(0, log);
    EXPECT_EQ(texts(l), (std::vector<std::wstring>{L"first", L"second", L"third"}));
    EXPECT_EQ(l->rows()[1].indent, 1);
    EXPECT_EQ(l->rows()[2].type, LB::otWarning);
    log->write(L"fourth", LB::otNormal);
    TestKit::pump();
    EXPECT_EQ(texts(l), (std::vector<std::wstring>{L"first", L"second", L"third", L"fourth"})) << "nothing twice, nothing missed";
    Logger* second = make(0, log);
    EXPECT_EQ(texts(second), texts(l)) << "a second panel on the same log shows the same";
    EXPECT_EQ(l->taskLog(), log);
}

TEST_F(LoggerFixture, LongRowsWrapByTheUserWidthAtFirstAndByTheTextWidthAfterAResize) {
    Logger* l = make(0, {}, 8, 300);
    std::wstring words;
    for (int i = 0; i < 24; ++i) words += L"word" + std::to_wstring(i) + L" ";
    LightweightString<wchar_t> text(words);
    put(l, text);
    put(l, text, LB::otHyperLink);
    put(l, text, LB::otSection);
    Glib::FontDesc font = Canvas::createFont(l->rows()[0].font);
    int userW = l->getUserArea().width();
    unsigned short first = Glib::WordWrappingTextRenderer::calcNumDisplayLines(text, userW, font);
    ASSERT_GT(first, 2);
    EXPECT_EQ(l->rows()[0].numLines, first);
    EXPECT_GT(l->rows()[1].numLines, 1) << "links are wrapped when they arrive";
    ASSERT_EQ(l->rows()[2].text, L" ") << "a section has a blank row before it";
    EXPECT_GT(l->rows()[3].numLines, 1) << "and so are sections";
    EXPECT_EQ(l->getRowHeight(0), first * row);

    l->resize(l->width(), l->height());
    int textW = userW - UifStd::instance().getWidgetGap() - ScrollBar::thickness();
    EXPECT_EQ(l->rows()[0].numLines, Glib::WordWrappingTextRenderer::calcNumDisplayLines(text, textW, font));
    EXPECT_EQ(l->rows()[1].numLines, 1) << "a link never wraps after a resize";
    EXPECT_EQ(l->rows()[3].numLines, 1) << "nor does a section";
    l->resize(1800, l->height());
    EXPECT_EQ(l->rows()[0].numLines, 1) << "wide enough, one line";
    EXPECT_TRUE(Logger::canWordWrap(l->rows()[0]));
    EXPECT_FALSE(Logger::canWordWrap(l->rows()[1]));
}

TEST_F(LoggerFixture, IndentedRowsWrapInTheNarrowerSpaceLeftToThem) {
    Zn::Ptr<iTaskLog> log(new TaskLog);
    Logger* l = make(0, log, 8, 300);
    std::wstring words;
    for (int i = 0; i < 12; ++i) words += L"word" + std::to_wstring(i) + L" ";
    put(l, LightweightString<wchar_t>(words));
    log->setIndentLevel(4);
    put(l, LightweightString<wchar_t>(words));
    l->resize(l->width(), l->height());
    EXPECT_LT(l->rows()[0].numLines, l->rows()[1].numLines);
}

TEST_F(LoggerFixture, ProgressShowsTimeLeftAndTimeTakenFromTheInjectedClock) {
    Logger* l = make(Logger::kShowProgress);
    Gauge* g = l->gauge();
    ASSERT_NE(g, nullptr);
    auto beats = SystemWatchdog::heartbeatCount();
    Clock::setTestTime(10'000);
    l->progress(0.5);
    EXPECT_TRUE(g->getMessage().empty()) << "progress while idle starts the clock and shows no estimate";
    EXPECT_DOUBLE_EQ(g->getMeasure(), 0.5);
    Clock::setTestTime(40'000);
    l->progress(0.25);
    EXPECT_EQ(g->getMessage(), timeText(301, L"00:01:30")) << "30 s for a quarter: 90 s left";

    Clock::setTestTime(100'000);
    l->progress(0.0);
    Clock::setTestTime(200'000);
    l->progress(0.0);
    Clock::setTestTime(202'400);
    l->progress(1.0);
    EXPECT_EQ(g->getMessage(), timeText(300, L"00:00:02")) << "0.0 twice restarts twice; 2.4 s is 2 s";
    l->progress(0.0);
    Clock::advanceTestTime(2'500);
    l->progress(1.0);
    EXPECT_EQ(g->getMessage(), timeText(300, L"00:00:03")) << "2.5 s rounds up";
    Clock::advanceTestTime(3'600'000);
    l->progress(0.5);
    EXPECT_TRUE(g->getMessage().empty()) << "after the end the panel is idle again";
    Clock::advanceTestTime(3'700'000);
    l->progress(0.5);
    EXPECT_EQ(g->getMessage(), timeText(301, L"01:01:40")) << "hours, minutes and seconds";
    EXPECT_EQ(SystemWatchdog::heartbeatCount(), beats + 9);

    Logger* plain = make();
    EXPECT_EQ(plain->gauge(), nullptr);
    plain->progress(0.5);
    EXPECT_EQ(SystemWatchdog::heartbeatCount(), beats + 10) << "the heartbeat comes even without a gauge";
}

TEST_F(LoggerFixture, ProgressReportedToTheLogReachesTheGaugeOnTheUIThread) {
    Zn::Ptr<iTaskLog> log(new TaskLog);
    Logger* l = make(Logger::kShowProgress, log);
    Clock::setTestTime(1'000);
    log->updateProgress(0.0, L"start");
    TestKit::pump();
    Clock::setTestTime(5'000);
    log->updateProgress(0.5, L"half");
    EXPECT_DOUBLE_EQ(l->gauge()->getMeasure(), 0.0) << "nothing until the notice arrives";
    TestKit::pump();
    EXPECT_DOUBLE_EQ(l->gauge()->getMeasure(), 0.5);
    EXPECT_EQ(l->gauge()->getMessage(), timeText(301, L"00:00:04"));
    l->handleProgressUpdate(ProgressSnapshot(1.0f, L"done"));
    TestKit::pump();
    EXPECT_EQ(l->gauge()->getMessage(), timeText(300, L"00:00:04"));
}

TEST_F(LoggerFixture, APanelHoldsAtMost65535RowsAndDropsTheRest) {
    Zn::Ptr<iTaskLog> log(new TaskLog);
    for (int i = 0; i < 65'540; ++i) log->write(LightweightString<wchar_t>(std::to_wstring(i)), LB::otNormal);
    Logger* l = make(0, log);
    EXPECT_EQ(l->rowCount(), 65'535);
    EXPECT_EQ(l->getSize(), 65'535u);
    EXPECT_EQ(l->rows()[65'534].text, L"65534");
    put(l, L"one more\nand another", LB::otStatus);
    EXPECT_EQ(l->rowCount(), 65'535) << "later rows are dropped";
    EXPECT_EQ(l->rows()[65'534].text, L"65534");
    l->table()->revealRow(65'534, false);
    TestKit::pump();
    EXPECT_EQ(l->table()->getLastVisibleRow(), 65'534) << "the last row can be shown";
}

TEST_F(LoggerFixture, TheGaugeSitsOneIndentInsideThePanelWithClearSpaceBelowTheTable) {
    for (double scale : {1.0, 2.0}) {
        UifStd::instance().setScale(scale);
        const UifStd& u = UifStd::instance();
        Logger* l = make(Logger::kShowProgress);
        l->progress(1.0); // a full bar: the whole gauge in one colour
        TestKit::pump();
        const BoxInt user = l->getUserArea();
        const std::uint32_t back = TestKit::argb(l->getPalette().window());
        // How many pixels from `from` on, a step of `step` at a time, keep to one side of the panel's colour.
        auto run = [&](XY<int> from, XY<int> step, bool panel) {
            int n = 0;
            for (XY<int> p = from;
                 p.x >= user.x1 && p.x < user.x2 && p.y >= user.y1 && p.y < user.y2 && (TestKit::globPixel(l, p.x, p.y) == back) == panel;
                 p.x += step.x, p.y += step.y)
                ++n;
            return n;
        };
        const int indent = u.getIndentWidth(), x = (user.x1 + user.x2) / 2;
        const int below = run({x, user.y1}, {0, 1}, true);
        const int gauge = run({x, user.y1 + below}, {0, 1}, false);
        const int clear = run({x, user.y1 + below + gauge}, {0, 1}, true);
        EXPECT_EQ(below, indent) << "at " << scale << ": one indent between the panel's bottom and the gauge";
        EXPECT_EQ(gauge, u.getRowHeight()) << "a row high";
        EXPECT_GT(clear, 0) << "the gauge and the table do not touch";
        EXPECT_EQ(below + gauge + clear, u.getRowHeight() + 2 * u.getWidgetGap()) << "the table ends a row and two gaps up";
        EXPECT_GT(run({x, user.y1 + below + gauge + clear}, {0, 1}, false), 0) << "where it is painted";
        const int middle = user.y1 + below + gauge / 2;
        EXPECT_EQ(run({user.x1, middle}, {1, 0}, true), indent) << "one indent in from the left";
        EXPECT_EQ(run({user.x2 - 1, middle}, {-1, 0}, true), indent) << "and from the right";
        TestKit::reset();
    }
    UifStd::instance().setScale(1.0);
}
