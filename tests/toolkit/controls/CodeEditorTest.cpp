#include "TextControlKit.h"

#include "controls/CodeEditor.h"
#include "controls/ScrollBar.h"

#include <string>

using namespace TextControlKit;

namespace {

class CodeEditorTest : public TextControlTest {
protected:
    void SetUp() override { panel = makePanel(520, 420); }
    CodeEditor* addEditor(const LightweightString<wchar_t>& text, int w = 420, int h = 300) {
        CodeEditor::InitArgs args(text, static_cast<unsigned short>(w), static_cast<unsigned short>(h));
        return panel->createWidget<CodeEditor>(args, Glob::BottomLeft(10, 10));
    }
    // Focuses the editor with the caret at `index` and nothing selected.
    static void focusAt(CodeEditor* e, std::size_t index) {
        set_kbd_focus(e);
        e->setCursorPosition(index);
        TestKit::pump();
    }
    // The screen point in the middle of the left edge of a column of a line.
    static XY<int> pointOf(CodeEditor* e, int line, int column) {
        BoxInt view = e->textView();
        XY<int> s = e->getScrollOffset();
        int x = view.x1 - s.x + column * e->columnWidth();
        int y = view.y2 + s.y - line * e->lineHeight() - e->lineHeight() / 2;
        return TestKit::screenPointOf(e, {x, y});
    }
    // The band of a line of text (or of the gutter), in glob coordinates, unscrolled.
    static BoxInt lineBand(CodeEditor* e, const BoxInt& area, int line) {
        int top = e->textView().y2 - line * e->lineHeight();
        return BoxInt(area.x1, top - e->lineHeight(), area.x2, top);
    }
    // The first and last x of `band` with any ink on the background, or {-1, -1}.
    static XY<int> inkSpan(CodeEditor* e, const BoxInt& band, const Colour& background) {
        TestKit::pump();
        std::uint32_t bg = TestKit::argb(background);
        XY<int> span{-1, -1};
        for (int x = band.x1; x < band.x2; ++x)
            for (int y = band.y1; y < band.y2; ++y)
                if (!TestKit::similar(TestKit::globPixel(e, x, y), bg, 60)) {
                    if (span.x < 0) span.x = x;
                    span.y = x;
                    break;
                }
        return span;
    }
};

LightweightString<wchar_t> numberedLines(int n) {
    std::wstring s;
    for (int i = 1; i <= n; ++i) s += L"line " + std::to_wstring(i) + (i < n ? L"\n" : L"");
    return LightweightString<wchar_t>(s);
}

} // namespace

