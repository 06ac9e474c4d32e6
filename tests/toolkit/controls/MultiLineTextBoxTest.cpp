#include "TextControlKit.h"

#include "controls/LinkAwareMultiLineTextBox.h"

using namespace TextControlKit;

namespace {

class MultiLineTextBoxTest : public ::testing::Test {
protected:
    void SetUp() override { panel = makePanel(400, 300); }
    void TearDown() override {
        delete panel;
        TestKit::reset();
        OS()->setClipboardText({});
    }
    template <class T = MultiLineTextBox>
    T* addBox(const wchar_t* text, int w, int lines, XY<int> at = {10, 10}) {
        typename T::InitArgs args(UIString(text), static_cast<unsigned short>(w),
                                  static_cast<unsigned short>(MultiLineTextBox::calcHeightForLines(lines)));
        return panel->createWidget<T>(args, Glob::BottomLeft(at.x, at.y));
    }
    // The screen point of a point of the layout of a box that has not scrolled.
    XY<int> layoutPoint(TextBoxBase* b, int x, int yDown) {
        return TestKit::screenPointOf(b, {b->getMargin() + x, b->height() - b->getMargin() - yDown});
    }

    RecordingPanel* panel = nullptr;
};

// Records the links it is asked to open instead of starting a browser.
class RecordingLinkBox : public LinkAwareMultiLineTextBox {
public:
    using LinkAwareMultiLineTextBox::LinkAwareMultiLineTextBox;
    std::vector<LightweightString<wchar_t>> opened;

protected:
    void openLink(const LightweightString<wchar_t>& url) override { opened.push_back(url); }
};

} // namespace

TEST_F(MultiLineTextBoxTest, TextWrapsAtTheWidthAndTheHeightForLinesFitsThem) {
    MultiLineTextBox* box = addBox(L"one two three four five six seven eight nine ten", 90, 3);
    int lines = box->numDisplayLines();
    EXPECT_GT(lines, 2);
    Glib::TextLayout one(L"x", box->getFont());
    int lineHeight = one.height();
    EXPECT_EQ(MultiLineTextBox::calcHeightForLines(4) - MultiLineTextBox::calcHeightForLines(3), lineHeight);
    EXPECT_EQ(MultiLineTextBox::calcHeightForLines(2, 0, 0), 2 * lineHeight);
    EXPECT_EQ(MultiLineTextBox::calcHeightForLines(0, 0, 0), lineHeight) << "never less than one line";
    EXPECT_GT(MultiLineTextBox::calcHeightForLines(1, 30, 0), lineHeight) << "a larger font takes more room";

    // Three lines of text exactly fill a box made for three: each row is inked,
    // and nothing needs scrolling.
    MultiLineTextBox* three = addBox(L"Ag\nAg\nAg", 100, 3, {200, 10});
    three->setMargin(0);
    EXPECT_EQ(three->numDisplayLines(), 3);
    const Palette& p = three->getPalette();
    for (int row = 0; row < 3; ++row) {
        BoxInt band(2, three->height() - (row + 1) * lineHeight, 40, three->height() - row * lineHeight);
        EXPECT_GT(inkPixels(three, band, p.childWindow()), 10) << "line " << row;
    }
    set_kbd_focus(three);
    TestKit::pressKey(Keys::End, Modifiers::Control);
    EXPECT_EQ(three->getScrollOffset(), 0);
}

TEST_F(MultiLineTextBoxTest, ReturnStartsALineAndUpAndDownKeepTheirColumn) {
    MultiLineTextBox* box = addBox(L"", 300, 4);
    int returns = 0;
    box->requestCallback(countingCallback(returns), TextBoxBase::kReturnPressed);
    set_kbd_focus(box);
    TestKit::typeText(L"third line");
    TestKit::pressKey(Keys::Return);
    TestKit::typeText(L"ab");
    TestKit::pressKey(Keys::Return);
    TestKit::typeText(L"third line");
    EXPECT_EQ(box->getString(), L"third line\nab\nthird line");
    EXPECT_EQ(returns, 0);
    EXPECT_EQ(box->numDisplayLines(), 3);

    TestKit::pressKey(Keys::Home);
    for (int i = 0; i < 5; ++i) TestKit::pressKey(Keys::Right);
    TestKit::pressKey(Keys::Up);
    EXPECT_EQ(box->getCursorPosition(), 13u) << "a short line takes the caret to its end";
    TestKit::pressKey(Keys::Up);
    EXPECT_EQ(box->getCursorPosition(), 5u) << "and the next move goes back to the column it came from";
    TestKit::pressKey(Keys::Down, Modifiers::Shift);
    TestKit::pressKey(Keys::Down, Modifiers::Shift);
    EXPECT_EQ(box->getSelectedText(), L" line\nab\nthird");
    TestKit::pressKey(Keys::Up);
    TestKit::pressKey(Keys::Up);
    TestKit::pressKey(Keys::Up);
    EXPECT_EQ(box->getCursorPosition(), 0u) << "up from the first line goes to the start";
    TestKit::pressKey(Keys::End);
    EXPECT_EQ(box->getCursorPosition(), 10u) << "End stops at the line's end";

    TestKit::pressKey(Keys::Return, Modifiers::Control);
    EXPECT_EQ(returns, 1) << "Control+Return commits";
    EXPECT_EQ(box->numDisplayLines(), 3);
}

