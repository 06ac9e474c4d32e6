#include "draw/HTMLRenderer.h"
#include "draw/Canvas.h"
#include "draw/CanvasRenderer.h"
#include "draw/WordWrappingTextRenderer.h"

#include <gtest/gtest.h>

namespace {

const Colour kBlack(0, 0, 0);
const wchar_t* const kLongLine = L"The render queue finished twelve jobs and skipped two that had no media";

Palette whiteText() {
    Palette p;
    p.setColour(Palette::kText, Colour(1, 1, 1));
    return p;
}

LightweightVector<HTMLRenderer::Paragraph> parse(const wchar_t* text) { return HTMLRenderer::parse(text, whiteText()); }

// Counts the pixels in a box that satisfy `test`.
template <class Test>
int countPixels(const Canvas& c, const BoxInt& b, Test test) {
    int n = 0;
    for (int y = b.y1; y < b.y2; ++y)
        for (int x = b.x1; x < b.x2; ++x) n += test(c.pixel(x, y)) ? 1 : 0;
    return n;
}

bool ink(std::uint32_t p) { return p != 0xFF000000u; }
int channel(std::uint32_t p, int shift) { return static_cast<int>((p >> shift) & 0xFF); }
bool reddish(std::uint32_t p) { return channel(p, 16) > 120 && channel(p, 8) < 40 && channel(p, 0) < 40; }
bool greyish(std::uint32_t p) { return channel(p, 16) > 120 && channel(p, 16) == channel(p, 8) && channel(p, 8) == channel(p, 0); }

bool inkIn(const Canvas& c, const BoxInt& b) { return countPixels(c, b, ink) > 0; }

struct Columns {
    int first, last;
};

// The extent of the columns that hold ink, or (-1, -1).
Columns inkColumns(const Canvas& c) {
    int first = -1, last = -1;
    for (int x = 0; x < c.width(); ++x)
        if (inkIn(c, BoxInt(x, 0, x + 1, c.height()))) {
            if (first < 0) first = x;
            last = x;
        }
    return {first, last};
}

// The longest horizontal stretch of clear ink (not the faint edges of letters) in any row.
int longestInkStretch(const Canvas& c) {
    int best = 0;
    for (int y = 0; y < c.height(); ++y) {
        int run = 0;
        for (int x = 0; x < c.width(); ++x) {
            run = channel(c.pixel(x, y), 8) > 60 ? run + 1 : 0;
            best = std::max(best, run);
        }
    }
    return best;
}

struct Painted {
    Canvas canvas;
    Painted(int w, int h) : canvas(w, h) { CanvasRenderer(&canvas).fill(kBlack); }
};

} // namespace

TEST(HTMLRender, LineCountsFollowParagraphsBreaksAndWidth) {
    EXPECT_EQ(HTMLRenderer::calcNumDisplayLines(parse(L"<p>one</p><p>two</p><p></p>"), 0), 3);
    EXPECT_EQ(HTMLRenderer::calcNumDisplayLines(parse(L"a<br>b<br>c"), 0), 3);
    EXPECT_EQ(HTMLRenderer::calcNumDisplayLines(parse(L""), 300), 0);
    auto long1 = parse(kLongLine);
    unsigned short wide = HTMLRenderer::calcNumDisplayLines(long1, 0);
    unsigned short narrow = HTMLRenderer::calcNumDisplayLines(long1, 120);
    EXPECT_EQ(wide, 1);
    EXPECT_GT(narrow, 2);
    // Plain text counts as the word-wrapping renderer counts it in the default face.
    EXPECT_EQ(narrow, Glib::WordWrappingTextRenderer::calcNumDisplayLines(kLongLine, 120, Glib::getDefaultFont()));
    // A width of 1 breaks between characters instead of failing.
    EXPECT_EQ(HTMLRenderer::calcNumDisplayLines(parse(L"<b>abc</b>"), 1), 3);
}

TEST(HTMLRender, BiggerStylesTakeMoreLinesAtTheSameWidth) {
    std::wstring words = L"Twelve clips were conformed from the offline edit";
    unsigned short plain = HTMLRenderer::calcNumDisplayLines(parse((L"<p>" + words + L"</p>").c_str()), 150);
    unsigned short heading = HTMLRenderer::calcNumDisplayLines(parse((L"<h1>" + words + L"</h1>").c_str()), 150);
    unsigned short huge = HTMLRenderer::calcNumDisplayLines(parse((L"<font size=7>" + words + L"</font>").c_str()), 150);
    EXPECT_GT(heading, plain);
    EXPECT_GT(huge, heading);
}