TEST_F(CodeEditorTest, TypingMovingAndDeletingWorkAcrossLines) {
    CodeEditor* e = addEditor(L"ab\ncd");
    EXPECT_EQ(e->getFont().name, LightweightString<char>("DejaVu Sans Mono"));
    EXPECT_EQ(e->getCursorPosition(), 0u) << "a new editor starts at the top";
    int changes = 0;
    e->requestCallback(countingCallback(changes), TextBoxBase::kCharTyped);
    focusAt(e, 0);

    typeEach(L"x");
    EXPECT_EQ(e->getText(), L"xab\ncd");
    TestKit::pressKey(Keys::End);
    TestKit::pressKey(Keys::Delete);
    EXPECT_EQ(e->getText(), L"xabcd") << "Delete at a line's end joins the next line";
    TestKit::pressKey(Keys::Return);
    EXPECT_EQ(e->getText(), L"xab\ncd");
    EXPECT_EQ(e->numLines(), 2);
    TestKit::pressKey(Keys::Backspace);
    EXPECT_EQ(e->getText(), L"xabcd") << "Backspace at a line's start joins the previous line";
    TestKit::pressKey(Keys::Return);

    // Up and Down keep the column; Right steps over the line break.
    e->setText(L"first line\nab\nthird line");
    focusAt(e, e->indexOf(0, 6));
    TestKit::pressKey(Keys::Down);
    EXPECT_EQ(e->getCursorPosition(), e->lineEnd(1)) << "a short line takes the caret to its end";
    TestKit::pressKey(Keys::Down);
    EXPECT_EQ(e->columnOf(e->getCursorPosition()), 6) << "and the column comes back on a long one";
    EXPECT_EQ(e->lineOf(e->getCursorPosition()), 2);
    TestKit::pressKey(Keys::Up);
    TestKit::pressKey(Keys::End);
    TestKit::pressKey(Keys::Right);
    EXPECT_EQ(e->getCursorPosition(), e->lineStart(2));
    TestKit::pressKey(Keys::Left);
    EXPECT_EQ(e->getCursorPosition(), e->lineEnd(1));
    TestKit::pressKey(Keys::End, Modifiers::Control);
    EXPECT_EQ(e->getCursorPosition(), e->getText().size());
    TestKit::pressKey(Keys::Home, Modifiers::Control);
    EXPECT_EQ(e->getCursorPosition(), 0u);

    // Characters beyond ASCII go in as typed, and undo takes back the last edit.
    changes = 0;
    TestKit::typeText(L"\u00e9\u03bb\u4e2d");
    EXPECT_EQ(e->getText(), L"\u00e9\u03bb\u4e2dfirst line\nab\nthird line");
    EXPECT_EQ(changes, 1);
    TestKit::pressKey('z', Modifiers::Control);
    EXPECT_EQ(e->getText(), L"first line\nab\nthird line");
    TestKit::pressKey('z', Modifiers::Control | Modifiers::Shift);
    EXPECT_EQ(e->getText(), L"\u00e9\u03bb\u4e2dfirst line\nab\nthird line");
    TestKit::pressKey('z', Modifiers::Control);
    TestKit::pressKey('y', Modifiers::Control);
    EXPECT_EQ(e->columnOf(e->getCursorPosition()), 3);
    EXPECT_EQ(changes, 5);

    // Escape tells the owner but keeps the text.
    int escapes = 0;
    e->requestCallback(countingCallback(escapes), TextBoxBase::kEscapePressed);
    TestKit::pressKey(Keys::Escape);
    EXPECT_EQ(escapes, 1);
    EXPECT_EQ(e->getText(), L"\u00e9\u03bb\u4e2dfirst line\nab\nthird line");
}

TEST_F(CodeEditorTest, ReturnKeepsTheIndentAndTabGoesToTheNextFourthColumn) {
    CodeEditor* e = addEditor(L"{\n    \"type\": 1");
    focusAt(e, e->getText().size());
    TestKit::pressKey(Keys::Return);
    EXPECT_EQ(e->getText(), L"{\n    \"type\": 1\n    ");
    typeEach(L"x");
    TestKit::pressKey(Keys::Tab);
    EXPECT_EQ(e->columnOf(e->getCursorPosition()), 8) << "from column 5 to 8";
    TestKit::pressKey(Keys::Tab);
    EXPECT_EQ(e->columnOf(e->getCursorPosition()), 12) << "a full step from a multiple of four";
    EXPECT_EQ(e->getText(), L"{\n    \"type\": 1\n    x       ");
    TestKit::pressKey(Keys::Tab, Modifiers::Shift);
    EXPECT_EQ(e->columnOf(e->getCursorPosition()), 12) << "Shift+Tab inserts nothing";

    // A break inside the indent keeps only the part before the caret, so the text
    // after it stays in its column.
    e->setText(L"    abc");
    focusAt(e, 2);
    TestKit::pressKey(Keys::Return);
    EXPECT_EQ(e->getText(), L"  \n    abc");
    EXPECT_EQ(e->getCursorPosition(), e->indexOf(1, 2));

    // Home goes to the text after the indent, then to the line's start, then back.
    TestKit::pressKey(Keys::End);
    TestKit::pressKey(Keys::Home);
    EXPECT_EQ(e->columnOf(e->getCursorPosition()), 4);
    TestKit::pressKey(Keys::Home);
    EXPECT_EQ(e->columnOf(e->getCursorPosition()), 0);
    TestKit::pressKey(Keys::Home);
    EXPECT_EQ(e->columnOf(e->getCursorPosition()), 4);

    // Ctrl+Return is the owner's (a build command, say), not a line break.
    int returns = 0;
    e->requestCallback(countingCallback(returns), TextBoxBase::kReturnPressed);
    TestKit::pressKey(Keys::Return, Modifiers::Control);
    EXPECT_EQ(returns, 1);
    EXPECT_EQ(e->numLines(), 2);
}