TEST_F(MultiLineTextBoxTest, ClicksAndDragsFindTheirLine) {
    MultiLineTextBox* box = addBox(L"alpha\nbravo\ncharlie", 200, 4);
    Glib::TextLayout l(L"alpha\nbravo\ncharlie", box->getFont(), box->width());
    Glib::TextLayout::Rect second = l.caret(8);
    TestKit::click(layoutPoint(box, second.x, second.top + second.height / 2));
    EXPECT_EQ(box->getCursorPosition(), 8u);
    Glib::TextLayout::Rect third = l.caret(15);
    TestKit::drag(layoutPoint(box, l.caret(2).x, 3), layoutPoint(box, third.x, third.top + third.height / 2));
    EXPECT_EQ(box->getSelectedText(), L"pha\nbravo\ncha");
}

TEST_F(MultiLineTextBoxTest, TextSetFromOutsideScrollsToItsEndOnlyWhenItDoesNotFit) {
    // Text that fits is told so from cached advances, text that does not is laid out;
    // boxes a few pixels short of a line or over it must see the same boundary.
    const int lineHeight = Glib::TextLayout(L"x", Glib::getDefaultFont()).height();
    for (const wchar_t* text : {L"Notes on stage 12 of the export, kept for the editor.", L"office fluff and more office fluff here"}) {
        for (int w = 60; w < 360; w += 13) {
            for (int extra = -4; extra <= lineHeight; extra += 4) {
                MultiLineTextBox::InitArgs args(UIString(), static_cast<unsigned short>(w),
                                                static_cast<unsigned short>(MultiLineTextBox::calcHeightForLines(3) + extra));
                auto* b = panel->createWidget<MultiLineTextBox>(args, Glob::BottomLeft(10, 100));
                b->setString(text, kNoRedraw);
                int view = b->height() - 2 * b->getMargin();
                int needed = b->numDisplayLines() * lineHeight;
                EXPECT_EQ(b->getScrollOffset(), std::max(0, needed - view)) << LightweightString<wchar_t>(text) << " at " << w << "+" << extra;
                Glob* done = b;
                panel->removeWidget(done, true);
            }
        }
    }
}

TEST_F(MultiLineTextBoxTest, ALongTextScrollsToTheCaretAndWithTheWheel) {
    MultiLineTextBox* box = addBox(L"", 200, 3);
    set_kbd_focus(box);
    for (int i = 0; i < 10; ++i) {
        TestKit::typeText(L"line");
        TestKit::pressKey(Keys::Return);
    }
    EXPECT_GT(box->getScrollOffset(), 0) << "the caret on the last line is in view";
    int atEnd = box->getScrollOffset();
    TestKit::wheel(TestKit::centreOf(box), 1);
    EXPECT_LT(box->getScrollOffset(), atEnd);
    TestKit::pressKey(Keys::Home, Modifiers::Control);
    EXPECT_EQ(box->getScrollOffset(), 0);
    TestKit::pressKey(Keys::PageDown);
    EXPECT_GT(box->getCursorPosition(), 0u);
    TestKit::wheel(TestKit::centreOf(box), -100);
    EXPECT_LE(box->getScrollOffset(), atEnd) << "the wheel stops at the end of the text";
}

TEST_F(MultiLineTextBoxTest, PastesOfAnySizeAndAnyCharactersDoNoHarm) {
    MultiLineTextBox* box = addBox(L"", 150, 3);
    set_kbd_focus(box);
    std::wstring huge;
    for (int i = 0; i < 15000; ++i) huge += L"word \u00e9\u0301 ";
    OS()->setClipboardText(LightweightString<wchar_t>(huge.substr(0, 100000)));
    TestKit::pressKey('v', Modifiers::Control);
    EXPECT_EQ(box->getString().size(), 100000u);
    EXPECT_GT(box->numDisplayLines(), 100);
    TestKit::pressKey(Keys::Up);
    TestKit::pressKey(Keys::PageUp, Modifiers::Shift);
    TestKit::pressKey('x', Modifiers::Control);
    EXPECT_LT(box->getString().size(), 100000u);
    const wchar_t odd[] = {0x1F600, L'\r', L'\n', 0xDFFF, 0x0308, L'\t', 0x2029, 0x7FFFFFFF, 0};
    TestKit::typeText(LightweightString<wchar_t>(odd));
    TestKit::pressKey('a', Modifiers::Control);
    TestKit::pressKey(Keys::Delete);
    EXPECT_TRUE(box->getString().empty());
    TestKit::pressKey(Keys::Down);
    TestKit::pressKey(Keys::End);
    EXPECT_EQ(box->getCursorPosition(), 0u);
}

