#include "PanelsTestSupport.h"
#include "controls/PushButton.h"
#include "controls/Warn.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "glob/Messaging.h"

namespace {

class Messages : public ControlsTest {
protected:
    static bool alive(Glob* g, const IdStamp& s) { return EventHandler::valid(g, s); }
    static void expectCentred(const Glob* g) {
        const Screen& s = GlobManager::instance().screen();
        EXPECT_NEAR(g->getX() + g->width() / 2, s.width() / 2, 1);
        EXPECT_NEAR(g->getY() + g->height() / 2, s.height() / 2, 1);
    }
};

} // namespace

TEST_F(Messages, AMessageIsCentredModalAndClosesOnOk) {
    Message* m = makeMessage(L"The render has finished.");
    const IdStamp stamp = m->stamp();
    TestKit::pump();
    EXPECT_TRUE(GlobManager::instance().isRealized(m));
    EXPECT_TRUE(GlobManager::instance().isModal(m));
    expectCentred(m);
    ASSERT_EQ(m->numButtons(), 1);
    EXPECT_EQ(m->getButton(0)->getLabel().getString(), WString(L"OK"));
    EXPECT_TRUE(m->getButton(0)->isDefault());
    EXPECT_EQ(get_kbd_focus(), m->getButton(0));
    EXPECT_EQ(m->getTitle().getString(), WString(L"Information")) << "a message without a title gets the default";
    EXPECT_GT(inkPixels(m, m->textBox(), TestKit::argb(m->getPalette().window())), 50) << "the text is written";

    TestKit::click(TestKit::centreOf(host));
    EXPECT_TRUE(alive(m, stamp)) << "a click beside a modal message does not close it";
    EXPECT_TRUE(host->messages.empty());

    TestKit::click(TestKit::centreOf(m->getButton(0)));
    EXPECT_FALSE(alive(m, stamp));
    EXPECT_EQ(GlobManager::instance().topModal(), nullptr);
}

TEST_F(Messages, ReturnConfirmsAndEscapeDismisses) {
    Message* m = makeMessage(L"Done", L"Saved.", WidgetCallback("acknowledged"), host);
    IdStamp stamp = m->stamp();
    TestKit::pressKey(Keys::Return);
    EXPECT_FALSE(alive(m, stamp));
    EXPECT_EQ(host->messages, std::vector<std::string>{"acknowledged"});

    m = makeMessage(L"Done", L"Saved.", WidgetCallback("acknowledged"), host);
    stamp = m->stamp();
    TestKit::pressKey(Keys::Escape);
    EXPECT_FALSE(alive(m, stamp));
    EXPECT_EQ(host->messages.size(), 1u) << "Escape fires nothing";

    m = makeMessage(L"Done", L"Saved.", WidgetCallback("acknowledged"), host);
    stamp = m->stamp();
    delete host;
    host = nullptr;
    TestKit::pressKey(Keys::Return);
    EXPECT_FALSE(alive(m, stamp)) << "a client that died meanwhile is not written to";
}

TEST_F(Messages, LongTextWrapsAndEmptyTextStillMakesAPanel) {
    const XY<int> shortSize = Message::calcSize(UIString(), L"Short.", 0);
    LightweightString<wchar_t> essay;
    for (int i = 0; i < 40; ++i) essay += L"The quick brown fox jumps over the lazy dog. ";
    const XY<int> longSize = Message::calcSize(UIString(), UIString(essay), 0);
    EXPECT_EQ(longSize.x, shortSize.x) << "text wraps rather than widening the panel";
    EXPECT_GT(longSize.y, shortSize.y + 3 * UifStd::instance().getRowHeight());
    const Message::Analysis a = Message::analyse(UIString(essay), Message::calcTextWidth(UIString(), 0));
    EXPECT_GT(a.lines.size(), 4u);
    EXPECT_EQ(a.height % static_cast<int>(a.lines.size()), 0);

    LightweightString<wchar_t> longTitle;
    for (int i = 0; i < 12; ++i) longTitle += L"Title words ";
    EXPECT_GT(Message::calcSize(UIString(longTitle), L"x", 0).x, shortSize.x) << "a long title widens the panel";

    Message* empty = makeMessage(UIString());
    TestKit::pump();
    EXPECT_GT(empty->height(), UifStd::instance().getRowHeight());
    EXPECT_EQ(inkPixels(empty, empty->textBox(), TestKit::argb(empty->getPalette().window())), 0);
    empty->press(5);
    empty->press(0);
    TestKit::pump();
    EXPECT_EQ(GlobManager::instance().roots().size(), 1u) << "pressing past the end only closes";
}

TEST_F(Messages, AWarningHasItsButtonsAndTheWarningColour) {
    int calls = 0;
    std::string last;
    std::vector<WidgetCallback> callbacks{WidgetCallback(countingCallback(calls, &last), "replace"), WidgetCallback("keep")};
    Warn* w = make_warn(L"File exists", L"Replace the file?", {L"Replace", L"Keep", L"Cancel"}, callbacks, host, true);
    TestKit::pump();
    expectCentred(w);
    ASSERT_EQ(w->numButtons(), 3);
    const int bw = Warn::calcButtonWidth({L"Replace", L"Keep", L"Cancel"});
    for (int i = 0; i < 3; ++i) EXPECT_EQ(w->getButton(i)->width(), bw);
    EXPECT_LT(w->getButton(0)->getX(), w->getButton(1)->getX());
    EXPECT_EQ(w->getButton(0)->getY(), w->getButton(2)->getY());
    const BoxInt stripe = w->stripeBox();
    EXPECT_TRUE(TestKit::pixelNear(w, stripe.x1 + 1, (stripe.y1 + stripe.y2) / 2, TestKit::argb(w->getPalette().warning()), 2));
    EXPECT_GE(Warn::calcButtonWidth({L"A label far longer than any button's least width"}),
              Button::calcWidth(L"A label far longer than any button's least width"));

    IdStamp stamp = w->stamp();
    TestKit::click(TestKit::centreOf(w->getButton(1)));
    EXPECT_FALSE(alive(w, stamp));
    EXPECT_EQ(host->messages, std::vector<std::string>{"keep"}) << "a button without a callback posts its message to the client";
    EXPECT_EQ(calls, 0);

    w = make_warn(UIString(), L"Replace?", {L"Replace", L"Keep", L"Cancel"}, callbacks, host, false);
    EXPECT_EQ(w->getTitle().getString(), WString(L"Warning"));
    EXPECT_FALSE(GlobManager::instance().isModal(w));
    stamp = w->stamp();
    TestKit::pressKey(Keys::Return);
    EXPECT_EQ(calls, 1) << "Return presses the first button";
    EXPECT_EQ(last, "replace");
    EXPECT_FALSE(alive(w, stamp));

    w = make_warn(UIString(), L"Replace?", {L"Replace", L"Keep", L"Cancel"}, callbacks, host, true);
    stamp = w->stamp();
    TestKit::click(TestKit::centreOf(w->getButton(2)));
    EXPECT_FALSE(alive(w, stamp)) << "a label without a callback only closes";
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(host->messages.size(), 1u);

    w = make_warn(UIString(), UIString(), {}, {}, nullptr, true);
    ASSERT_EQ(w->numButtons(), 1) << "no labels give an OK button";
    stamp = w->stamp();
    TestKit::click(TestKit::centreOf(w->getButton(0)));
    EXPECT_FALSE(alive(w, stamp));
}