TEST(HTMLRender, ParagraphsTakeOneRowPerLineFromTheTop) {
    const int rowHeight = 20;
    Painted p(200, 120);
    auto ps = parse(L"<p>first</p><p>second<br>third</p>");
    HTMLRenderer::render(&p.canvas, ps, BoxInt(0, 0, 200, 120), rowHeight, HTMLRenderer::kLeftTop);
    for (int row = 0; row < 3; ++row) {
        int top = 120 - row * rowHeight;
        EXPECT_TRUE(inkIn(p.canvas, BoxInt(0, top - rowHeight, 200, top))) << "row " << row;
    }
    EXPECT_FALSE(inkIn(p.canvas, BoxInt(0, 0, 200, 120 - 3 * rowHeight)));
}

TEST(HTMLRender, VerticalAlignmentPlacesTheBlock) {
    const int rowHeight = 20;
    auto ps = parse(L"<p>one</p><p>two</p>");
    auto render = [&](Glib::eVerticalAlign vertical) {
        auto p = std::make_unique<Painted>(100, 100);
        HTMLRenderer::render(&p->canvas, ps, BoxInt(0, 0, 100, 100), rowHeight, Glib::TextAlignment(Glib::kAlignLeft, vertical));
        return p;
    };
    auto middle = render(Glib::kAlignMiddle);
    EXPECT_TRUE(inkIn(middle->canvas, BoxInt(0, 30, 100, 70)));
    EXPECT_FALSE(inkIn(middle->canvas, BoxInt(0, 70, 100, 100)));
    EXPECT_FALSE(inkIn(middle->canvas, BoxInt(0, 0, 100, 30)));
    auto bottom = render(Glib::kAlignBottom);
    EXPECT_TRUE(inkIn(bottom->canvas, BoxInt(0, 20, 100, 40)));
    EXPECT_TRUE(inkIn(bottom->canvas, BoxInt(0, 0, 100, 20)));
    EXPECT_FALSE(inkIn(bottom->canvas, BoxInt(0, 40, 100, 100)));
    // A block taller than its box starts at the top whatever the alignment, so its start shows.
    Painted tall(100, 30);
    HTMLRenderer::render(&tall.canvas, parse(L"<p>one</p><p>two</p><p>three</p>"), BoxInt(0, 0, 100, 30), rowHeight,
                         Glib::TextAlignment(Glib::kAlignLeft, Glib::kAlignBottom));
    EXPECT_TRUE(inkIn(tall.canvas, BoxInt(0, 12, 100, 30)));
}

TEST(HTMLRender, HorizontalAlignmentComesFromTheParagraphOrTheCall) {
    auto columns = [](const wchar_t* html, Glib::eHorizontalAlign horizontal) {
        Painted p(300, 30);
        HTMLRenderer::render(&p.canvas, parse(html), BoxInt(0, 0, 300, 30), 30, Glib::TextAlignment(horizontal, Glib::kAlignTop));
        return inkColumns(p.canvas);
    };
    auto left = columns(L"<p>word</p>", Glib::kAlignLeft);
    ASSERT_GE(left.first, 0);
    EXPECT_LT(left.last, 100);
    EXPECT_GT(columns(L"<p>word</p>", Glib::kAlignRight).first, 200);
    auto centred = columns(L"<p align=center>word</p>", Glib::kAlignRight);
    EXPECT_GT(centred.first, 100);
    EXPECT_LT(centred.last, 200);
    EXPECT_LT(columns(L"<p align=left>word</p>", Glib::kAlignRight).last, 100);
}

TEST(HTMLRender, RunsAreDrawnInTheirOwnColoursAndStyles) {
    Painted p(300, 30);
    auto ps = parse(L"<p>plain <font color=\"#ff0000\">RED RED</font></p>");
    HTMLRenderer::render(&p.canvas, ps, BoxInt(0, 0, 300, 30), 30, {});
    int split = Glib::measureText(L"plain ", Glib::getDefaultFont()).x;
    BoxInt plainPart(0, 0, split, 30), redPart(split, 0, 300, 30);
    EXPECT_GT(countPixels(p.canvas, plainPart, greyish), 5);
    EXPECT_EQ(countPixels(p.canvas, plainPart, reddish), 0);
    EXPECT_GT(countPixels(p.canvas, redPart, reddish), 20);
    EXPECT_EQ(countPixels(p.canvas, redPart, greyish), 0);

    // An underline is one long stretch of ink under the whole word; letters alone never are.
    auto stretch = [](const wchar_t* html) {
        Painted q(300, 30);
        HTMLRenderer::render(&q.canvas, parse(html), BoxInt(0, 0, 300, 30), 30, {});
        return longestInkStretch(q.canvas);
    };
    int wordWidth = Glib::measureText(L"underlined", Glib::getDefaultFont()).x;
    EXPECT_GE(stretch(L"<u>underlined</u>"), wordWidth - 2);
    EXPECT_LT(stretch(L"<b>underlined</b>"), wordWidth / 2);
    // Bold letters are drawn with more ink than plain ones.
    Painted plain(300, 30), bold(300, 30);
    HTMLRenderer::render(&plain.canvas, parse(L"<i>weight</i>"), BoxInt(0, 0, 300, 30), 30, {});
    HTMLRenderer::render(&bold.canvas, parse(L"<b>weight</b>"), BoxInt(0, 0, 300, 30), 30, {});
    EXPECT_GT(countPixels(bold.canvas, BoxInt(0, 0, 300, 30), ink), countPixels(plain.canvas, BoxInt(0, 0, 300, 30), ink));
}