TEST_F(MultiLineTextBoxTest, AddressesAreFoundWithoutTheirTrailingPunctuation) {
    auto links = LinkAwareMultiLineTextBox::findLinks(
        L"See https://example.org/a_(b) and (http://x.io/y), or HTTP://UP.CASE. Not xhttp://no nor http:// alone.");
    ASSERT_EQ(links.size(), 3u);
    EXPECT_EQ(links[0].url, L"https://example.org/a_(b)");
    EXPECT_EQ(links[0].start, 4u);
    EXPECT_EQ(links[1].url, L"http://x.io/y");
    EXPECT_EQ(links[2].url, L"HTTP://UP.CASE");
    EXPECT_TRUE(LinkAwareMultiLineTextBox::findLinks(L"").empty());
    EXPECT_TRUE(LinkAwareMultiLineTextBox::findLinks(L"https://").empty());
}

TEST_F(MultiLineTextBoxTest, LinksAreDrawnAsLinksAndOpenOnAClick) {
    const wchar_t* text = L"Go to https://example.org now";
    auto* box = addBox<RecordingLinkBox>(text, 360, 2);
    box->setEditable(false);
    box->setMargin(0);
    const Palette& p = box->getPalette();
    Glib::TextLayout l(text, box->getFont(), box->width());
    int x1 = l.caret(6).x, x2 = l.caret(25).x;
    BoxInt linkArea(x1, box->height() - l.height(), x2, box->height());
    BoxInt plainArea(0, box->height() - l.height(), x1, box->height());
    EXPECT_GT(countPixels(box, linkArea, p.subheadingText(), 40), 20) << "the link in the link colour";
    EXPECT_EQ(countPixels(box, plainArea, p.subheadingText(), 40), 0);
    int underline = box->height() - 1 - (Glib::fontAscent(box->getFont()) + 1);
    EXPECT_TRUE(TestKit::pixelNear(box, (x1 + x2) / 2, underline, TestKit::argb(p.subheadingText()))) << "and underlined";

    XY<int> onLink = TestKit::screenPointOf(box, {(x1 + x2) / 2, box->height() - l.height() / 2});
    EXPECT_EQ(box->contextCursor(box->screenXYToGlobXY(onLink)), kCursorHand);
    TestKit::click(onLink);
    ASSERT_EQ(box->opened.size(), 1u);
    EXPECT_EQ(box->opened[0], L"https://example.org");
    TestKit::click(TestKit::screenPointOf(box, {x1 / 2, box->height() - l.height() / 2}));
    EXPECT_EQ(box->opened.size(), 1u) << "plain text opens nothing";
    TestKit::drag(onLink, TestKit::screenPointOf(box, {x1 / 2, box->height() - l.height() / 2}));
    EXPECT_EQ(box->opened.size(), 1u) << "a press that leaves the link before release opens nothing";

    // Editable, a plain click edits and Control and a click opens.
    box->setEditable(true);
    TestKit::click(onLink + XY<int>(6, 0)); // off the last press, so that it is no double click
    EXPECT_EQ(box->opened.size(), 1u);
    EXPECT_EQ(get_kbd_focus(), box);
    TestKit::typeText(L"X");
    EXPECT_EQ(box->getLinks().size(), 1u);
    EXPECT_NE(box->getLinks()[0].url, L"https://example.org") << "links follow the edited text";
    TestKit::click(TestKit::screenPointOf(box, {x1 + 3, box->height() - l.height() / 2}), Event::kLeft, Modifiers::Control);
    EXPECT_EQ(box->opened.size(), 2u);
}

TEST_F(MultiLineTextBoxTest, MarkUpInALabelIsShownStyledAndInAnEditableBoxAsTyped) {
    const wchar_t* text = L"<b>Bold</b> and plain";
    auto* box = addBox<LinkAwareMultiLineTextBox>(text, 360, 1);
    box->setEditable(false);
    box->setMargin(0);
    box->redraw();
    const Colour ink = box->getPalette().text();
    const int shown = Glib::TextLayout(L"Bold and plain", box->getFont(), 0).width();
    const BoxInt words(0, 0, shown, box->height()), beyond(shown * 5 / 4, 0, box->width(), box->height());
    EXPECT_GT(countPixels(box, words, ink, 60), 20);
    EXPECT_EQ(countPixels(box, beyond, ink, 60), 0) << "the tags are not drawn";
    box->setEditable(true);
    box->redraw();
    EXPECT_GT(countPixels(box, beyond, ink, 60), 0) << "an editable box shows the text as it is";
}
