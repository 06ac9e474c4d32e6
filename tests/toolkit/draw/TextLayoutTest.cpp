#include "draw/TextLayout.h"
#include "draw/Canvas.h"

#include <gtest/gtest.h>

using Glib::TextLayout;

TEST(TextLayout, CaretStopsFollowTheTextAndPointsFindTheNearest) {
    Glib::FontDesc font = Glib::getDefaultFont();
    TextLayout l(L"abc", font);
    EXPECT_EQ(l.length(), 3u);
    EXPECT_EQ(l.numLines(), 1);
    EXPECT_EQ(l.caret(0).x, 0);
    EXPECT_LT(l.caret(1).x, l.caret(2).x);
    EXPECT_EQ(l.caret(3).x, l.width());
    EXPECT_EQ(l.caret(99).x, l.width()) << "an index past the end is the end";
    EXPECT_EQ(l.caret(0).height, l.height());

    int oneThird = l.caret(1).x;
    EXPECT_EQ(l.indexAt({oneThird - 1, 2}), 1u);
    EXPECT_EQ(l.indexAt({-50, -50}), 0u);
    EXPECT_EQ(l.indexAt({10000, 10000}), 3u);

    TextLayout empty(L"", font);
    EXPECT_EQ(empty.length(), 0u);
    EXPECT_EQ(empty.numLines(), 1);
    EXPECT_GT(empty.height(), 0) << "an empty text is still one line high";
    EXPECT_TRUE(empty.rangeBoxes(0, 0).empty());
}

TEST(TextLayout, ACharacterAndItsCombiningMarksAreOneStep) {
    const wchar_t text[] = {L'e', 0x301, 0x302, L'x', 0};
    TextLayout l(text, Glib::getDefaultFont());
    EXPECT_EQ(l.length(), 4u);
    EXPECT_FALSE(l.isCaretStop(1));
    EXPECT_FALSE(l.isCaretStop(2));
    EXPECT_EQ(l.nextCaretStop(0, 1), 3u);
    EXPECT_EQ(l.nextCaretStop(3, -1), 0u);
    EXPECT_EQ(l.nextCaretStop(4, 1), 4u);
    EXPECT_EQ(l.nextCaretStop(0, -1), 0u);

    // Values that are not characters count as one character each.
    const wchar_t bad[] = {0xD800, 0x110000, L'a', 0};
    TextLayout b(bad, Glib::getDefaultFont());
    EXPECT_EQ(b.length(), 3u);
    EXPECT_GT(b.caret(2).x, 0);
}

TEST(TextLayout, WrappedLinesKeepTheirIndicesAndLineFeeds) {
    Glib::FontDesc font = Glib::getDefaultFont();
    TextLayout l(L"one\n\nthree four five six", font, 60);
    ASSERT_GE(l.numLines(), 4);
    EXPECT_EQ(l.lineStart(0), 0u);
    EXPECT_EQ(l.lineEnd(0), 3u) << "a line ends before its line feed";
    EXPECT_EQ(l.lineStart(1), 4u);
    EXPECT_EQ(l.lineEnd(1), 4u) << "an empty line";
    EXPECT_EQ(l.lineOf(3), 0);
    EXPECT_EQ(l.lineOf(5), 2);
    EXPECT_EQ(l.lineBox(1).top, l.lineBox(0).top + l.lineBox(0).height);
    EXPECT_EQ(l.height(), l.numLines() * l.lineBox(0).height);
    for (int i = 0; i < l.numLines(); ++i) EXPECT_LE(l.lineBox(i).width, 60);
    EXPECT_EQ(l.indexAt({1000, l.lineBox(0).top + 1}), 3u) << "right of a line is its end";

    // A selection across lines covers each line it touches.
    auto boxes = l.rangeBoxes(1, 7);
    ASSERT_GE(boxes.size(), 3u);
    EXPECT_EQ(boxes.front().top, l.lineBox(0).top);
    EXPECT_EQ(boxes.back().top, l.lineBox(2).top);
    EXPECT_GT(boxes[1].width, 0) << "the empty line in the middle shows too";

    TextLayout single(L"a\nb", font);
    EXPECT_EQ(single.numLines(), 1) << "without a wrap width a line feed does not break";
}

TEST(TextLayout, RendersInsideItsClipOnly) {
    Canvas canvas(120, 40);
    Colour ink(1, 1, 1);
    TextLayout l(L"MMMM", Glib::getDefaultFont());
    l.render(&canvas, 10, 35, BoxInt(0, 0, 30, 40), ink);
    auto inked = [&](int x1, int x2) {
        int n = 0;
        for (int y = 0; y < 40; ++y)
            for (int x = x1; x < x2; ++x)
                if (canvas.pixel(x, y) & 0xFF) ++n;
        return n;
    };
    EXPECT_GT(inked(10, 30), 10);
    EXPECT_EQ(inked(30, 120), 0) << "clipped at the right of the clip box";
    EXPECT_EQ(inked(0, 10), 0);
}