TEST_F(CodeEditorTest, SelectionByKeysMouseAndAllRoundTripsThroughTheClipboard) {
    CodeEditor* e = addEditor(L"one\ntwo\nthree");
    focusAt(e, 0);
    TestKit::pressKey(Keys::Down, Modifiers::Shift);
    EXPECT_EQ(e->getSelectedText(), L"one\n");
    TestKit::pressKey('c', Modifiers::Control);
    EXPECT_EQ(OS()->getClipboardText(), L"one\n");
    TestKit::pressKey(Keys::End, Modifiers::Control);
    TestKit::pressKey('v', Modifiers::Control);
    EXPECT_EQ(e->getText(), L"one\ntwo\nthreeone\n");
    EXPECT_EQ(e->numLines(), 4);

    TestKit::pressKey('a', Modifiers::Control);
    TestKit::pressKey('x', Modifiers::Control);
    EXPECT_EQ(e->getText(), L"");
    EXPECT_EQ(OS()->getClipboardText(), L"one\ntwo\nthreeone\n");
    TestKit::pressKey('v', Modifiers::Control);
    EXPECT_EQ(e->getText(), L"one\ntwo\nthreeone\n");

    // The mouse: a click places the caret at a line and column, a drag selects.
    TestKit::click(pointOf(e, 2, 2));
    EXPECT_EQ(e->getCursorPosition(), e->indexOf(2, 2));
    TestKit::drag(pointOf(e, 1, 0), pointOf(e, 1, 3));
    EXPECT_EQ(e->getSelectedText(), L"two");
    TestKit::pressKey(Keys::End, Modifiers::Shift);
    EXPECT_EQ(e->getSelectedText(), L"two");
    TestKit::pressKey(Keys::Right, Modifiers::Shift);
    TestKit::pressKey(Keys::End, Modifiers::Shift);
    EXPECT_EQ(e->getSelectedText(), L"two\nthreeone");

    // The selection is painted: some of the line shows in the selection colour.
    BoxInt band = lineBand(e, e->textView(), 1);
    EXPECT_GT(countPixels(e, band, e->getPalette().selection()), 20);
    TestKit::pressKey(Keys::Home, Modifiers::Control);
    EXPECT_EQ(countPixels(e, band, e->getPalette().selection()), 0);
}

TEST_F(CodeEditorTest, ScrollingKeepsTheCaretInViewBothWays) {
    LightweightString<wchar_t> text = numberedLines(200);
    text += std::wstring_view(L"\n" + std::wstring(300, L'w') + L"end");
    CodeEditor* e = addEditor(text);
    auto inView = [e] {
        BoxInt view = e->textView(), c = e->caretBox();
        return c.y1 >= view.y1 && c.y2 <= view.y2 && c.x1 >= view.x1 && c.x2 <= view.x2;
    };
    focusAt(e, 0);
    EXPECT_EQ(e->getScrollOffset(), (XY<int>{0, 0}));
    EXPECT_TRUE(e->verticalScrollBar()->canScroll());

    TestKit::pressKey(Keys::End, Modifiers::Control);
    EXPECT_TRUE(inView());
    EXPECT_GT(e->getScrollOffset().x, 0) << "the long last line scrolls sideways to its end";
    EXPECT_GT(e->getScrollOffset().y, 0);
    EXPECT_GT(e->verticalScrollBar()->thumbPos(), 0.99);
    EXPECT_GT(e->horizontalScrollBar()->thumbPos(), 0.0);

    TestKit::pressKey(Keys::Home);
    EXPECT_EQ(e->getScrollOffset().x, 0);
    int line = e->lineOf(e->getCursorPosition());
    TestKit::pressKey(Keys::PageUp);
    int page = line - e->lineOf(e->getCursorPosition());
    EXPECT_GT(page, 5);
    EXPECT_TRUE(inView());
    TestKit::pressKey(Keys::PageDown);
    EXPECT_EQ(e->lineOf(e->getCursorPosition()), line);

    TestKit::pressKey(Keys::Home, Modifiers::Control);
    EXPECT_EQ(e->getScrollOffset(), (XY<int>{0, 0}));
    for (int i = 0; i < 60; ++i) TestKit::pressKey(Keys::Down);
    EXPECT_TRUE(inView());

    // The wheel and the bar's arrow scroll the view without moving the caret.
    std::size_t caret = e->getCursorPosition();
    int before = e->getScrollOffset().y;
    TestKit::wheel(TestKit::centreOf(e), -1);
    EXPECT_EQ(e->getScrollOffset().y, before + 3 * e->lineHeight());
    EXPECT_EQ(e->getCursorPosition(), caret);
    ScrollBar* bar = e->verticalScrollBar();
    before = e->getScrollOffset().y;
    BoxInt arrow = bar->forwardArrowBox();
    TestKit::click(TestKit::screenPointOf(bar, {(arrow.x1 + arrow.x2) / 2, (arrow.y1 + arrow.y2) / 2}));
    EXPECT_EQ(e->getScrollOffset().y, before + e->lineHeight());
    TestKit::wheel(TestKit::centreOf(e), -100000);
    EXPECT_EQ(e->getScrollOffset().y, e->numLines() * e->lineHeight() - e->textView().height()) << "the wheel stops at the end";
    // Typing brings the caret back into view.
    typeEach(L"q");
    EXPECT_TRUE(inView());
}

