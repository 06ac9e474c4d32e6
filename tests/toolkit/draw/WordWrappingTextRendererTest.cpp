#include "draw/WordWrappingTextRenderer.h"
#include "core/Utf8.h"
#include "draw/Canvas.h"
#include "draw/CanvasRenderer.h"
#include "draw/FontDesc.h"

#include <gtest/gtest.h>

using Glib::WordWrappingTextRenderer;

namespace {

const Colour kBlack(0, 0, 0), kWhite(1, 1, 1);
const wchar_t* const kSentence = L"Render the timeline again after the proxies are built";

bool inkIn(const Canvas& c, const BoxInt& b) {
    for (int y = b.y1; y < b.y2; ++y)
        for (int x = b.x1; x < b.x2; ++x)
            if (c.pixel(x, y) != 0xFF000000u) return true;
    return false;
}

LightweightString<wchar_t> joined(const std::vector<LightweightString<wchar_t>>& lines) {
    LightweightString<wchar_t> all;
    for (const auto& l : lines) all += l;
    return all;
}

LightweightString<wchar_t> trimmedRight(LightweightString<wchar_t> s) {
    while (!s.empty() && s.back() == L' ') s.resize(s.size() - 1);
    return s;
}

} // namespace

TEST(WordWrap, LinesFitTheWidthAndGiveBackTheText) {
    Glib::FontDesc font = Glib::getDefaultFont();
    int full = Glib::measureText(kSentence, font).x;
    for (int width : {full / 2, full / 3, 60}) {
        WordWrappingTextRenderer w(kSentence, font, width);
        auto lines = w.lines();
        ASSERT_EQ(lines.size(), w.numLines());
        EXPECT_GT(w.numLines(), 1) << width;
        EXPECT_EQ(joined(lines), LightweightString<wchar_t>(kSentence)) << width;
        for (const auto& line : lines) EXPECT_LE(Glib::measureText(trimmedRight(line), font).x, width) << line.str().size();
        // Breaks fall between words while every word fits.
        if (width >= 100) {
            for (std::size_t i = 0; i + 1 < lines.size(); ++i) EXPECT_EQ(lines[i].back(), L' ') << width;
        }
    }
    EXPECT_EQ(WordWrappingTextRenderer::calcNumDisplayLines(kSentence, full + 1, font), 1);
}

TEST(WordWrap, NarrowerWidthsAndLargerFontsTakeMoreLines) {
    Glib::FontDesc font = Glib::getDefaultFont();
    unsigned short wide = WordWrappingTextRenderer::calcNumDisplayLines(kSentence, 200, font);
    unsigned short narrow = WordWrappingTextRenderer::calcNumDisplayLines(kSentence, 100, font);
    unsigned short big = WordWrappingTextRenderer::calcNumDisplayLines(kSentence, 200, font.withSize(font.size * 2));
    EXPECT_GT(narrow, wide);
    EXPECT_GT(big, wide);
}

TEST(WordWrap, LineFeedsAlwaysBreakAndZeroWidthDoesNotWrap) {
    Glib::FontDesc font = Glib::getDefaultFont();
    EXPECT_EQ(WordWrappingTextRenderer::calcNumDisplayLines(L"one\ntwo\r\nthree", 0, font), 3);
    EXPECT_EQ(WordWrappingTextRenderer::calcNumDisplayLines(L"one\n\nthree", 1000, font), 3);
    EXPECT_EQ(WordWrappingTextRenderer::calcNumDisplayLines(kSentence, 0, font), 1);
    EXPECT_EQ(WordWrappingTextRenderer::calcNumDisplayLines(kSentence, -50, font), 1);
    auto lines = WordWrappingTextRenderer(L"one\ntwo", font, 0).lines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0], L"one");
    EXPECT_EQ(lines[1], L"two");
}

TEST(WordWrap, AWordWiderThanTheWidthIsBrokenInside) {
    Glib::FontDesc font = Glib::getDefaultFont();
    LightweightString<wchar_t> word(L"Supercalifragilisticexpialidocious");
    WordWrappingTextRenderer w(word, font, Glib::measureText(word, font).x / 3);
    EXPECT_GE(w.numLines(), 3);
    EXPECT_EQ(joined(w.lines()), word);
    // Even a width of one pixel gives one character a line rather than failing.
    WordWrappingTextRenderer tiny(L"abc", font, 1);
    EXPECT_EQ(tiny.numLines(), 3);
}

TEST(WordWrap, EmptyAndBadTextDegradeToSomethingDrawable) {
    Glib::FontDesc font = Glib::getDefaultFont();
    EXPECT_EQ(WordWrappingTextRenderer::calcNumDisplayLines(L"", 100, font), 1);
    EXPECT_EQ(WordWrappingTextRenderer(L"", font, 100).lines().size(), 1u);
    // A NUL, a lone surrogate and a value past Unicode: each becomes U+FFFD.
    wchar_t odd[] = {L'a', 0, L'b', static_cast<wchar_t>(0xD800), static_cast<wchar_t>(0x110000), L'c'};
    WordWrappingTextRenderer w(LightweightString<wchar_t>(odd, 6), font, 0);
    ASSERT_EQ(w.numLines(), 1);
    EXPECT_EQ(w.lines()[0], L"a\xFFFD"
                            L"b\xFFFD\xFFFD"
                            L"c");
    // Bytes that are not UTF-8, decoded as the toolkit decodes them, still lay out.
    EXPECT_EQ(WordWrappingTextRenderer::calcNumDisplayLines(fromUTF8("bad \xC3\x28 bytes \xFF"), 0, font), 1);
    // A font that is not installed falls back to one that is.
    EXPECT_EQ(WordWrappingTextRenderer::calcNumDisplayLines(L"fallback", 0, Glib::FontDesc("No Such Face", 12)), 1);
}

