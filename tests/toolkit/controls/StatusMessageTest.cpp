#include "controls/StatusMessage.h"
#include "PanelsTestSupport.h"
#include "controls/PushButton.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "platform/Clock.h"

namespace {

class StatusMessages : public ControlsTest {
protected:
    void SetUp() override {
        ControlsTest::SetUp();
        Clock::setTestTime(50000);
    }
    void TearDown() override {
        ControlsTest::TearDown();
        Clock::clearTestTime();
    }
    static void tickAfter(int ms) {
        Clock::advanceTestTime(ms);
        GlobManager::instance().tickTimers();
        TestKit::pump();
    }
    StatusMessage* window(const UIString& text, int timeoutMs, unsigned flags = 0) {
        StatusMessage::InitArgs args(text, 0, 0, timeoutMs, flags);
        const XY<int> size = StatusMessage::calcSize(text, kBelow, flags);
        args.width = size.x;
        args.height = size.y;
        auto* s = new StatusMessage(args);
        s->showBeside(BoxInt(300, 600, 400, 630));
        TestKit::pump();
        return s;
    }
};

// Counts into a number that outlives it, as the window goes when OK is pressed.
class CountingStatus : public StatusMessage {
public:
    CountingStatus(const InitArgs& args, int& oks) : StatusMessage(args), oks_(oks) {}
    void handleOkPressed() override {
        ++oks_;
        StatusMessage::handleOkPressed();
    }

private:
    int& oks_;
};

} // namespace

TEST_F(StatusMessages, AStatusWindowClosesWhenItsTimeIsUp) {
    StatusMessage* s = window(L"Saved 12 clips", 2000);
    const IdStamp stamp = s->stamp();
    EXPECT_TRUE(GlobManager::instance().isRealized(s));
    EXPECT_EQ(s->deadline(), 52000);
    EXPECT_EQ(s->getX(), 300) << "below the thing it speaks of, left edges lined up";
    EXPECT_EQ(s->getY() + s->height(), 600 - s->getGap());
    EXPECT_GT(inkPixels(s, s->textBox(), TestKit::argb(s->getPalette().window(kShadeLightest))), 30);
    EXPECT_TRUE(TestKit::pixelNear(s, 0, s->height() / 2, TestKit::argb(s->getPalette().window(kShadeDarkest)), 2)) << "a thin frame";

    tickAfter(1999);
    EXPECT_TRUE(EventHandler::valid(s, stamp));
    tickAfter(1);
    EXPECT_FALSE(EventHandler::valid(s, stamp));
}

TEST_F(StatusMessages, AStatusLineEmptiesAndStays) {
    const int row = UifStd::instance().getRowHeight();
    StatusMessage::InitArgs args(L"Rendering frame 10", 300, static_cast<unsigned short>(row), 1000);
    auto* line = host->createWidget<StatusMessage>(args, Glob::UserBottomLeft(0, 0));
    TestKit::pump();
    const std::uint32_t window = TestKit::argb(host->getPalette().window());
    EXPECT_TRUE(TestKit::pixelNear(line, 1, 1, window, 2)) << "as a child it paints in its panel's colours";
    EXPECT_GT(inkPixels(line, line->textBox(), window), 30);
    EXPECT_GE(line->textBox().height(), Glib::fontHeight(UifStd::instance().getDefaultFont())) << "a line one row high is not cut";

    tickAfter(600);
    line->setMessage(L"Rendering frame 11", 1000);
    tickAfter(600);
    EXPECT_EQ(line->getText().getString(), WString(L"Rendering frame 11")) << "a new text starts the time again";
    tickAfter(400);
    EXPECT_TRUE(line->getText().empty());
    EXPECT_EQ(line->parent(), host);
    EXPECT_EQ(inkPixels(line, BoxInt(0, 0, line->width(), line->height()), window), 0);
    EXPECT_EQ(line->deadline(), 0);

    line->setMessage(L"Idle", 0);
    tickAfter(100000);
    EXPECT_EQ(line->getText().getString(), WString(L"Idle")) << "no time given: the text stays";
    line->setMessage(L"Gone soon", -5);
    EXPECT_EQ(line->deadline(), 0) << "a negative time is no time";
}

TEST_F(StatusMessages, TheOkButtonEndsTheMessage) {
    const XY<int> plain = StatusMessage::calcSize(L"Read me", kBelow, 0);
    const XY<int> withOk = StatusMessage::calcSize(L"Read me", kBelow, StatusMessage::kOkButton);
    EXPECT_GT(withOk.y, plain.y + UifStd::instance().getRowHeight() - 1);

    StatusMessage::InitArgs args(L"Read me", static_cast<unsigned short>(withOk.x), static_cast<unsigned short>(withOk.y), 0,
                                 StatusMessage::kOkButton);
    int oks = 0;
    auto* s = new CountingStatus(args, oks);
    const IdStamp stamp = s->stamp();
    s->showBeside(BoxInt(500, 500, 510, 510));
    TestKit::pump();
    ASSERT_NE(s->getOkButton(), nullptr);
    EXPECT_GE(s->textBox().y1, s->getOkButton()->getY() + s->getOkButton()->height()) << "the text is above the button";
    TestKit::click(TestKit::centreOf(s->getOkButton()));
    EXPECT_EQ(oks, 1);
    EXPECT_FALSE(EventHandler::valid(s, stamp));
}

TEST_F(StatusMessages, TipWindowsGoBesideTheirAnchorAndStayOnTheScreen) {
    const Screen& screen = GlobManager::instance().screen();
    const XY<int> size(100, 40);
    const BoxInt anchor(200, 300, 260, 320);
    EXPECT_EQ(TipWindowBase::calcPosition(anchor, size, kBelow, 5), XY<int>(200, 255));
    EXPECT_EQ(TipWindowBase::calcPosition(anchor, size, kAbove, 5), XY<int>(200, 325));
    EXPECT_EQ(TipWindowBase::calcPosition(anchor, size, kRightOf, 5), XY<int>(265, 300));
    EXPECT_EQ(TipWindowBase::calcPosition(anchor, size, kLeftOf, 5), XY<int>(95, 300));

    const BoxInt low(200, 10, 260, 30);
    EXPECT_EQ(TipWindowBase::calcPosition(low, size, kBelow, 5), XY<int>(200, 35)) << "no room below: above";
    const BoxInt edge(screen.width() - 20, 300, screen.width(), 320);
    EXPECT_EQ(TipWindowBase::calcPosition(edge, size, kRightOf, 5).x, screen.width() - 20 - 5 - 100) << "no room right: left";
    EXPECT_EQ(TipWindowBase::calcPosition(edge, size, kBelow, 5).x, screen.width() - 100) << "kept on the screen";
    const XY<int> huge(screen.width() + 50, 20);
    EXPECT_EQ(TipWindowBase::calcPosition(anchor, huge, kBelow, 5).x, 0);

    TipWindowBase::InitArgs args(L"", 0, 0);
    TestKit::Owned<TipWindowBase> empty(new TipWindowBase(args));
    empty->showBeside(anchor);
    TestKit::pump();
    EXPECT_TRUE(empty->textBox().isEmpty()) << "a zero-sized tip is harmless";
    EXPECT_EQ(TipWindowBase::calcSize(UIString()).x, 2 * UifStd::instance().getWidgetGap());
}