TEST_F(CodeEditorTest, LargeTextsPaintOnlyWhatIsInView) {
    CodeEditor* e = addEditor(L"");
    e->setText(numberedLines(10000));
    EXPECT_EQ(e->numLines(), 10000);
    focusAt(e, 0);
    TestKit::pressKey(Keys::End, Modifiers::Control);
    typeEach(L"!");
    EXPECT_EQ(e->lineOf(e->getCursorPosition()), 9999);
    EXPECT_TRUE(e->getText().view().ends_with(L"line 10000!"));
    // The last lines show, at the bottom of the view.
    BoxInt view = e->textView();
    BoxInt bottom(view.x1, view.y1, view.x2, view.y1 + e->lineHeight());
    EXPECT_GT(inkPixels(e, bottom, e->getPalette().childWindow()), 10);
}

TEST_F(CodeEditorTest, ColumnsLineUpInPaintedPixels) {
    // In a proportional face the bar after five i's would stand far left of the one
    // after five W's; in the editor's face both stand in column 5.
    CodeEditor* e = addEditor(L"WWWWW|\niiiii|\n     |");
    TestKit::pump();
    const Colour bg = e->getPalette().childWindow();
    BoxInt view = e->textView();
    XY<int> w = inkSpan(e, lineBand(e, view, 0), bg);
    XY<int> i = inkSpan(e, lineBand(e, view, 1), bg);
    XY<int> bar = inkSpan(e, lineBand(e, view, 2), bg);
    ASSERT_GE(bar.x, 0);
    EXPECT_EQ(w.y, bar.y);
    EXPECT_EQ(i.y, bar.y);
    EXPECT_GE(bar.x, view.x1 + 5 * e->columnWidth());
    EXPECT_LT(bar.y, view.x1 + 6 * e->columnWidth());
    EXPECT_LT(w.x, view.x1 + e->columnWidth()) << "the W's start in column 0";

    // The caret of column 5 stands at one x on every line.
    set_kbd_focus(e);
    std::vector<int> xs;
    for (int line = 0; line < 3; ++line) {
        e->setCursorPosition(e->indexOf(line, 5));
        BoxInt c = e->caretBox();
        EXPECT_EQ(countPixels(e, c, e->getPalette().text()), c.width() * c.height()) << "line " << line;
        xs.push_back(c.x1);
    }
    EXPECT_EQ(xs[0], xs[1]);
    EXPECT_EQ(xs[1], xs[2]);
    EXPECT_EQ(xs[0], view.x1 + 5 * e->columnWidth());
}