TEST(WordWrap, EachLineIsDrawnInItsOwnRowFromTheTop) {
    const int rowHeight = 20, width = 120;
    Glib::FontDesc font = Glib::getDefaultFont();
    Canvas c(width, 200);
    CanvasRenderer(&c).fill(kBlack);
    c.takeModifiedArea();
    BoxInt box(0, 0, width, 200);
    unsigned short n = WordWrappingTextRenderer::calcNumDisplayLines(kSentence, width, font);
    ASSERT_GE(n, 3);
    ASSERT_LT(n * rowHeight, 200);
    WordWrappingTextRenderer::renderString(&c, kSentence, box, kWhite, font, rowHeight, Glib::kAlignLeft);
    for (int row = 0; row < n; ++row) {
        int top = 200 - row * rowHeight;
        EXPECT_TRUE(inkIn(c, BoxInt(0, top - rowHeight + 1, width, top - 1))) << "row " << row;
    }
    EXPECT_FALSE(inkIn(c, BoxInt(0, 0, width, 200 - n * rowHeight))) << "nothing below the last row";
    EXPECT_EQ(c.modifiedArea(), box);
}

TEST(WordWrap, DrawingStaysInsideTheBoxAndFollowsTheOrigin) {
    Glib::FontDesc font = Glib::getDefaultFont();
    Canvas c(200, 100);
    CanvasRenderer(&c).fill(kBlack);
    c.pushOrigin({50, 10}, BoxInt(0, 0, 200, 100));
    // Far more lines than the 30-pixel box holds.
    BoxInt box(10, 10, 70, 40);
    WordWrappingTextRenderer::renderString(&c, kSentence, box, kWhite, font, 15, Glib::kAlignLeft);
    c.popOrigin();
    BoxInt onCanvas = box.translated(50, 10);
    EXPECT_TRUE(inkIn(c, onCanvas));
    EXPECT_FALSE(inkIn(c, BoxInt(0, 0, 200, onCanvas.y1)));
    EXPECT_FALSE(inkIn(c, BoxInt(0, onCanvas.y2, 200, 100)));
    EXPECT_FALSE(inkIn(c, BoxInt(0, 0, onCanvas.x1, 100)));
    EXPECT_FALSE(inkIn(c, BoxInt(onCanvas.x2, 0, 200, 100)));
}

TEST(WordWrap, AlignmentMovesEachLine) {
    Glib::FontDesc font = Glib::getDefaultFont();
    auto inkColumns = [&](int align) {
        Canvas c(300, 40);
        CanvasRenderer(&c).fill(kBlack);
        WordWrappingTextRenderer::renderString(&c, L"short", BoxInt(0, 0, 300, 40), kWhite, font, 20, align);
        int first = -1, last = -1;
        for (int x = 0; x < 300; ++x)
            if (inkIn(c, BoxInt(x, 0, x + 1, 40))) {
                if (first < 0) first = x;
                last = x;
            }
        return std::vector<int>{first, last};
    };
    auto left = inkColumns(Glib::kAlignLeft), centre = inkColumns(Glib::kAlignCentreH), right = inkColumns(Glib::kAlignRight);
    ASSERT_GE(left[0], 0);
    EXPECT_LT(left[1], 100);
    EXPECT_GT(centre[0], 100);
    EXPECT_LT(centre[1], 200);
    EXPECT_GT(right[0], 200);
    // An unknown alignment draws as left.
    EXPECT_EQ(inkColumns(42), left);
}

TEST(WordWrap, DegenerateBoxesAndRowHeightsPaintNothingOrNaturally) {
    Glib::FontDesc font = Glib::getDefaultFont();
    Canvas c(100, 100);
    CanvasRenderer(&c).fill(kBlack);
    c.takeModifiedArea();
    WordWrappingTextRenderer::renderString(&c, kSentence, BoxInt(0, 0, 0, 100), kWhite, font, 20, 0);
    WordWrappingTextRenderer::renderString(&c, kSentence, BoxInt(10, 50, 90, 50), kWhite, font, 20, 0);
    WordWrappingTextRenderer::renderString(&c, L"", BoxInt(0, 0, 100, 100), kWhite, font, 20, 0);
    WordWrappingTextRenderer::renderString(nullptr, kSentence, BoxInt(0, 0, 100, 100), kWhite, font, 20, 0);
    EXPECT_FALSE(inkIn(c, BoxInt(0, 0, 100, 100)));
    EXPECT_TRUE(c.modifiedArea().isEmpty());
    // A row height of 0 uses each line's own height: two lines fill about two font heights.
    WordWrappingTextRenderer::renderString(&c, L"one\ntwo", BoxInt(0, 0, 100, 100), kWhite, font, 0, 0);
    int h = Glib::fontHeight(font);
    EXPECT_TRUE(inkIn(c, BoxInt(0, 100 - 2 * h, 100, 100 - h)));
    EXPECT_FALSE(inkIn(c, BoxInt(0, 0, 100, 100 - 2 * h - 2)));
}
