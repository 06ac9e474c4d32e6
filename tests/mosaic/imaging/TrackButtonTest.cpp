#include "imaging/TrackButton.h"
#include "controls/StandardPanel.h"
#include "draw/FontDesc.h"
#include "draw/UifStd.h"
#include "testkit/TestKit.h"

#include <vector>

namespace {

// A parent that keeps the names of the messages it is sent.
class Track : public StandardPanel {
public:
    explicit Track(const InitArgs& a) : StandardPanel(a) {}
    int handleMessageEvent(const LightweightString<char>& m, Glob* sender) override {
        heard.push_back(m.str());
        return StandardPanel::handleMessageEvent(m, sender);
    }
    std::vector<std::string> heard;
};

class TrackButtons : public TestKit::ScreenTest {
protected:
    TrackButton* make(int w, int h, std::vector<LightweightString<wchar_t>> names = {L"V1"}) {
        StandardPanel::InitArgs args(static_cast<unsigned short>(w + 20), static_cast<unsigned short>(h + 20));
        args.palette = UifStd::instance().getColourScheme();
        parent = TestKit::realize(new Track(args));
        TrackButton::InitArgs b({}, {}, static_cast<unsigned short>(w), static_cast<unsigned short>(h));
        button = parent->createWidget<TrackButton>(b, Glob::BottomLeft(10, 10));
        button->setName("track");
        button->setTrackName(names);
        TestKit::pump();
        return button;
    }
    int pixelsOf(const Colour& c) const { return TestKit::countPixels(button, BoxInt(0, 0, button->width(), button->height()), c, 2); }

    Track* parent = nullptr;
    TrackButton* button = nullptr;
};

} // namespace

TEST(TrackButtonResize, ParsesItsOwnTextAndZeroesAnythingElse) {
    TrackButton::ResizeParams p(LightweightString<char>("TrackBtnResize 10 20"));
    EXPECT_EQ(p.first, 10);
    EXPECT_EQ(p.second, 20);
    EXPECT_EQ(p.asString().str(), "TrackBtnResize 10 20");
    EXPECT_EQ(TrackButton::ResizeParams(p.asString()).asString().str(), "TrackBtnResize 10 20");

    for (const char* bad : {"", "TrackBtn 1 2", "trackbtnresize 1 2", "TrackBtnResize x y"}) {
        TrackButton::ResizeParams q{LightweightString<char>(bad)};
        EXPECT_EQ(q.first, 0) << bad;
        EXPECT_EQ(q.second, 0) << bad;
    }
    TrackButton::ResizeParams half{LightweightString<char>("TrackBtnResize 7")};
    EXPECT_EQ(half.first, 0) << "first is taken only when both numbers came";
}

TEST_F(TrackButtons, ANewButtonIsSelectedLatchesAndSendsItsFirstNameAsMessage) {
    make(80, 30, {L"Audio 1", L"Audio 2"});
    EXPECT_TRUE(button->isSelected());
    EXPECT_EQ(button->getCallback().message().str(), "Audio 1");
    TestKit::click(button);
    TestKit::pump();
    EXPECT_FALSE(button->isSelected());
    EXPECT_EQ(parent->heard.back(), "Audio 1");
}

TEST_F(TrackButtons, ANameTooWideKeepsOnlyItselfAtTheSmallSize) {
    make(40, 60, {L"A very long track name indeed", L"B", L"C"});
    ASSERT_EQ(button->getTrackNames().size(), 1U);
    EXPECT_EQ(button->getTrackNames()[0].str(), L"A very long track name indeed");
    EXPECT_EQ(button->getFont().size, 12);

    button->setTrackName(std::vector<LightweightString<wchar_t>>{L"A", L"B", L"C"});
    EXPECT_EQ(button->getTrackNames().size(), 3U) << "short names all stay";
    EXPECT_EQ(button->calcLineHeight(), 20);
}

TEST_F(TrackButtons, AMiddleClickIsSoloOnlyOnAButtonTallerThanTheGrab) {
    make(60, 30);
    TestKit::click(button, Event::kMiddle);
    TestKit::pump();
    EXPECT_EQ(std::count(parent->heard.begin(), parent->heard.end(), TrackButton::SoloSelectChanMsg), 1);

    make(60, TrackButton::grabSize());
    TestKit::click(button, Event::kMiddle);
    TestKit::pump();
    EXPECT_TRUE(parent->heard.empty()) << "a button no higher than the grab zone reports no solo";
}

TEST_F(TrackButtons, TheResizeCursorCoversTheEdgesAndAllOfAButtonTwiceTheGrabHigh) {
    make(60, 2 * TrackButton::grabSize());
    EXPECT_EQ(button->contextCursor({5, 5}), kCursorHand) << "resize not allowed";
    button->setResizeAllowed(true);
    for (int y = 0; y < button->height(); ++y) EXPECT_EQ(button->contextCursor({5, y}), kCursorResizeVertical) << y;

    make(60, 40);
    button->setResizeAllowed(true);
    EXPECT_EQ(button->contextCursor({5, 0}), kCursorResizeVertical);
    EXPECT_EQ(button->contextCursor({5, 39}), kCursorResizeVertical);
    EXPECT_EQ(button->contextCursor({5, 20}), kCursorHand);
    button->setActive(false);
    EXPECT_EQ(button->contextCursor({5, 0}), kCursorArrow);
}

TEST_F(TrackButtons, TextShowsInTheColourOfItsStateAndBrightensUnderTheMouse) {
    const Colour selected(0.8, 0.9, 1.0, true), normal(0.3, 0.36, 0.4, true);
    make(80, 30, {L"HHHH"});
    EXPECT_GT(pixelsOf(selected), 5);
    EXPECT_EQ(pixelsOf(normal), 0);

    button->setSelected(false, kRedraw);
    TestKit::mouseMove({1, 1});
    TestKit::pump();
    EXPECT_GT(pixelsOf(normal), 5);
    EXPECT_EQ(pixelsOf(selected), 0);

    TestKit::mouseMove(TestKit::centreOf(button));
    TestKit::pump();
    EXPECT_GT(pixelsOf(scale(normal, 1.6)), 5) << "hovered";
    EXPECT_EQ(pixelsOf(normal), 0);
}

TEST_F(TrackButtons, LinesUnderNinePixelsShowNoText) {
    make(80, 8, {L"HHHH"});
    EXPECT_EQ(TestKit::inkPixels(button, BoxInt(0, 0, 80, 8), TestKit::argb(button->getBackCol())), 0);
}

TEST_F(TrackButtons, TheGlowPeaksInTheGlowColourBehindTheName) {
    make(80, 30, {L" "});
    EXPECT_FALSE(button->isGlowEnabled()) << "off unless configured";
    const Colour glow(0.0, 1.0, 0.0, true);
    button->setGlowColour(glow);
    EXPECT_TRUE(button->isGlowEnabled());
    TestKit::pump();
    EXPECT_GT(pixelsOf(glow), 0) << "the middle of the glow is the glow colour";
    EXPECT_TRUE(TestKit::pixelNear(button, 1, 1, TestKit::argb(button->getBackCol()))) << "outside it the face";

    button->setSelected(false, kRedraw);
    TestKit::pump();
    EXPECT_EQ(pixelsOf(glow), 0) << "no glow when deselected";
}