TEST_F(CodeEditorTest, TheGutterNumbersEveryLineInView) {
    CodeEditor* e = addEditor(numberedLines(12));
    TestKit::pump();
    BoxInt g = e->gutter();
    const Colour bg = e->getPalette().window();
    ASSERT_GT(g.width(), 3 * e->columnWidth()) << "room for three digits at least";
    XY<int> one = inkSpan(e, lineBand(e, g, 0), bg);
    XY<int> eleven = inkSpan(e, lineBand(e, g, 10), bg);
    ASSERT_GE(one.x, 0);
    ASSERT_GE(eleven.x, 0);
    EXPECT_EQ(one.y, eleven.y) << "numbers are right-aligned";
    EXPECT_LT(eleven.x, one.x - e->columnWidth() / 2) << "11 takes two columns, 1 one";
    EXPECT_GE(inkSpan(e, lineBand(e, g, 11), bg).x, 0);
    EXPECT_EQ(inkSpan(e, lineBand(e, g, 12), bg).x, -1) << "no number below the last line";

    // Scrolled, the gutter follows the text: its top row numbers line 3 now.
    e->setText(numberedLines(400));
    XY<int> three = inkSpan(e, lineBand(e, g, 2), bg);
    e->setScrollOffset({0, 2 * e->lineHeight()});
    XY<int> top = inkSpan(e, lineBand(e, g, 0), bg);
    EXPECT_EQ(top, three);
    XY<int> hundred = inkSpan(e, lineBand(e, e->gutter(), 1), bg);
    e->setScrollOffset({0, 99 * e->lineHeight()});
    EXPECT_LT(inkSpan(e, lineBand(e, e->gutter(), 0), bg).x, hundred.x) << "line 100 takes three columns";
}

TEST_F(CodeEditorTest, DegradedInputAndPositionsNeverCrash) {
    CodeEditor* e = addEditor(L"");
    EXPECT_EQ(e->numLines(), 1);
    EXPECT_EQ(e->lineOf(1000), 0);
    EXPECT_EQ(e->columnOf(1000), 0);
    EXPECT_EQ(e->indexOf(-5, -5), 0u);
    EXPECT_EQ(e->indexOf(99, 99), 0u);
    EXPECT_EQ(e->lineStart(-1), 0u);
    EXPECT_EQ(e->lineEnd(7), 0u);
    focusAt(e, 1000);
    EXPECT_EQ(e->getCursorPosition(), 0u);
    for (int key : {int(Keys::Backspace), int(Keys::Delete), int(Keys::Left), int(Keys::Right), int(Keys::Up), int(Keys::Down), int(Keys::PageUp),
                    int(Keys::PageDown), int(Keys::Home), int(Keys::End)})
        TestKit::pressKey(key);
    TestKit::pressKey('x', Modifiers::Control);
    TestKit::pressKey('v', Modifiers::Control);
    TestKit::pressKey('z', Modifiers::Control);
    EXPECT_EQ(e->getText(), L"");
    e->setScrollOffset({-100, 1000000});
    EXPECT_EQ(e->getScrollOffset(), (XY<int>{0, 0}));

    // Line breaks of any kind typed or pasted become '\n'; control characters go.
    TestKit::typeText(L"a\r\nb\rc\x01");
    EXPECT_EQ(e->getText(), L"a\nb\nc");
    e->setSelection(5000, 2);
    EXPECT_EQ(e->getSelectedText(), L"b\nc");

    // Text set from code keeps what it has (tabs, a trailing break) and edits on.
    e->setText(L"\ta\t\n");
    EXPECT_EQ(e->numLines(), 2);
    EXPECT_EQ(e->lineEnd(1), 4u);
    focusAt(e, 4);
    TestKit::pressKey(Keys::Backspace);
    EXPECT_EQ(e->getText(), L"\ta\t");

    // Too small to show anything, it still paints, takes clicks and edits.
    e->resize(4, 4);
    TestKit::pump();
    TestKit::click(TestKit::centreOf(e));
    typeEach(L"z");
    EXPECT_EQ(e->numLines(), 1);
    EXPECT_NE(e->getText().view().find(L'z'), std::wstring_view::npos);
    e->resize(0, 0);
    TestKit::pump();
    TestKit::pressKey(Keys::End, Modifiers::Control);
    typeEach(L"y");
    EXPECT_TRUE(e->getText().view().ends_with(L"y"));
}