TEST(HTMLRender, WrapsToTheBoxAndClipsToIt) {
    Painted p(300, 200);
    p.canvas.takeModifiedArea();
    p.canvas.pushOrigin({40, 30}, BoxInt(0, 0, 300, 200));
    BoxInt box(10, 10, 130, 70); // room for three rows of 20
    auto ps = parse((std::wstring(L"<p>") + kLongLine + L"</p><p>" + kLongLine + L"</p>").c_str());
    ASSERT_GT(HTMLRenderer::calcNumDisplayLines(ps, static_cast<unsigned short>(box.width())), 3);
    HTMLRenderer::render(&p.canvas, ps, box, 20, {});
    p.canvas.popOrigin();
    BoxInt onCanvas = box.translated(40, 30);
    for (int row = 0; row < 3; ++row)
        EXPECT_TRUE(inkIn(p.canvas, BoxInt(onCanvas.x1, onCanvas.y2 - 20 * (row + 1), onCanvas.x2, onCanvas.y2 - 20 * row))) << row;
    EXPECT_FALSE(inkIn(p.canvas, BoxInt(0, 0, 300, onCanvas.y1)));
    EXPECT_FALSE(inkIn(p.canvas, BoxInt(0, onCanvas.y2, 300, 200)));
    EXPECT_FALSE(inkIn(p.canvas, BoxInt(0, 0, onCanvas.x1, 200)));
    EXPECT_FALSE(inkIn(p.canvas, BoxInt(onCanvas.x2, 0, 300, 200)));
    EXPECT_EQ(p.canvas.modifiedArea(), onCanvas);
}

TEST(HTMLRender, DegenerateCallsPaintNothing) {
    Painted p(100, 50);
    p.canvas.takeModifiedArea();
    auto ps = parse(L"<p>text</p>");
    HTMLRenderer::render(&p.canvas, ps, BoxInt(0, 0, 0, 50), 20, {});
    HTMLRenderer::render(&p.canvas, ps, BoxInt(0, 30, 100, 10), 20, {});
    HTMLRenderer::render(&p.canvas, parse(L""), BoxInt(0, 0, 100, 50), 20, {});
    HTMLRenderer::render(&p.canvas, parse(L"<p></p>"), BoxInt(0, 0, 100, 50), 20, {});
    HTMLRenderer::render(nullptr, ps, BoxInt(0, 0, 100, 50), 20, {});
    EXPECT_FALSE(inkIn(p.canvas, BoxInt(0, 0, 100, 50)));
    // A row height of 0 falls back to the height of the default face.
    HTMLRenderer::render(&p.canvas, ps, BoxInt(0, 0, 100, 50), 0);
    int h = Glib::fontHeight(Glib::getDefaultFont());
    EXPECT_TRUE(inkIn(p.canvas, BoxInt(0, 50 - h, 100, 50)));
    EXPECT_FALSE(inkIn(p.canvas, BoxInt(0, 0, 100, 50 - h - 1)));
}

TEST(HTMLRender, ConvertedPlainTextReadsBackAsItWas) {
    LightweightString<wchar_t> text(L"a<b & \"c\" > d\r\nsecond line\nthird");
    LightweightString<wchar_t> html = HTMLRenderer::convertToHTML(text, HTMLRenderer::kEscapeMarkup | HTMLRenderer::kLineFeedsToBreaks);
    EXPECT_TRUE(HTMLRenderer::isHTML(html));
    EXPECT_NE(html.find(L"a&lt;b &amp; &quot;c&quot; &gt; d<br>"), LightweightString<wchar_t>::npos) << html.str().size();
    auto ps = parse(html.c_str());
    ASSERT_EQ(ps.size(), 1u);
    EXPECT_EQ(ps[0].text(), L"a<b & \"c\" > d\nsecond line\nthird");
    EXPECT_EQ(HTMLRenderer::calcNumDisplayLines(ps, 0), 3);
    // Without breaks, line feeds are white space as in any HTML.
    auto joined = parse(HTMLRenderer::convertToHTML(L"one\ntwo", HTMLRenderer::kEscapeMarkup).c_str());
    EXPECT_EQ(joined[0].text(), L"one two");
    // Without escaping, mark-up in the text takes effect.
    auto styled = parse(HTMLRenderer::convertToHTML(L"x &amp; y", 0).c_str());
    EXPECT_EQ(styled[0].text(), L"x & y");
    EXPECT_EQ(HTMLRenderer::convertToHTML(L"<b>already</b>", 3), L"<b>already</b>");
    EXPECT_TRUE(HTMLRenderer::convertToHTML(L"", 3).empty());
}
